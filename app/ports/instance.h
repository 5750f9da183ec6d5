#pragma once

#include "watching.h"
#include "windows.h"

#include <quillon/kit/base/subscription.h>

#include <functional>
#include <string>

namespace quillon {

/// What other processes of the session, another start of this program or a script, may ask of this one.
struct InstanceRequests {
    std::function<void()> activate; ///< bring up the menu or a window
    std::function<void()> showOverlay;
    std::function<void()> showSample;
    std::function<bool(WindowName)> openWindow;                    ///< false when there is no such window
    std::function<void(const std::string& bundleID)> openPractice; ///< for an application
    /// Comes ahead of one of these: the desktop's proof that the user wants it.
    std::function<void(std::string activationToken)> expectActivation;
    std::function<void()> quit;
    std::function<Watching()> watching;
    std::function<bool()> isInTray; ///< a tray shows its icon
};

/// Keeps this program the only one of its kind in the session, and passes on what others ask of it.
class Instance {
  public:
    enum class Claim {
        first,       ///< this process is the instance now
        taken,       ///< another process is, and can be asked
        unreachable, ///< another process is, and cannot be asked
        noSession,   ///< this process is, and others cannot ask it: the session has no way to, or none that
                     ///< answers
    };
    /// What is to be done once the session can be reached that was lost, or was not there at the start.
    enum class Return {
        startAnew, ///< what the program was connected to is gone: begin from the start
        giveWay,   ///< another instance has begun meanwhile
    };

    virtual ~Instance() = default;

    /// Tries to become the instance; waits within bounds. Requests are answered on the main thread while this
    /// object lives.
    virtual Claim claim(InstanceRequests requests) = 0;
    /// Called on the main thread, once.
    virtual Subscription onReturn(std::function<void(Return)> callback) = 0;
};

} // namespace quillon
