#include "scenes.h"

#include <quillon/app/views/library/app_list.h>
#include <quillon/app/views/library/library_detail.h>
#include <quillon/app/views/library/library_view.h>
#include <quillon/kit/menu/sample_menus.h>
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

Scene library(QString name, Prepare prepare, Use use = {}) {
    auto show = [prepare = std::move(prepare), use = std::move(use)](ViewDesk& desk) {
        prepare(desk);
        LibraryView& view = keep(
            desk, std::make_unique<LibraryView>(desk.model, desk.themes, desk.icons, desk.desktop.clock));
        view.resize(820, 560);
        view.show();
        makeActive(view);
        if (use)
            use(view);
        return &view;
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
    desk.showSample();
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

Use search(const QString& query) {
    return [query](LibraryView& view) {
        chooseLast(view);
        auto* const field = view.findChild<QLineEdit*>();
        field->setFocus();
        QTest::keyClicks(field, query);
    };
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
        library(u"library-few-focus"_s, few, toDetail),
        library(u"library-many"_s, many, chooseFirst),
        library(u"library-long-texts"_s, longTexts, chooseFirst),
        library(u"library-search"_s, few, search(u"copy"_s)),
        library(u"library-no-match"_s, few, search(u"xyz"_s)),
    };
}

} // namespace quillon
