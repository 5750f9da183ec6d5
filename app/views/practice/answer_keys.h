#pragma once

#include <quillon/kit/shortcut/key_stroke.h>
#include <quillon/kit/shortcut/shortcut.h>

#include <QKeyEvent>

#include <optional>

namespace quillon {

/// A key press as the answer to a practice question.
struct AnswerKeys {
    KeyStroke stroke;
    Shortcut shortcut; ///< what the press is shown as
};

/// The press as an answer; absent for one that is none: of a modifier, a dead key, a key without a character
/// or a name, and, without ⌃, ⌥ or ⌘, of a key that works the window's buttons (Tab, Return, Space, Esc and
/// the arrows). Symbols that are typed with ⇧ are taken for those of an ANSI keyboard.
std::optional<AnswerKeys> answerKeys(const QKeyEvent& press);

} // namespace quillon
