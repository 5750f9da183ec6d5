#pragma once

#include <quillon/kit/base/subscription.h>

#include <cstdint>
#include <functional>

namespace quillon {

/// Has every key press come to one window of this program, those too that the desktop itself has a use for.
class KeyboardGrab {
  public:
    virtual ~KeyboardGrab() = default;

    /// Takes the keyboard for `window`, by its system's number, which is on the screen and has the focus;
    /// the end of the handle gives it back at once. One at a time. While something else has the keyboard it
    /// is asked for again. `taken` is called on the main thread, once, when the window has it. An empty
    /// handle where the desktop cannot: the window gets what the desktop leaves.
    virtual Subscription take(std::uint64_t window, std::function<void()> taken) = 0;
};

} // namespace quillon
