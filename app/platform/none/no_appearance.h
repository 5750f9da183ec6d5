#pragma once

#include <quillon/app/ports/appearance.h>

namespace quillon {

/// A desktop that does not tell how things should look: light, with whatever font the toolkit has.
class NoAppearance final : public Appearance {
  public:
    Look look() const override { return {}; }
    Subscription onChanged(std::function<void()>) override { return {}; }
};

} // namespace quillon
