#pragma once

#include <QString>

/// What printed cheat sheets say, in the program's language.
namespace quillon::CheatSheetTexts {

/// Of the document of an application.
QString documentTitle(const QString& appName);
QString shortcuts(qint64 count);
/// What the signs of the modifiers are called.
QString legend();
/// The name of a group as it is shown.
QString heading(const QString& name);
/// Of a group that goes on from the column before.
QString continued(const QString& name);
QString madeWith();
QString page(int number, int count);

QString cannotMake();
/// `reason` is the system's.
QString cannotWrite(const QString& file, const QString& reason);
QString nothingToPrint();
QString cannotPrint();

} // namespace quillon::CheatSheetTexts
