#pragma once

#include <quillon/app/platform/fake/counted_event.h>
#include <quillon/app/platform/qt/panels/panel_windows.h>

#include <optional>
#include <utility>
#include <vector>

namespace quillon {

/// A desktop that notes what is done with panels. Blends translucent windows at first.
class FakePanelWindows final : public PanelWindows {
  public:
    void prepare(std::uintptr_t window) override { m_prepared.push_back(window); }
    void setShape(std::uintptr_t, const WindowShape& shape) override { m_shape = shape; }
    void takeAway(std::uintptr_t window) override { m_takenAway.push_back(window); }
    void takeKeyboard(std::uintptr_t window) override { m_keyboardOwner = window; }
    void returnKeyboard(std::uintptr_t window) override {
        if (m_keyboardOwner == window)
            m_keyboardOwner.reset();
    }
    bool isComposited() const override { return m_composited; }
    Subscription onCompositedChanged(std::function<void()> callback) override {
        return m_compositedChanged.subscribe(std::move(callback));
    }
    Subscription onPressElsewhere(std::function<void()> callback) override {
        return m_pressElsewhere.subscribe(std::move(callback));
    }
    std::optional<PixelBox> freeOf(const PixelBox& monitor) override {
        m_askedMonitor = monitor;
        return m_free;
    }
    Subscription onFreeChanged(std::function<void()> callback) override {
        return m_freeChanged.subscribe(std::move(callback));
    }

    /// The windows that were prepared, in order.
    const std::vector<std::uintptr_t>& prepared() const { return m_prepared; }
    /// The shape that a window was given last.
    const WindowShape& shape() const { return m_shape; }
    /// The windows that were taken away, in order.
    const std::vector<std::uintptr_t>& takenAway() const { return m_takenAway; }
    /// Which of this program's windows has the keyboard; absent while another application has it.
    std::optional<std::uintptr_t> keyboardOwner() const { return m_keyboardOwner; }
    /// Gives the keyboard to another application, as its user does by clicking into one.
    void takeKeyboardAway() { m_keyboardOwner.reset(); }
    /// Changes the blending, and tells when that changed it.
    void setComposited(bool composited) {
        if (std::exchange(m_composited, composited) != composited)
            m_compositedChanged.emit();
    }
    /// A button goes down outside of this program's windows.
    void pressElsewhere() { m_pressElsewhere.emit(); }
    /// How many listen for presses elsewhere.
    std::size_t pressListeners() const { return m_pressElsewhere.listeners(); }
    /// Docks leave this free of every monitor from now on; absent: unknown again.
    void setFree(std::optional<PixelBox> box) {
        m_free = box;
        m_freeChanged.emit();
    }
    /// The monitor that was asked about last.
    const PixelBox& askedMonitor() const { return m_askedMonitor; }

  private:
    std::vector<std::uintptr_t> m_prepared;
    WindowShape m_shape;
    std::vector<std::uintptr_t> m_takenAway;
    std::optional<std::uintptr_t> m_keyboardOwner;
    bool m_composited = true;
    CountedEvent<> m_compositedChanged;
    CountedEvent<> m_pressElsewhere;
    std::optional<PixelBox> m_free;
    PixelBox m_askedMonitor;
    CountedEvent<> m_freeChanged;
};

} // namespace quillon
