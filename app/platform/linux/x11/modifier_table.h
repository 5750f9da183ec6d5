#pragma once

#include <quillon/kit/shortcut/modifiers.h>

#include <array>
#include <cstdint>
#include <vector>

namespace quillon {

/// Which of the X server's eight modifiers stands for which of the four, by the keys that are bound to it.
class ModifierTable {
  public:
    static constexpr std::size_t size = 8;
    /// For each of Shift, Lock, Control, Mod1 to Mod5: the key symbols of its keys.
    using Symbols = std::array<std::vector<std::uint32_t>, size>;

    /// An ordinary keyboard: Mod1 is Alt, Mod4 is Super.
    ModifierTable();
    /// Alt_L or Alt_R make a modifier ⌥; else Super_L, Super_R, Meta_L or Meta_R make it ⌘. The level
    /// choosers (AltGr, ISO_Level3_Shift) and the locks stand for nothing.
    explicit ModifierTable(const Symbols& symbols);

    /// The modifiers that a state mask of the server stands for.
    Modifiers modifiers(std::uint32_t mask) const;

    /// Those of a state mask that choose among the characters of a key: without the ones that stand for ⌃, ⌥
    /// or ⌘, and without Caps Lock, which makes no other shortcut of a key.
    std::uint32_t choosers(std::uint32_t mask) const;

    bool operator==(const ModifierTable&) const = default;

  private:
    std::array<Modifiers, size> m_meaning{};
};

/// Whether a key of this symbol only chooses what other keys mean: Shift, Control, Alt, the locks and level
/// choosers.
bool isModifierSymbol(std::uint32_t symbol);

} // namespace quillon
