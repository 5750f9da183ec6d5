#pragma once

#include <QString>

#include <cstddef>

namespace quillon {

/// The sentences of the practice window, whole and ready to be translated.
namespace PracticeTexts {

QString title();
/// What screen readers call the choice of an application.
QString chooseApp();

QString pressNewRound();
QString newRound();
/// For an application all of whose shortcuts belong to the system or have no ⌃, ⌥ or ⌘.
QString nothingToAsk(const QString& appName);

/// "3 of 10"
QString progress(std::size_t number, std::size_t length);
QString pressShortcut();
QString showAnswer();
QString right();
/// "You pressed ⌃X"
QString youPressed(const QString& keys);
QString next();
QString seeResults();

/// "7 of 10 right"
QString score(std::size_t right, std::size_t length);
QString comeUpMore();
QString cleanRound();
QString anotherRound();

/// While every key press comes to the window, and how to change that.
QString everyKeyComesHere();
/// After the user let go of the keyboard.
QString desktopHasItsKeys();
/// Where the desktop does not tell which keys are pressed.
QString keysAreNotTold();

/// What screen readers call the picture of the keyboard: before an answer, and with the keys that are lit.
QString keyboard();
QString keyboardWith(const QString& keys);
/// A question as it is read aloud: the command, where it is found and what is to be done.
QString readQuestion(const QString& command, const QString& place, const QString& state);
/// "You pressed ⌃X. The shortcut is ⌃S."
QString readVerdict(const QString& verdict, const QString& keys);

QString noApps();
QString noAppsBody(const QString& trigger);

} // namespace PracticeTexts

} // namespace quillon
