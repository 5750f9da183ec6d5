#pragma once

#include <quillon/app/ports/foreground.h>

#include <utility>
#include <vector>

namespace quillon {

/// A desktop of which is noted what was brought to its front.
class FakeForeground final : public Foreground {
  public:
    void bring(std::uintptr_t window) override { brought.push_back(window); }
    void expect(std::string activationToken) override { tokens.push_back(std::move(activationToken)); }

    std::vector<std::uintptr_t> brought; ///< in order
    std::vector<std::string> tokens;
};

} // namespace quillon
