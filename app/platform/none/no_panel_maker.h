#pragma once

#include <quillon/app/ports/panel_maker.h>

namespace quillon {

/// A panel that nobody sees.
class NoPanel final : public FloatingPanel {
  public:
    void prepare() override {}
    void setFrame(Rect) override {}
    void orderFront() override {}
    void makeKey() override {}
    void orderOut() override {}
    void fadeIn(Seconds) override {}
    void fadeOut(Seconds) override {}
    bool isVisible() const override { return false; }
};

/// A desktop without monitors, on which nothing can be shown.
class NoPanelMaker final : public PanelMaker {
  public:
    std::vector<Screen> screens() const override { return {}; }
    Subscription onScreensChanged(std::function<void()>) override { return {}; }
    Point pointer() const override { return {}; }
    std::unique_ptr<FloatingPanel> makePanel(PanelContent) override { return std::make_unique<NoPanel>(); }
};

} // namespace quillon
