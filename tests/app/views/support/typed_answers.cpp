#include "typed_answers.h"

#include <quillon/kit/shortcut/key_code.h>

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <string>
#include <utility>
#include <vector>

namespace quillon {

namespace {

Modifiers modifiersOf(Qt::KeyboardModifiers held) {
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

void send(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers held) {
    QKeyEvent event(
        type, key, held, static_cast<quint32>(key), 0, FakeKeyReading::stateOf(modifiersOf(held)));
    if (QWidget* const focused = QApplication::focusWidget())
        QApplication::sendEvent(focused, &event);
}

} // namespace

void defineKeys(FakeKeyReading& keys) {
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        keys.define(
            static_cast<std::uint32_t>(letter),
            {.characters = std::string(1, letter), .keyCode = KeyCodes::isoSection});
    const std::vector<std::pair<Qt::Key, SpecialKey>> named{
        {Qt::Key_Tab, SpecialKey::tab},
        {Qt::Key_Return, SpecialKey::returnKey},
        {Qt::Key_Space, SpecialKey::space},
        {Qt::Key_Escape, SpecialKey::escape},
    };
    for (const auto& [key, special] : named)
        keys.define(
            static_cast<std::uint32_t>(key),
            {.characters = {}, .keyCode = KeyCodes::of(special).value_or(-1)});
}

void typeKey(Qt::Key key, Qt::KeyboardModifiers held) {
    send(QEvent::KeyPress, key, held);
    send(QEvent::KeyRelease, key, held);
}

} // namespace quillon
