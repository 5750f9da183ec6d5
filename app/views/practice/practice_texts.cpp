#include "practice_texts.h"

#include <QCoreApplication>

namespace quillon::PracticeTexts {

QString title() {
    return QCoreApplication::translate("Practice", "Practice");
}

QString chooseApp() {
    return QCoreApplication::translate("Practice", "App to practise");
}

QString pressNewRound() {
    return QCoreApplication::translate("Practice", "Press New Round.");
}

QString newRound() {
    return QCoreApplication::translate("Practice", "New Round");
}

QString nothingToAsk(const QString& appName) {
    return QCoreApplication::translate("Practice", "%1 has no shortcuts to practise.").arg(appName);
}

QString progress(std::size_t number, std::size_t length) {
    return QCoreApplication::translate("Practice", "%1 of %2")
        .arg(QString::number(number), QString::number(length));
}

QString pressShortcut() {
    return QCoreApplication::translate("Practice", "Press the shortcut");
}

QString showAnswer() {
    return QCoreApplication::translate("Practice", "Show Answer");
}

QString right() {
    return QCoreApplication::translate("Practice", "Right");
}

QString youPressed(const QString& keys) {
    return QCoreApplication::translate("Practice", "You pressed %1").arg(keys);
}

QString next() {
    return QCoreApplication::translate("Practice", "Next");
}

QString seeResults() {
    return QCoreApplication::translate("Practice", "See Results");
}

QString score(std::size_t right, std::size_t length) {
    return QCoreApplication::translate("Practice", "%1 of %2 right")
        .arg(QString::number(right), QString::number(length));
}

QString comeUpMore() {
    return QCoreApplication::translate("Practice", "These come up more next time:");
}

QString cleanRound() {
    return QCoreApplication::translate(
        "Practice", "A clean round. The next one leans on whatever you click next.");
}

QString anotherRound() {
    return QCoreApplication::translate("Practice", "Another Round");
}

QString everyKeyComesHere() {
    return QCoreApplication::translate(
        "Practice", "Every key comes here while a question waits. Hold Esc to let go.");
}

QString desktopHasItsKeys() {
    return QCoreApplication::translate(
        "Practice", "The keyboard is free: your desktop’s own keys work again.");
}

QString keysAreNotTold() {
    return QCoreApplication::translate(
        "Practice", "This desktop does not tell Quillon which keys are pressed.");
}

QString keyboard() {
    return QCoreApplication::translate("Practice", "Keyboard");
}

QString keyboardWith(const QString& keys) {
    return QCoreApplication::translate("Practice", "Keyboard, lit: %1").arg(keys);
}

QString readQuestion(const QString& command, const QString& place, const QString& state) {
    return QCoreApplication::translate("Practice", "%1, in %2. %3").arg(command, place, state);
}

QString readVerdict(const QString& verdict, const QString& keys) {
    return QCoreApplication::translate("Practice", "%1. The shortcut is %2.").arg(verdict, keys);
}

QString noApps() {
    return QCoreApplication::translate("Practice", "No apps to practise yet");
}

QString noAppsBody(const QString& trigger) {
    return QCoreApplication::translate(
               "Practice", "Hold %1 in an app first, so Quillon can read its shortcuts.")
        .arg(trigger);
}

} // namespace quillon::PracticeTexts
