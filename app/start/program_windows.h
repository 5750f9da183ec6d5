#pragma once

#include <quillon/app/ports/accessibility_access.h>
#include <quillon/app/ports/windows.h>

namespace quillon {

/// The windows of the running program. So far there is none; in place of the welcome, which would offer to
/// turn accessibility on, the desktop is asked for it.
class ProgramWindows final : public Windows {
  public:
    explicit ProgramWindows(AccessibilityAccess& access) : m_access(access) {}

    void open(WindowName name) override {
        if (offers(name))
            m_access.ask();
    }
    bool offers(WindowName name) const override { return name == WindowName::welcome; }
    bool hasKeyboard(WindowName) const override { return false; }

  private:
    AccessibilityAccess& m_access;
};

} // namespace quillon
