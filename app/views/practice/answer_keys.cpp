#include "answer_keys.h"

#include <quillon/app/views/components/text.h>
#include <quillon/kit/shortcut/key_code.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace quillon {

namespace {

struct NamedKey {
    int qtKey;
    SpecialKey key;
};

constexpr std::array namedKeys{
    NamedKey{Qt::Key_Return, SpecialKey::returnKey},
    NamedKey{Qt::Key_Enter, SpecialKey::enter},
    NamedKey{Qt::Key_Tab, SpecialKey::tab},
    NamedKey{Qt::Key_Backtab, SpecialKey::tab},
    NamedKey{Qt::Key_Space, SpecialKey::space},
    NamedKey{Qt::Key_Backspace, SpecialKey::delete_},
    NamedKey{Qt::Key_Delete, SpecialKey::forwardDelete},
    NamedKey{Qt::Key_Escape, SpecialKey::escape},
    NamedKey{Qt::Key_Clear, SpecialKey::clear},
    NamedKey{Qt::Key_Left, SpecialKey::left},
    NamedKey{Qt::Key_Right, SpecialKey::right},
    NamedKey{Qt::Key_Up, SpecialKey::up},
    NamedKey{Qt::Key_Down, SpecialKey::down},
    NamedKey{Qt::Key_PageUp, SpecialKey::pageUp},
    NamedKey{Qt::Key_PageDown, SpecialKey::pageDown},
    NamedKey{Qt::Key_Home, SpecialKey::home},
    NamedKey{Qt::Key_End, SpecialKey::end},
    NamedKey{Qt::Key_Help, SpecialKey::help},
};

/// What the keys of an ANSI keyboard give with ⇧, and what without.
constexpr std::u16string_view shiftedSymbols = u"~!@#$%^&*()_+{}|:\"<>?";
constexpr std::u16string_view plainSymbols = u"`1234567890-=[]\\;',./";
static_assert(shiftedSymbols.size() == plainSymbols.size());

std::optional<SpecialKey> specialKey(int qtKey) {
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F19)
        return static_cast<SpecialKey>(static_cast<int>(SpecialKey::f1) + qtKey - Qt::Key_F1);
    const auto named = std::ranges::find(namedKeys, qtKey, &NamedKey::qtKey);
    return named == namedKeys.end() ? std::nullopt : std::optional(named->key);
}

Modifiers heldWith(Qt::KeyboardModifiers held) {
    Modifiers modifiers;
    if (held & Qt::ControlModifier)
        modifiers.insert(Modifiers::control);
    if (held & Qt::AltModifier)
        modifiers.insert(Modifiers::option);
    if (held & Qt::ShiftModifier)
        modifiers.insert(Modifiers::shift);
    if (held & Qt::MetaModifier)
        modifiers.insert(Modifiers::command);
    return modifiers;
}

/// Whether the key, alone or with ⇧, works a window.
bool worksWindow(SpecialKey key) {
    constexpr std::array keys{SpecialKey::tab,   SpecialKey::returnKey, SpecialKey::enter,
                              SpecialKey::space, SpecialKey::escape,    SpecialKey::left,
                              SpecialKey::right, SpecialKey::up,        SpecialKey::down};
    return std::ranges::find(keys, key) != keys.end();
}

AnswerKeys named(SpecialKey key, Modifiers held) {
    return {
        .stroke =
            {.characters = {},
             .keyCode = KeyCodes::of(key).value_or(KeyCodes::isoSection),
             .modifiers = held},
        .shortcut = {held, Key::special(key)}};
}

AnswerKeys printed(QChar character, Modifiers held) {
    const std::size_t shifted = shiftedSymbols.find(character.unicode());
    const QChar plain = shifted == shiftedSymbols.npos ? character : QChar(plainSymbols[shifted]);
    const std::string glyph = utf8(QString(character.toUpper()));
    return {
        .stroke =
            {.characters = glyph,
             .keyCode = KeyCodes::ofCharacter(utf8(QString(plain.toUpper()))).value_or(KeyCodes::isoSection),
             .modifiers = held},
        .shortcut = {held, Key::character(glyph)}};
}

} // namespace

std::optional<AnswerKeys> answerKeys(const QKeyEvent& press) {
    const Modifiers held = heldWith(press.modifiers());
    if (const auto special = specialKey(press.key())) {
        const bool isCommand = !held.subtracting(Modifiers::shift).isEmpty();
        return !isCommand && worksWindow(*special) ? std::nullopt : std::optional(named(*special, held));
    }
    // Qt numbers the keys of characters by these; modifiers, dead and media keys come after all of them.
    if (press.key() <= Qt::Key_Space || press.key() >= 0x10000)
        return std::nullopt;
    const QChar character(static_cast<char16_t>(press.key()));
    return character.isPrint() ? std::optional(printed(character, held)) : std::nullopt;
}

} // namespace quillon
