#include "modifier_table.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <initializer_list>

namespace quillon {

namespace {

enum RealModifier : std::size_t { shift, lock, control, mod1, mod2, mod3, mod4, mod5 };

bool hasAny(const std::vector<std::uint32_t>& symbols, std::initializer_list<std::uint32_t> wanted) {
    return std::ranges::find_first_of(symbols, wanted) != symbols.end();
}

Modifiers meaning(const std::vector<std::uint32_t>& symbols) {
    if (hasAny(symbols, {XKB_KEY_Alt_L, XKB_KEY_Alt_R}))
        return Modifiers::option;
    if (hasAny(symbols, {XKB_KEY_Super_L, XKB_KEY_Super_R, XKB_KEY_Meta_L, XKB_KEY_Meta_R}))
        return Modifiers::command;
    return {};
}

} // namespace

ModifierTable::ModifierTable()
    : ModifierTable([] {
          Symbols ordinary;
          ordinary[mod1] = {XKB_KEY_Alt_L};
          ordinary[mod4] = {XKB_KEY_Super_L};
          return ordinary;
      }()) {}

ModifierTable::ModifierTable(const Symbols& symbols) {
    m_meaning[shift] = Modifiers::shift;
    m_meaning[control] = Modifiers::control;
    for (std::size_t modifier = mod1; modifier <= mod5; ++modifier)
        m_meaning[modifier] = meaning(symbols[modifier]);
}

Modifiers ModifierTable::modifiers(std::uint32_t mask) const {
    Modifiers result;
    for (std::size_t modifier = 0; modifier < size; ++modifier) {
        if ((mask & (1U << modifier)) != 0)
            result.insert(m_meaning[modifier]);
    }
    return result;
}

std::uint32_t ModifierTable::choosers(std::uint32_t mask) const {
    std::uint32_t result = 0;
    for (std::size_t modifier = 0; modifier < size; ++modifier) {
        if (modifier != lock && Modifiers::shift.contains(m_meaning[modifier]))
            result |= mask & (1U << modifier);
    }
    return result;
}

bool isModifierSymbol(std::uint32_t symbol) {
    return (symbol >= XKB_KEY_Shift_L && symbol <= XKB_KEY_Hyper_R)
           || (symbol >= XKB_KEY_ISO_Lock && symbol <= XKB_KEY_ISO_Level5_Lock)
           || symbol == XKB_KEY_Mode_switch || symbol == XKB_KEY_Num_Lock || symbol == XKB_KEY_Scroll_Lock;
}

} // namespace quillon
