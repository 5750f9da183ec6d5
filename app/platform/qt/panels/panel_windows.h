#pragma once

#include <quillon/kit/base/subscription.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace quillon {

/// A box of pixels: of a window, counted from its top left corner, or of the whole desktop.
struct PixelBox {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const PixelBox&) const = default;
};

/// Which parts of a window are there for the eye and for the pointer.
struct WindowShape {
    std::optional<std::vector<PixelBox>> shown; ///< absent: all of the window
    std::vector<PixelBox> touchable;            ///< elsewhere the pointer reaches what lies below

    bool operator==(const WindowShape&) const = default;
};

/// What floating panels need of the desktop beyond what a toolkit offers. A window is given by its native
/// number; it must exist and belong to this program.
class PanelWindows {
  public:
    virtual ~PanelWindows() = default;

    /// Marks the window as a floating notice: above others, on every workspace, in no task list, and never
    /// given the focus by the window manager. Before it is shown for the first time.
    virtual void prepare(std::uintptr_t window) = 0;
    virtual void setShape(std::uintptr_t window, const WindowShape& shape) = 0;
    /// Takes the window off the screen, without the windows below being told that the pointer moved into
    /// them: where the focus follows the pointer it would go there.
    virtual void takeAway(std::uintptr_t window) = 0;
    /// Gives the keyboard to the shown window, remembering who had it.
    virtual void takeKeyboard(std::uintptr_t window) = 0;
    /// Gives the keyboard back to who had it before `takeKeyboard`; nothing when the window no longer has it.
    virtual void returnKeyboard(std::uintptr_t window) = 0;
    /// Whether translucent windows are blended with what lies below; without, corners must be cut out.
    virtual bool isComposited() const = 0;
    virtual Subscription onCompositedChanged(std::function<void()> callback) = 0;
    /// Called when a pointer button goes down anywhere outside of this program's windows, while the handle
    /// lives. Does nothing where the desktop does not tell.
    virtual Subscription onPressElsewhere(std::function<void()> callback) = 0;
    /// What docks leave free of a monitor, both in the desktop's pixels. Absent where the desktop does not
    /// tell.
    virtual std::optional<PixelBox> freeOf(const PixelBox& monitor) = 0;
    /// Called when the answers of `freeOf` may have changed.
    virtual Subscription onFreeChanged(std::function<void()> callback) = 0;
};

} // namespace quillon
