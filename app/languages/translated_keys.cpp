#include "translated_keys.h"

#include <QCoreApplication>

#include <vector>

namespace quillon {

namespace {

/// What `KeyNames` asks for, where the tools for translators find it.
[[maybe_unused]] constexpr const char* texts[] = {
    //: Keys are named as they are printed on a keyboard of the language. Behind the name that is shown,
    //: parted
    //: by |, stand other names by which people may search for the key, in small or large letters.
    QT_TRANSLATE_NOOP("Keys", "Ctrl"),
    QT_TRANSLATE_NOOP("Keys", "Alt"),
    QT_TRANSLATE_NOOP("Keys", "Shift"),
    QT_TRANSLATE_NOOP("Keys", "Super|Windows|Win|Meta"),
    QT_TRANSLATE_NOOP("Keys", "Enter|Return"),
    QT_TRANSLATE_NOOP("Keys", "Num Enter|Enter|Keypad Enter"),
    QT_TRANSLATE_NOOP("Keys", "Tab"),
    QT_TRANSLATE_NOOP("Keys", "Space|Spacebar"),
    QT_TRANSLATE_NOOP("Keys", "Backspace"),
    QT_TRANSLATE_NOOP("Keys", "Delete|Del"),
    QT_TRANSLATE_NOOP("Keys", "Esc|Escape"),
    QT_TRANSLATE_NOOP("Keys", "Clear"),
    QT_TRANSLATE_NOOP("Keys", "←|Left|Left Arrow"),
    QT_TRANSLATE_NOOP("Keys", "→|Right|Right Arrow"),
    QT_TRANSLATE_NOOP("Keys", "↑|Up|Up Arrow"),
    QT_TRANSLATE_NOOP("Keys", "↓|Down|Down Arrow"),
    QT_TRANSLATE_NOOP("Keys", "Page Up|PgUp"),
    QT_TRANSLATE_NOOP("Keys", "Page Down|PgDn|PgDown"),
    QT_TRANSLATE_NOOP("Keys", "Home"),
    QT_TRANSLATE_NOOP("Keys", "End"),
    QT_TRANSLATE_NOOP("Keys", "Help"),
    QT_TRANSLATE_NOOP("Keys", "Eject"),
    QT_TRANSLATE_NOOP("Keys", "Comma"),
    QT_TRANSLATE_NOOP("Keys", "Period"),
    QT_TRANSLATE_NOOP("Keys", "Slash"),
    QT_TRANSLATE_NOOP("Keys", "Semicolon"),
    QT_TRANSLATE_NOOP("Keys", "Quote"),
    QT_TRANSLATE_NOOP("Keys", "Left Bracket"),
    QT_TRANSLATE_NOOP("Keys", "Right Bracket"),
    QT_TRANSLATE_NOOP("Keys", "Backslash"),
    QT_TRANSLATE_NOOP("Keys", "Minus"),
    QT_TRANSLATE_NOOP("Keys", "Equals"),
    QT_TRANSLATE_NOOP("Keys", "Grave"),
    QT_TRANSLATE_NOOP("Keys", "Plus"),
    QT_TRANSLATE_NOOP("Keys", "Question Mark"),
};

} // namespace

KeyNames translatedKeyNames() {
    return KeyNames::translated(
        [](const char* english) { return QCoreApplication::translate("Keys", english).toStdString(); });
}

std::optional<KeyNames> shownNames(KeyLabels labels) {
    return labels == KeyLabels::names ? std::optional(translatedKeyNames()) : std::nullopt;
}

KeyWords translatedKeyWords() {
    std::vector<KeyNames> languages{translatedKeyNames()};
    if (languages.front() != KeyNames::english())
        languages.push_back(KeyNames::english());
    return KeyWords(languages);
}

QString modifierLabel(Modifiers modifier, KeyLabels labels) {
    return QString::fromStdString(
        labels == KeyLabels::names ? translatedKeyNames().nameOf(modifier).shown : modifier.glyphs());
}

} // namespace quillon
