#include "scenes.h"

#include <quillon/app/core/local_day.h>
#include <quillon/app/platform/fake/fake_cheat_sheet_exports.h>
#include <quillon/app/views/components/alert.h>
#include <quillon/app/views/library/app_list.h>
#include <quillon/app/views/library/library_detail.h>
#include <quillon/app/views/library/library_view.h>
#include <quillon/app/views/library/note_editor.h>
#include <quillon/app/views/library/sheet_export.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/app/views/support/many_entries.h>
#include <quillon/tests/app/views/support/read_app.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <QLineEdit>
#include <QListView>
#include <QTest>

#include <string>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Prepare = std::function<void(ViewDesk&)>;
using Use = std::function<void(LibraryView&)>;
/// The part of the Library that the picture is of.
using Part = std::function<QWidget*(LibraryView&)>;

struct Shown {
    explicit Shown(ViewDesk& desk)
        : view(desk.model, desk.themes, LibraryView::Needs{desk.icons, desk.desktop.clock, exports}) {}

    FakeCheatSheetExports exports;
    LibraryView view;
};

Scene library(QString name, Prepare prepare, Use use = {}, Part part = {}) {
    auto show = [=](ViewDesk& desk) -> QWidget* {
        prepare(desk);
        Shown& shown = keep(desk, std::make_unique<Shown>(desk));
        shown.exports.pdfFailure = ExportFailure{"The disk is full."};
        shown.view.resize(880, 580);
        shown.view.show();
        makeActive(shown.view);
        if (use)
            use(shown.view);
        return part ? part(shown.view) : &shown.view;
    };
    return {std::move(name), std::move(show)};
}

/// Names as long and as short as applications have them.
void showApps(ViewDesk& desk, int count) {
    for (int number = 0; number < count; ++number) {
        AppSheet sheet = sheetOfMany(static_cast<std::size_t>(3 + number % 70));
        sheet.bundleID = "org.example.app" + std::to_string(number);
        sheet.appName = number % 9 == 4 ? "Document Viewer for Very Long Names " + std::to_string(number)
                                        : "Application " + std::to_string(number);
        readApp(desk, sheet);
    }
}

void few(ViewDesk& desk) {
    showApps(desk, 3);
    readApp(desk, SampleMenus::sheet());
    desk.desktop.clock.advance(Seconds(3 * 3600));
    WeekSums weeks;
    const Day today = localDay(desk.desktop.clock.now());
    for (int back = 0; back < 9; ++back)
        weeks[weekName(today - std::chrono::weeks(back))] = {2 + back * 2, 26 - back * back / 3};
    desk.model.showSample(
        SampleMenus::sheet(), SampleMenus::usage(), SampleMenus::annotations(), std::move(weeks));
}

void many(ViewDesk& desk) {
    showApps(desk, 199);
    AppSheet sheet = sheetOfMany(2000);
    sheet.bundleID = "org.example.studio";
    sheet.appName = "A Studio";
    readApp(desk, sheet);
}

void longTexts(ViewDesk& desk) {
    AppSheet sheet = sheetOfLongTitles();
    readApp(desk, sheet);
    UsageRecords usage;
    usage[sheet.entries[0].id()].clicked = 12'345;
    usage[sheet.entries[1].id()].typed = 3;
    Annotations said;
    said[sheet.entries[0].id()].note =
        "Nimmt die Vorlage, die zuletzt in diesem Ordner benutzt wurde, und fragt vorher nach dem Namen des "
        "neuen Dokuments";
    said[sheet.entries[1].id()].note = "זוכר: שמור עותק לפני (Export) כל שינוי";
    said[sheet.entries[2].id()].note = "👩‍👩‍👧‍👦 family\tand\n\nfriends 🇩🇪";
    said[sheet.entries[3].id()] = {.pinned = true, .note = std::string(10'000, 'x'), .muted = true};
    desk.model.showSample(std::move(sheet), std::move(usage), std::move(said));
}

void chooseFirst(LibraryView& view) {
    QListView& apps = *view.findChild<AppList*>();
    apps.setFocus();
    apps.setCurrentIndex(apps.model()->index(0, 0));
}

void chooseLast(LibraryView& view) {
    QListView& apps = *view.findChild<AppList*>();
    apps.setCurrentIndex(apps.model()->index(apps.model()->rowCount() - 1, 0));
}

void scrollToTheFoot(LibraryView& view) {
    chooseLast(view);
    view.findChild<LibraryDetail*>()->scrollToBottom();
}

Use search(const QString& query) {
    return [query](LibraryView& view) {
        chooseLast(view);
        auto* const field = view.findChild<QLineEdit*>();
        field->setFocus();
        QTest::keyClicks(field, query);
    };
}

void goToNotes(LibraryView& view) {
    chooseLast(view);
    auto& detail = *view.findChild<LibraryDetail*>();
    for (int row = 0; row < detail.rows().rowCount(); ++row)
        if (!detail.rows().row(detail.rows().index(row)).note.isEmpty())
            detail.goTo(row, RowButton::note);
}

void editNote(LibraryView& view) {
    goToNotes(view);
    auto& detail = *view.findChild<LibraryDetail*>();
    detail.press(detail.currentIndex().row(), RowButton::note);
    makeActive(*view.findChild<NoteEditor*>());
}

void addNote(LibraryView& view) {
    chooseLast(view);
    auto& detail = *view.findChild<LibraryDetail*>();
    int last = detail.rows().rowCount() - 1;
    while (!detail.rows().hasButtons(detail.rows().index(last)))
        --last;
    detail.press(last, RowButton::note);
    makeActive(*view.findChild<NoteEditor*>());
}

void failToSave(LibraryView& view) {
    chooseLast(view);
    view.findChild<SheetExport*>()->saveAsPdf();
    makeActive(*view.findChild<Alert*>());
}

template <class Widget>
QWidget* child(LibraryView& view) {
    return view.findChild<Widget*>();
}

void readTheOtherWay(LibraryView& view) {
    view.setLayoutDirection(Qt::RightToLeft);
    goToNotes(view);
}

} // namespace

std::vector<Scene> libraryScenes() {
    const auto nothing = [](ViewDesk&) {};
    const auto toDetail = [](LibraryView& view) {
        chooseLast(view);
        view.findChild<LibraryDetail*>()->setFocus(Qt::TabFocusReason);
    };
    return {
        library(u"library-no-apps"_s, nothing),
        library(u"library-no-choice"_s, few),
        library(u"library-few"_s, few, chooseLast),
        library(u"library-learned"_s, few, scrollToTheFoot),
        library(u"library-few-focus"_s, few, toDetail),
        library(u"library-buttons"_s, few, goToNotes),
        library(u"library-right-to-left"_s, few, readTheOtherWay),
        library(u"library-note-editor"_s, few, editNote, child<NoteEditor>),
        library(u"library-note-empty"_s, few, addNote, child<NoteEditor>),
        library(u"library-note-long"_s, longTexts, editNote, child<NoteEditor>),
        library(u"library-alert"_s, few, failToSave, child<Alert>),
        library(u"library-many"_s, many, chooseFirst),
        library(u"library-long-texts"_s, longTexts, chooseFirst),
        library(u"library-search"_s, few, search(u"copy"_s)),
        library(u"library-no-match"_s, few, search(u"xyz"_s)),
    };
}

} // namespace quillon
