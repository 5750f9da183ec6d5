#include "keyboard_map.h"

#include <algorithm>
#include <span>

namespace quillon {

namespace {

/// The symbols of every key, all groups and levels, as the server sent them.
class SymbolTable {
  public:
    SymbolTable(const xcb_get_keyboard_mapping_reply_t& reply, xcb_keycode_t first)
        : m_all(
            xcb_get_keyboard_mapping_keysyms(&reply),
            static_cast<std::size_t>(std::max(0, xcb_get_keyboard_mapping_keysyms_length(&reply)))),
          m_perKey(reply.keysyms_per_keycode), m_first(first) {}

    std::span<const xcb_keysym_t> of(xcb_keycode_t key) const {
        const std::size_t begin = static_cast<std::size_t>(key - m_first) * m_perKey;
        if (key < m_first || begin + m_perKey > m_all.size())
            return {};
        return m_all.subspan(begin, m_perKey);
    }

  private:
    std::span<const xcb_keysym_t> m_all;
    std::size_t m_perKey;
    xcb_keycode_t m_first;
};

KeyboardMap interpret(const xcb_get_modifier_mapping_reply_t& mapping, const SymbolTable& symbols) {
    KeyboardMap result;
    ModifierTable::Symbols byModifier;
    const xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(&mapping);
    for (std::size_t i = 0; i < ModifierTable::size * mapping.keycodes_per_modifier; ++i) {
        if (keys[i] == 0)
            continue;
        result.isModifierKey.set(keys[i]);
        const auto of = symbols.of(keys[i]);
        auto& list = byModifier[i / mapping.keycodes_per_modifier];
        list.insert(list.end(), of.begin(), of.end());
    }
    result.modifiers = ModifierTable(byModifier);
    return result;
}

} // namespace

std::optional<KeyboardMap> KeyboardMap::ask(X11Connection& x11) {
    const xcb_setup_t* setup = xcb_get_setup(x11.xcb());
    const xcb_keycode_t first = setup->min_keycode;
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - first + 1);
    const auto modifierCookie = xcb_get_modifier_mapping(x11.xcb());
    const auto symbolCookie = xcb_get_keyboard_mapping(x11.xcb(), first, count);
    const auto mapping = x11.reply<xcb_get_modifier_mapping_reply_t>(modifierCookie);
    const auto symbolReply = x11.reply<xcb_get_keyboard_mapping_reply_t>(symbolCookie);
    if (!mapping || !symbolReply)
        return std::nullopt;

    const SymbolTable symbols(*symbolReply, first);
    KeyboardMap result = interpret(*mapping, symbols);
    for (int key = first; key < first + count; ++key) {
        // What a key means without Shift decides: Shift with Print Screen may well be a lock.
        const auto of = symbols.of(static_cast<xcb_keycode_t>(key));
        if (!of.empty() && isModifierSymbol(of.front()))
            result.isModifierKey.set(static_cast<std::size_t>(key));
    }
    return result;
}

} // namespace quillon
