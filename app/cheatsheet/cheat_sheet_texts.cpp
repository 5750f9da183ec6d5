#include "cheat_sheet_texts.h"

#include <quillon/app/languages/shown_numbers.h>
#include <quillon/app/views/components/text.h>
#include <quillon/kit/cheatsheet/cheat_sheet.h>
#include <quillon/kit/shortcut/modifiers.h>

#include <QCoreApplication>

namespace quillon::CheatSheetTexts {

QString documentTitle(const QString& appName) {
    return QCoreApplication::translate("CheatSheet", "%1 Shortcuts").arg(appName).trimmed();
}

QString shortcuts(qint64 count) {
    return QCoreApplication::translate("CheatSheet", "%1 shortcuts", nullptr, pluralForm(count)).arg(count);
}

QString legend() {
    return QCoreApplication::translate("CheatSheet", "%1 Command  %2 Option  %3 Control  %4 Shift")
        .arg(
            text(Modifiers::command.glyphs()), text(Modifiers::option.glyphs()),
            text(Modifiers::control.glyphs()), text(Modifiers::shift.glyphs()));
}

QString heading(const QString& name) {
    return name == text(CheatSheet::pinnedHeading) ? QCoreApplication::translate("CheatSheet", "Pinned")
                                                   : name;
}

QString continued(const QString& name) {
    return QCoreApplication::translate("CheatSheet", "%1 (continued)").arg(name);
}

QString madeWith() {
    return QCoreApplication::translate("CheatSheet", "Made with Quillon");
}

QString page(int number, int count) {
    return QCoreApplication::translate("CheatSheet", "Page %1 of %2")
        .arg(QString::number(number), QString::number(count));
}

QString cannotMake() {
    return QCoreApplication::translate("CheatSheet", "The PDF document cannot be written.");
}

QString cannotWrite(const QString& file, const QString& reason) {
    return QCoreApplication::translate("CheatSheet", "“%1” cannot be written: %2.").arg(file, reason);
}

QString nothingToPrint() {
    return QCoreApplication::translate("CheatSheet", "There are no shortcuts to print.");
}

QString cannotPrint() {
    return QCoreApplication::translate(
        "CheatSheet", "The printer does not take the pages. Check that it is set up and on.");
}

} // namespace quillon::CheatSheetTexts
