#pragma once

#include "counted_event.h"

#include <quillon/app/ports/accessibility_access.h>

#include <utility>

namespace quillon {

/// A permission that is given and taken by hand; not given at first.
class FakeAccessibilityAccess final : public AccessibilityAccess {
  public:
    bool isTrusted() const override { return m_trusted; }
    void ask() override {
        ++m_asked;
        if (m_grantsWhenAsked)
            setTrusted(true);
    }
    bool hasSettings() const override { return m_hasSettings; }
    bool openSettings() override {
        ++m_settingsOpened;
        return m_hasSettings;
    }
    Subscription onChanged(std::function<void()> callback) override {
        return m_changed.subscribe(std::move(callback));
    }

    /// Gives or takes the permission, and tells when that changed it.
    void setTrusted(bool trusted) {
        if (std::exchange(m_trusted, trusted) != trusted)
            m_changed.emit();
    }
    /// The same without telling, for a change that is only noticed by asking.
    void setTrustedSilently(bool trusted) { m_trusted = trusted; }
    void setGrantsWhenAsked(bool grants) { m_grantsWhenAsked = grants; }
    void setHasSettings(bool has) { m_hasSettings = has; }

    int asked() const { return m_asked; }
    int settingsOpened() const { return m_settingsOpened; }
    std::size_t listeners() const { return m_changed.listeners(); }

  private:
    bool m_trusted = false;
    bool m_grantsWhenAsked = false;
    bool m_hasSettings = true;
    int m_asked = 0;
    int m_settingsOpened = 0;
    CountedEvent<> m_changed;
};

} // namespace quillon
