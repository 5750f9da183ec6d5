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

QString noApps();
QString noAppsBody(const QString& trigger);

} // namespace PracticeTexts

} // namespace quillon
