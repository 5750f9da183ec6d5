#pragma once

#include "accessibility_status.h"

#include <quillon/app/ports/accessibility_access.h>

#include <chrono>
#include <memory>

namespace quillon {

/// The permission to read menus on a Linux desktop: there is an accessibility bus, and the desktop's switch
/// for it, where it has one, is on.
class AccessibilityBusAccess final : public AccessibilityAccess {
  public:
    /// How long an answer holds before `isTrusted` asks for another.
    static constexpr std::chrono::milliseconds defaultAskInterval{10'000};

    explicit AccessibilityBusAccess(
        QDBusConnection bus, std::chrono::milliseconds askInterval = defaultAskInterval);

    bool isTrusted() const override;
    /// Turns the desktop's switch on. It stays on when the program ends.
    void ask() override { m_status->turnOn(); }
    bool hasSettings() const override;
    bool openSettings() override;
    Subscription onChanged(std::function<void()> callback) override;

  private:
    std::unique_ptr<AccessibilityStatus> m_status;
    std::chrono::milliseconds m_askInterval;
};

} // namespace quillon
