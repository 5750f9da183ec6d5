#pragma once

#include <quillon/kit/base/subscription.h>

#include <quillon/kit/base/instant.h>
#include <quillon/kit/shortcut/modifiers.h>

#include <functional>
#include <memory>

namespace quillon {

/// The kinds of input that spoil a hold.
enum class InputKind { keyDown, leftMouseDown, rightMouseDown, otherMouseDown, scrollWheel };

/// Input ages, observed while this object lives.
class InputAges {
  public:
    virtual ~InputAges() = default;

    /// The time since the last input of `kind`, anywhere on the desktop; infinite when there was none since
    /// the observation began. Modifier keys are no key presses here.
    virtual Seconds sinceLast(InputKind kind) const = 0;
};

/// The keyboard's modifiers and, on demand, when other input last happened, whichever application has the
/// focus. Without global input (some Wayland desktops) the modifiers stay empty and nothing is called.
class Keyboard {
  public:
    virtual ~Keyboard() = default;

    /// The modifiers that are down right now, as far as the desktop has told. Asks nobody.
    virtual Modifiers modifiers() const = 0;
    /// Called on the main thread with the full set whenever it changes; never with key or pointer input.
    virtual Subscription onModifiersChanged(std::function<void(Modifiers)> callback) = 0;
    /// Begins to observe key presses, buttons and the wheel; it ends with the returned object. Costs wake-ups
    /// with every input, so only while needed. Never null.
    virtual std::unique_ptr<InputAges> observeInput() = 0;
};

} // namespace quillon
