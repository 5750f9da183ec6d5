#include "key_equivalents.h"

#include <quillon/kit/base/unicode.h>
#include <quillon/kit/shortcut/ax_of.h>

#include <QKeySequence>
#include <QString>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace quillon::atspi {
namespace {

/// How many sequences of a list are looked at. Applications give a command two or three.
constexpr int mostSequences = 8;

/// Whether the binding is the item's mnemonic: nothing but Alt and one character of the title.
bool isMnemonic(std::string_view text, std::string_view title) {
    constexpr std::string_view alt = "Alt+";
    if (!text.starts_with(alt))
        return false;
    text.remove_prefix(alt.size());
    return unicode::onlyScalar(text).has_value() && title.find(text) != std::string_view::npos;
}

/// Takes the first sequence off a list joined by ";". A ";" right after a "+" or at the start of a sequence
/// is a key: "Ctrl+;;Ctrl+X" holds two sequences. That "+" joins only when it is not the key itself:
/// "Ctrl++".
std::string_view takeSequence(std::string_view& list) {
    bool keyExpected = true;
    std::size_t end = 0;
    for (; end < list.size(); ++end) {
        const char c = list[end];
        if (c == ';' && !keyExpected)
            break;
        const bool joins = c == '+' && !keyExpected;
        const bool beginsNextStroke = c == ' ' && end > 0 && list[end - 1] == ',';
        keyExpected = joins || beginsNextStroke;
    }
    const std::string_view sequence = list.substr(0, end);
    list.remove_prefix(std::min(end + 1, list.size()));
    return sequence;
}

std::optional<SpecialKey> specialKeyOf(Qt::Key key) {
    if (key >= Qt::Key_F1 && key <= Qt::Key_F19)
        return static_cast<SpecialKey>(static_cast<int>(SpecialKey::f1) + key - Qt::Key_F1);
    switch (key) {
    case Qt::Key_Return: return SpecialKey::returnKey;
    case Qt::Key_Enter: return SpecialKey::enter;
    case Qt::Key_Tab: return SpecialKey::tab;
    case Qt::Key_Backtab: return SpecialKey::backTab;
    case Qt::Key_Space: return SpecialKey::space;
    case Qt::Key_Backspace: return SpecialKey::delete_;
    case Qt::Key_Delete: return SpecialKey::forwardDelete;
    case Qt::Key_Escape: return SpecialKey::escape;
    case Qt::Key_Clear: return SpecialKey::clear;
    case Qt::Key_Left: return SpecialKey::left;
    case Qt::Key_Right: return SpecialKey::right;
    case Qt::Key_Up: return SpecialKey::up;
    case Qt::Key_Down: return SpecialKey::down;
    case Qt::Key_PageUp: return SpecialKey::pageUp;
    case Qt::Key_PageDown: return SpecialKey::pageDown;
    case Qt::Key_Home: return SpecialKey::home;
    case Qt::Key_End: return SpecialKey::end;
    case Qt::Key_Help: return SpecialKey::help;
    case Qt::Key_Eject: return SpecialKey::eject;
    default: return std::nullopt;
    }
}

Modifiers modifiersOf(Qt::KeyboardModifiers held) {
    static const std::array<std::pair<Qt::KeyboardModifier, Modifiers>, 4> table{{
        {Qt::ControlModifier, Modifiers::control},
        {Qt::AltModifier, Modifiers::option},
        {Qt::ShiftModifier, Modifiers::shift},
        {Qt::MetaModifier, Modifiers::command},
    }};
    Modifiers modifiers;
    for (const auto& [qtModifier, modifier] : table)
        if (held.testFlag(qtModifier))
            modifiers.insert(modifier);
    return modifiers;
}

AxKeyEquivalent sequenceEquivalent(std::string_view text) {
    const QString portable = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    const QKeySequence sequence = QKeySequence::fromString(portable, QKeySequence::PortableText);
    if (sequence.count() != 1)
        return {};
    const QKeyCombination stroke = sequence[0];
    const Modifiers modifiers = modifiersOf(stroke.keyboardModifiers());
    if (const auto special = specialKeyOf(stroke.key()))
        return axOf(*special, modifiers);
    constexpr int firstNamedKey = 0x01000000; // below, a Qt::Key is the character that it types
    if (stroke.key() >= firstNamedKey)
        return {};
    return axOfCharacter(static_cast<char32_t>(stroke.key()), modifiers);
}

} // namespace

AxKeyEquivalent qtKeyEquivalent(std::string_view text, std::string_view title) {
    if (isMnemonic(text, title))
        return {};
    for (int tried = 0; tried < mostSequences && !text.empty(); ++tried) {
        const AxKeyEquivalent equivalent = sequenceEquivalent(takeSequence(text));
        if (equivalent.modifiers)
            return equivalent;
    }
    return {};
}

} // namespace quillon::atspi
