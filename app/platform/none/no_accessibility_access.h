#pragma once

#include <quillon/app/ports/accessibility_access.h>

namespace quillon {

/// A desktop without an accessibility permission to give: never trusted, and no settings to open.
class NoAccessibilityAccess final : public AccessibilityAccess {
  public:
    bool isTrusted() const override { return false; }
    void ask() override {}
    bool hasSettings() const override { return false; }
    bool openSettings() override { return false; }
    Subscription onChanged(std::function<void()>) override { return {}; }
};

} // namespace quillon
