#pragma once

#include <cstdint>
#include <string>

namespace quillon {

/// Lets windows of this program that the user asked for come to the front, although desktops keep programs
/// from pushing themselves there.
class Foreground {
  public:
    virtual ~Foreground() = default;

    /// Brings a window to the front that is on the screen or on its way there: of another workspace too, and
    /// with the keyboard. `window` is the desktop's own number of it. Does not wait.
    virtual void bring(std::uintptr_t window) = 0;
    /// The desktop's proof that the user asked this program for a window, for the one that is brought next.
    virtual void expect(std::string activationToken) = 0;
};

} // namespace quillon
