#pragma once

#include "printed_keys.h"

#include <quillon/kit/base/subscription.h>
#include <quillon/kit/shortcut/key_stroke.h>

#include <cstdint>
#include <functional>
#include <optional>

namespace quillon {

/// A key press as the toolkit passes it on, in numbers of which only the platform knows the meaning.
struct HardwarePress {
    std::uint32_t key = 0;   ///< which key it is, by its place
    std::uint32_t state = 0; ///< what was held and locked, and which layout was in effect

    bool operator==(const HardwarePress&) const = default;
};

/// What key presses in this program's own windows stand for, by the keyboard and its layout.
class KeyReading {
  public:
    virtual ~KeyReading() = default;

    /// Keeps up with the keyboard while the handle lives; nothing is known without. `changed` is called on
    /// the main thread when what the keys stand for became known or another. An empty handle where the
    /// desktop does not tell: nothing will ever be known.
    virtual Subscription follow(std::function<void()> changed) = 0;
    /// The press as it is matched with shortcuts; a dead key by the accent that is printed on it. Absent for
    /// a press that is none of a shortcut (a modifier, a media key), and while nothing is known.
    virtual std::optional<KeyStroke> stroke(const HardwarePress& press) const = 0;
    /// What is printed on the keys, in the layout in effect; absent while nothing is known.
    virtual std::optional<PrintedKeys> printed() const = 0;
};

} // namespace quillon
