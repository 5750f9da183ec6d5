#pragma once

#include "counted_event.h"
#include "fake_panel.h"

#include <quillon/app/ports/panel_host.h>

#include <memory>
#include <utility>

namespace quillon {

/// Screens, pointer and panels of which a test can see all.
class FakePanelHost final : public PanelHost {
  public:
    std::vector<Screen> screens() const override { return allScreens; }
    Subscription onScreensChanged(std::function<void()> callback) override {
        return m_screensChanged.subscribe(std::move(callback));
    }
    /// Replaces the monitors, and tells.
    void changeScreens(std::vector<Screen> screens) {
        allScreens = std::move(screens);
        m_screensChanged.emit();
    }
    Point pointer() const override { return pointerPosition; }
    std::unique_ptr<FloatingPanel> makeOverlayPanel() override {
        ++panelsMade;
        auto made = std::make_unique<FakePanel>(overlay);
        overlayPanel = made.get();
        return made;
    }
    std::unique_ptr<FloatingPanel> makeToastPanel() override {
        ++panelsMade;
        return std::make_unique<FakePanel>(toast);
    }

    std::vector<Screen> allScreens{{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}}};
    Point pointerPosition;
    std::shared_ptr<PanelRecord> overlay = std::make_shared<PanelRecord>();
    std::shared_ptr<PanelRecord> toast = std::make_shared<PanelRecord>();
    FloatingPanel* overlayPanel = nullptr;
    int panelsMade = 0;

  private:
    CountedEvent<> m_screensChanged;
};

} // namespace quillon
