#include "key_names.h"

#include <quillon/kit/base/unicode.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace quillon {

namespace {

using enum SpecialKey;

constexpr std::array<const char*, modifiersInOrder.size()> modifierTexts{
    "Ctrl", "Alt", "Shift", "Super|Windows|Win|Meta"};

struct KeyText {
    SpecialKey key;
    const char* names;
};

/// As on a keyboard with a number pad. Its arrows are printed as arrows.
constexpr std::array specialTexts{
    KeyText{returnKey, "Enter|Return"},
    KeyText{enter, "Num Enter|Enter|Keypad Enter"},
    KeyText{tab, "Tab"},
    KeyText{space, "Space|Spacebar"},
    KeyText{delete_, "Backspace"},
    KeyText{forwardDelete, "Delete|Del"},
    KeyText{escape, "Esc|Escape"},
    KeyText{clear, "Clear"},
    KeyText{left, "←|Left|Left Arrow"},
    KeyText{right, "→|Right|Right Arrow"},
    KeyText{up, "↑|Up|Up Arrow"},
    KeyText{down, "↓|Down|Down Arrow"},
    KeyText{pageUp, "Page Up|PgUp"},
    KeyText{pageDown, "Page Down|PgDn|PgDown"},
    KeyText{home, "Home"},
    KeyText{end, "End"},
    KeyText{help, "Help"},
    KeyText{eject, "Eject"},
};

struct PunctuationText {
    const char* character;
    const char* names;
};

constexpr std::array punctuationTexts{
    PunctuationText{",", "Comma"},         PunctuationText{".", "Period"},
    PunctuationText{"/", "Slash"},         PunctuationText{";", "Semicolon"},
    PunctuationText{"'", "Quote"},         PunctuationText{"[", "Left Bracket"},
    PunctuationText{"]", "Right Bracket"}, PunctuationText{"\\", "Backslash"},
    PunctuationText{"-", "Minus"},         PunctuationText{"=", "Equals"},
    PunctuationText{"`", "Grave"},         PunctuationText{"+", "Plus"},
    PunctuationText{"?", "Question Mark"},
};

bool isWord(std::string_view name) {
    return unicode::isLetter(name.substr(0, unicode::firstScalarLength(name)));
}

/// On a PC back tab is tab with shift.
Shortcut asPressed(const Shortcut& shortcut) {
    if (shortcut.key != Key::special(backTab))
        return shortcut;
    return {shortcut.modifiers | Modifiers::shift, Key::special(tab)};
}

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts)
        text.append(text.empty() ? "" : " ").append(part);
    return text;
}

} // namespace

KeyName KeyName::of(std::string_view names) {
    const std::size_t end = names.find('|');
    KeyName name{std::string(names.substr(0, end)), {}};
    while (!names.empty() && names.find('|') != std::string_view::npos) {
        names.remove_prefix(names.find('|') + 1);
        if (const std::string_view next = names.substr(0, names.find('|')); !next.empty())
            name.others.emplace_back(next);
    }
    return name;
}

const std::string& KeyName::spoken() const {
    if (isWord(shown))
        return shown;
    const auto word = std::ranges::find_if(others, isWord);
    return word == others.end() ? shown : *word;
}

const KeyNames& KeyNames::english() {
    static const KeyNames names = translated([](const char* text) { return std::string(text); });
    return names;
}

KeyNames KeyNames::translated(const Translate& translate) {
    KeyNames names;
    std::ranges::transform(modifierTexts, names.m_modifiers.begin(), [&](const char* text) {
        return KeyName::of(translate(text));
    });
    for (const KeyText& row : specialTexts)
        names.m_special[row.key] = KeyName::of(translate(row.names));
    for (const PunctuationText& row : punctuationTexts)
        names.m_punctuation[row.character] = {row.character, {KeyName::of(translate(row.names)).shown}};
    return names;
}

std::vector<const char*> KeyNames::englishTexts() {
    std::vector<const char*> texts(modifierTexts.begin(), modifierTexts.end());
    std::ranges::transform(specialTexts, std::back_inserter(texts), &KeyText::names);
    std::ranges::transform(punctuationTexts, std::back_inserter(texts), &PunctuationText::names);
    return texts;
}

const KeyName& KeyNames::nameOf(Modifiers modifier) const {
    const auto place = std::ranges::find(modifiersInOrder, modifier);
    return m_modifiers.at(static_cast<std::size_t>(place - modifiersInOrder.begin()));
}

KeyName KeyNames::nameOf(SpecialKey key) const {
    const auto row = m_special.find(key == backTab ? tab : key);
    return row == m_special.end() ? KeyName{std::string(glyph(key)), {}} : row->second;
}

KeyName KeyNames::nameOf(const std::string& character) const {
    const auto row = m_punctuation.find(character);
    return row == m_punctuation.end() ? KeyName{character, {}} : row->second;
}

KeyName KeyNames::nameOf(const Key& key) const {
    const SpecialKey* const special = key.asSpecial();
    return special ? nameOf(*special) : nameOf(*key.asCharacter());
}

std::vector<std::string> capsOf(const Shortcut& shortcut, const KeyNames* names) {
    const Shortcut shown = names ? asPressed(shortcut) : shortcut;
    std::vector<std::string> caps;
    for (const Modifiers modifier : modifiersInOrder) {
        if (shown.modifiers.contains(modifier))
            caps.push_back(names ? names->nameOf(modifier).shown : modifier.glyphs());
    }
    caps.push_back(names ? names->nameOf(shown.key).shown : std::string(shown.key.glyph()));
    return caps;
}

std::string displayWith(const Shortcut& shortcut, const KeyNames* names) {
    return names ? joined(capsOf(shortcut, names)) : shortcut.display();
}

std::string spokenWith(const Shortcut& shortcut, const KeyNames* names) {
    if (!names)
        return shortcut.spoken();
    const Shortcut read = asPressed(shortcut);
    std::vector<std::string> words;
    for (const Modifiers modifier : modifiersInOrder) {
        if (read.modifiers.contains(modifier))
            words.push_back(names->nameOf(modifier).spoken());
    }
    words.push_back(names->nameOf(read.key).spoken());
    return joined(words);
}

} // namespace quillon
