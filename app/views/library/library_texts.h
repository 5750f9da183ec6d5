#pragma once

#include <quillon/kit/base/checked.h>
#include <quillon/kit/base/instant.h>

#include <QString>

namespace quillon {

/// The sentences of the Library, whole and ready to be translated.
namespace LibraryTexts {

/// In the empty search field.
QString searchPrompt();
/// What screen readers call the two lists.
QString appsName();
QString shortcutsName(const QString& appName);

/// "59 shortcuts"
QString shortcuts(qint64 count);
/// How long ago something was: "now", "3 hours ago", "yesterday". What lies ahead is now.
QString ago(Seconds age);
/// "59 shortcuts · menus read 3 hours ago"; `ago` is the last part.
QString statistics(qint64 count, const QString& ago);
/// "14 menu clicks"
QString menuClicks(Count clicks);
/// "3 shortcuts typed"
QString shortcutsTyped(Count typed);
/// Over the commands that are clicked most.
QString learnNext();
/// "14 clicked · 3 typed"
QString counts(Count clicked, Count typed);

/// What the buttons of a command do.
QString pinHelp();
QString unpinHelp();
QString noteHelp();
QString nudgeHelp();
/// What screen readers call them; `title` is that of the command.
QString pin(const QString& title);
QString unpin(const QString& title);
QString noteFor(const QString& title);
QString nudgesOff(const QString& title);
QString nudgesOn(const QString& title);
/// What screen readers say of a command that is so.
QString isPinned();
QString isMuted();

/// The note editor.
QString notePlaceholder();
QString cancel();
QString save();

/// The toolbar: its buttons, and what they do.
QString practice();
QString practiceHelp();
QString cheatSheet();
QString cheatSheetHelp();
QString saveAsPdf();
QString print();
QString copyAsMarkdown();
/// The kind of file that a cheat sheet is saved as; `pattern` is "*.pdf".
QString pdfDocuments(const QString& pattern);
/// Over what went wrong with a cheat sheet.
QString exportFailed();
QString ok();

/// Before an application was read.
QString noAppsTitle();
/// What to do about it; `triggerGlyph` is that of the trigger key.
QString noAppsText(const QString& triggerGlyph);
/// Before an application was chosen.
QString pickAnApp();

} // namespace LibraryTexts

} // namespace quillon
