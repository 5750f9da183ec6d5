#pragma once

#include <quillon/app/ports/printed_keys.h>
#include <quillon/kit/shortcut/key_stroke.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

struct xkb_keymap;

namespace quillon {

/// What besides the key itself decides what a press means.
struct KeyState {
    Modifiers modifiers; ///< what is held
    /// Those of the keymap's modifiers that are on and choose among the characters of a key (Shift, AltGr,
    /// Num Lock), as a mask; none that stands for ⌃, ⌥ or ⌘.
    std::uint32_t choosers = 0;
    std::uint32_t group = 0; ///< the layout that is in effect, from 0

    bool operator==(const KeyState&) const = default;
};

/// What the keys of a keyboard give, in each of its layouts. Of one thread at a time.
class Keymap {
  public:
    using Handle = std::unique_ptr<xkb_keymap, void (*)(xkb_keymap*)>;

    /// From what xkbcommon made. Never null.
    explicit Keymap(Handle keymap) : m_keymap(std::move(keymap)) {}

    /// The press of a key, by its X key code, as the kit matches it with shortcuts; absent for a press that
    /// is the use of none: of a modifier, a dead key, a key with neither a character nor a name.
    ///
    /// - Named keys are told by what the layout makes of them, wherever they are, by their code alone.
    /// - Other keys are told by what they give with Shift and AltGr, in the layout in effect; where that is
    ///   no Latin character, in the first layout of the keymap that has one there. Toolkits do the same, so
    ///   that Ctrl+С of a Russian layout is Ctrl+C to them while there is a Latin layout beside it.
    /// - The code is then that of the ANSI key with the character that the key gives without Shift, because
    ///   matching looks that up: German ⇧- is the use of ⇧⌃-, although its place is that of another key.
    std::optional<KeyStroke> stroke(std::uint32_t key, const KeyState& state) const;

    /// What is printed on a key that has characters, by its X key code, where `group` is in effect; of the
    /// layout that `stroke` takes them from. A dead key has its accent on it.
    KeyPrint print(std::uint32_t key, std::uint32_t group) const;

    std::size_t layoutCount() const;

  private:
    Handle m_keymap;
};

} // namespace quillon
