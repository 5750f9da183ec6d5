#pragma once

#include <quillon/app/ports/keyboard_grab.h>

namespace quillon {

/// A desktop that keeps its own keys.
class NoKeyboardGrab final : public KeyboardGrab {
  public:
    Subscription take(std::uint64_t, std::function<void()>) override { return {}; }
};

} // namespace quillon
