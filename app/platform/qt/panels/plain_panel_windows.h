#pragma once

#include "panel_windows.h"

namespace quillon {

/// A desktop of which nothing more is known than the toolkit knows: the keyboard stays where it is, presses
/// elsewhere are not told, nor is what docks leave free, and what is translucent is blended, as wherever
/// windows are not X11's.
class PlainPanelWindows final : public PanelWindows {
  public:
    void prepare(std::uintptr_t) override {}
    void setShape(std::uintptr_t, const WindowShape&) override {}
    void takeAway(std::uintptr_t) override {}
    void takeKeyboard(std::uintptr_t) override {}
    void returnKeyboard(std::uintptr_t) override {}
    bool isComposited() const override { return true; }
    Subscription onCompositedChanged(std::function<void()>) override { return {}; }
    Subscription onPressElsewhere(std::function<void()>) override { return {}; }
    std::optional<PixelBox> freeOf(const PixelBox&) override { return std::nullopt; }
    Subscription onFreeChanged(std::function<void()>) override { return {}; }
};

} // namespace quillon
