#include "scenes.h"

#include <quillon/app/core/updates/release.h>
#include <quillon/app/core/updates/release_notes.h>
#include <quillon/app/views/updates/update_windows.h>

#include <QApplication>
#include <QDialog>

#include <memory>
#include <string>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

UpdateWindows& windowsOn(ViewDesk& desk) {
    return keep(
        desk, std::make_unique<UpdateWindows>(UpdateWindows::Needs{
                  .themes = desk.themes,
                  .foreground = desk.desktop.foreground,
                  .pages = desk.desktop.softwarePages,
                  .version = "0.1.0",
                  .dismissed = [](const std::string&) {}}));
}

/// The only dialogue on the screen.
QWidget* shownDialog() {
    for (QWidget* const widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && qobject_cast<QDialog*>(widget))
            return widget;
    return nullptr;
}

Scene message(QString name, UpdateNotice notice) {
    auto show = [notice](ViewDesk& desk) {
        desk.desktop.softwarePages.hasCentre = true;
        windowsOn(desk).tell(notice);
        return shownDialog();
    };
    return {std::move(name), std::move(show)};
}

Scene newerRelease(QString name, std::string notes) {
    auto show = [notes = std::move(notes)](ViewDesk& desk) {
        desk.desktop.softwarePages.hasCentre = true;
        windowsOn(desk).offer(
            {.version = *ReleaseVersion::fromText("0.2.0"),
             .shownVersion = "0.2.0",
             .notes = notes,
             .notesPage = "https://example.org/notes",
             .page = "https://example.org/download"},
            Occasion::asked);
        return shownDialog();
    };
    return {std::move(name), std::move(show)};
}

QString longNotes() {
    QString notes = u"<h2>Reading menus</h2>"_s;
    for (int number = 1; number <= 30; ++number)
        notes += u"<p>Applications that share their menus late are read <b>again</b> after a moment, so that "
                 "nothing is missing from their sheets.</p>"_s;
    return notes;
}

} // namespace

std::vector<Scene> updateScenes() {
    const QString notes =
        u"<h2>New in this release</h2><ul><li><b>Practice</b>: short rounds of the commands "
        "that you click</li><li>Notes are found by <code>quillon sheet --query</code></li>"
        "</ul><p>See <a href=\"https://example.org/changes\">all changes</a>.</p>"_s;
    return {
        message(u"update-up-to-date"_s, UpdateNotice::upToDate),
        message(u"update-unreachable"_s, UpdateNotice::unreachable),
        message(u"update-unreadable"_s, UpdateNotice::unreadable),
        message(u"update-with-system"_s, UpdateNotice::withSystem),
        newerRelease(u"update-newer"_s, ReleaseNotes::fromHtml(notes)),
        newerRelease(u"update-newer-long"_s, ReleaseNotes::fromHtml(longNotes())),
        newerRelease(u"update-newer-bare"_s, ""),
    };
}

} // namespace quillon
