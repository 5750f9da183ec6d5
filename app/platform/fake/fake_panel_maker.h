#pragma once

#include "counted_event.h"
#include "fake_panel.h"

#include <quillon/app/ports/panel_maker.h>

#include <memory>
#include <utility>
#include <vector>

namespace quillon {

/// A desktop that shows panels to nobody and notes what is done with them.
class FakePanelMaker final : public PanelMaker {
  public:
    /// A panel that was made, with what it shows.
    struct Made {
        PanelContent content;
        std::shared_ptr<PanelRecord> record;
    };

    std::vector<Screen> screens() const override { return allScreens; }
    Subscription onScreensChanged(std::function<void()> callback) override {
        return m_screensChanged.subscribe(std::move(callback));
    }
    Point pointer() const override { return pointerPosition; }
    std::unique_ptr<FloatingPanel> makePanel(PanelContent content) override {
        made.push_back({std::move(content), std::make_shared<PanelRecord>()});
        return std::make_unique<FakePanel>(made.back().record);
    }

    /// Replaces the monitors, and tells.
    void changeScreens(std::vector<Screen> screens) {
        allScreens = std::move(screens);
        m_screensChanged.emit();
    }

    std::vector<Screen> allScreens{{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}}};
    Point pointerPosition;
    std::vector<Made> made; ///< in order

  private:
    CountedEvent<> m_screensChanged;
};

} // namespace quillon
