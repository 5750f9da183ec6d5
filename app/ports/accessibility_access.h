#pragma once

#include <quillon/kit/base/subscription.h>

#include <functional>

namespace quillon {

/// The user's permission to read other applications' menus.
class AccessibilityAccess {
  public:
    virtual ~AccessibilityAccess() = default;

    /// What was last known; never waits. Where the answer comes from another process it is asked for anew,
    /// and `onChanged` tells when it differs. False until the first answer.
    virtual bool isTrusted() const = 0;
    /// Asks the system, and through it the user, for the permission. Only on the user's own request.
    virtual void ask() = 0;
    /// Whether the system has accessibility settings to open. Never waits.
    virtual bool hasSettings() const = 0;
    /// Opens them; false when there are none, or they do not start.
    virtual bool openSettings() = 0;
    /// Called on the main thread when the answer of `isTrusted` changed.
    virtual Subscription onChanged(std::function<void()> callback) = 0;
};

} // namespace quillon
