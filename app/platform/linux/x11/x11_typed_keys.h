#pragma once

#include "raw_input.h"
#include "x11_keyboard.h"

#include <quillon/app/ports/background.h>
#include <quillon/app/ports/typed_keys.h>

#include <functional>
#include <memory>
#include <string>

namespace quillon {

/// Key presses with ⌘ or ⌃, by raw events of the X server. Those are asked for only while one of the two is
/// down or latched: plain typing never reaches this program. So a press that follows its modifier faster than
/// this program learns of it, as no hand does, goes unnoticed.
class X11TypedKeys final : public TypedKeys {
  public:
    /// What it needs; all of it outlives it.
    struct Needs {
        X11Keyboard& keyboard;
        Background& background;
        /// Whether a window of this program's has the keyboard; what is typed there is not told.
        std::function<bool()> hasOwnFocus;
        std::string display = {}; ///< that of `keyboard`; $DISPLAY when it is empty
    };
    X11TypedKeys(Needs needs, std::shared_ptr<RawInput> input);
    ~X11TypedKeys() override;

    /// Nothing is told before the keyboard's map is known, some milliseconds after the first subscription.
    Subscription onKeyStroke(std::function<void(const KeyStroke&)> callback) override;

  private:
    class Watch;

    Needs m_needs;
    std::shared_ptr<RawInput> m_input;
    Event<const KeyStroke&> m_stroke;
    std::weak_ptr<Watch> m_watch; ///< as long as anybody listens
};

} // namespace quillon
