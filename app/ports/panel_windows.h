#pragma once

#include <quillon/kit/base/subscription.h>

#include <cstdint>
#include <functional>

namespace quillon {

/// What floating panels need of the desktop beyond what a toolkit offers. A window is given by its native
/// number; it must exist and belong to this program.
class PanelWindows {
  public:
    virtual ~PanelWindows() = default;

    /// Marks the window as a floating notice: above others, on every workspace, in no task list, and never
    /// given the focus by the window manager. Before it is shown for the first time.
    virtual void prepare(std::uintptr_t window) = 0;
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
};

} // namespace quillon
