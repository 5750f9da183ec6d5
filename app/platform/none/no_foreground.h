#pragma once

#include <quillon/app/ports/foreground.h>

namespace quillon {

/// A desktop where the toolkit brings windows to the front as well as can be.
class NoForeground final : public Foreground {
  public:
    void bring(std::uintptr_t) override {}
    void expect(std::string) override {}
};

} // namespace quillon
