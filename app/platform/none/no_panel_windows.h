#pragma once

#include <quillon/app/ports/panel_windows.h>

namespace quillon {

/// A desktop that offers panels no more than a toolkit does: the keyboard stays where it is, nothing is
/// blended, and presses elsewhere are not told.
class NoPanelWindows final : public PanelWindows {
  public:
    void prepare(std::uintptr_t) override {}
    void setShape(std::uintptr_t, const WindowShape&) override {}
    void takeAway(std::uintptr_t) override {}
    void takeKeyboard(std::uintptr_t) override {}
    void returnKeyboard(std::uintptr_t) override {}
    bool isComposited() const override { return false; }
    Subscription onCompositedChanged(std::function<void()>) override { return {}; }
    Subscription onPressElsewhere(std::function<void()>) override { return {}; }
};

} // namespace quillon
