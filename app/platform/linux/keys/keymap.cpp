#include "keymap.h"

#include "dead_keys.h"
#include "symbol_keys.h"

#include <quillon/kit/base/unicode.h>
#include <quillon/kit/shortcut/key_code.h>

#include <xkbcommon/xkbcommon.h>

#include <string>

namespace quillon {

namespace {

constexpr std::uint32_t shiftMask = 1; // X has Shift first, in every keymap

/// The symbols of one key, while certain choosers are on.
class KeySymbols {
  public:
    KeySymbols(xkb_keymap* keymap, std::uint32_t key, std::uint32_t choosers, std::uint32_t group)
        : m_keymap(keymap), m_key(key), m_state(xkb_state_new(keymap), xkb_state_unref) {
        xkb_state_update_mask(m_state.get(), choosers, 0, 0, 0, 0, group);
    }

    xkb_layout_index_t layoutInEffect() const { return xkb_state_key_get_layout(m_state.get(), m_key); }

    xkb_keysym_t in(xkb_layout_index_t layout) const {
        const xkb_level_index_t level = xkb_state_key_get_level(m_state.get(), m_key, layout);
        const xkb_keysym_t* symbols = nullptr;
        const int count = xkb_keymap_key_get_syms_by_level(m_keymap, m_key, layout, level, &symbols);
        return count == 1 ? symbols[0] : XKB_KEY_NoSymbol;
    }

  private:
    xkb_keymap* m_keymap;
    xkb_keycode_t m_key;
    std::unique_ptr<xkb_state, void (*)(xkb_state*)> m_state;
};

/// "" for a symbol that stands for none that shortcuts have.
std::string characterOf(xkb_keysym_t symbol) {
    const char32_t character = xkb_keysym_to_utf32(symbol);
    constexpr char32_t firstPrintable = 0x20;
    constexpr char32_t del = 0x7f;
    if (character < firstPrintable || character == del || unicode::isWhitespace(character))
        return {};
    return unicode::encoded(character);
}

/// Whether the symbol is a character of Latin-1, as those are that toolkits look no further than.
bool isLatin(xkb_keysym_t symbol) {
    constexpr char32_t lastLatin = 0xff;
    return !characterOf(symbol).empty() && xkb_keysym_to_utf32(symbol) <= lastLatin;
}

/// The layout whose character counts, beginning with the one in effect.
xkb_layout_index_t countedLayout(const KeySymbols& symbols, xkb_layout_index_t count) {
    const xkb_layout_index_t inEffect = symbols.layoutInEffect();
    if (isLatin(symbols.in(inEffect)))
        return inEffect;
    for (xkb_layout_index_t layout = 0; layout < count; ++layout) {
        if (isLatin(symbols.in(layout)))
            return layout;
    }
    return inEffect;
}

std::string printOf(xkb_keysym_t symbol) {
    std::string accent = accentOfDeadKey(symbol);
    return accent.empty() ? characterOf(symbol) : accent;
}

/// As `countedLayout`; a dead key is not looked past.
xkb_layout_index_t printedLayout(const KeySymbols& symbols, xkb_layout_index_t count) {
    const xkb_layout_index_t inEffect = symbols.layoutInEffect();
    return accentOfDeadKey(symbols.in(inEffect)).empty() ? countedLayout(symbols, count) : inEffect;
}

std::optional<KeyStroke> namedStroke(xkb_keysym_t symbol, Modifiers modifiers) {
    const auto key = specialKeyOfSymbol(symbol);
    // Shift makes a symbol of its own of Tab.
    const auto code = key ? KeyCodes::of(key == SpecialKey::backTab ? SpecialKey::tab : *key) : std::nullopt;
    if (!code)
        return std::nullopt;
    return KeyStroke{.characters = {}, .keyCode = *code, .modifiers = modifiers};
}

} // namespace

std::optional<KeyStroke> Keymap::stroke(std::uint32_t key, const KeyState& state) const {
    const xkb_layout_index_t count = xkb_keymap_num_layouts_for_key(m_keymap.get(), key);
    if (count == 0)
        return std::nullopt;
    const KeySymbols symbols(m_keymap.get(), key, state.choosers, state.group);
    const KeySymbols unshifted(m_keymap.get(), key, state.choosers & ~shiftMask, state.group);
    if (auto named = namedStroke(symbols.in(symbols.layoutInEffect()), state.modifiers))
        return named;
    const xkb_layout_index_t layout = countedLayout(symbols, count);
    std::string character = characterOf(symbols.in(layout));
    if (character.empty()) // such as a space that ⇧ makes a hard one
        return namedStroke(unshifted.in(layout), state.modifiers);
    const auto code = KeyCodes::ofCharacter(unicode::toUpper(characterOf(unshifted.in(layout))));
    return KeyStroke{
        .characters = std::move(character),
        .keyCode = code.value_or(KeyCodes::isoSection),
        .modifiers = state.modifiers};
}

KeyPrint Keymap::print(std::uint32_t key, std::uint32_t group) const {
    const xkb_layout_index_t count = xkb_keymap_num_layouts_for_key(m_keymap.get(), key);
    if (count == 0)
        return {};
    const KeySymbols plain(m_keymap.get(), key, 0, group);
    const KeySymbols shifted(m_keymap.get(), key, shiftMask, group);
    return {
        .plain = printOf(plain.in(printedLayout(plain, count))),
        .shifted = printOf(shifted.in(printedLayout(shifted, count)))};
}

std::size_t Keymap::layoutCount() const {
    return xkb_keymap_num_layouts(m_keymap.get());
}

} // namespace quillon
