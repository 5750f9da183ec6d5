#pragma once

#include <quillon/app/ports/typed_keys.h>

namespace quillon {

/// A desktop that does not tell which keys are pressed.
class NoTypedKeys final : public TypedKeys {
  public:
    Subscription onKeyStroke(std::function<void(const KeyStroke&)>) override { return {}; }
};

} // namespace quillon
