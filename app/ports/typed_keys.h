#pragma once

#include <quillon/kit/base/subscription.h>
#include <quillon/kit/shortcut/key_stroke.h>

#include <functional>

namespace quillon {

/// Key presses that may be the use of a shortcut, whichever application has the focus: those that carry ⌘ or
/// ⌃. Of every other press nothing is looked at.
class TypedKeys {
  public:
    virtual ~TypedKeys() = default;

    /// Called on the main thread with every such press, while the handle lives; once for a key that repeats,
    /// and not for what is typed into this program's own windows. Its characters are those that make the
    /// application obey: of the keyboard layout, and where that has no Latin letters of the one that has.
    virtual Subscription onKeyStroke(std::function<void(const KeyStroke&)> callback) = 0;
};

} // namespace quillon
