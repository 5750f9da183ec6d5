#pragma once

#include <quillon/app/platform/fake/fake_cheat_sheet_exports.h>
#include <quillon/app/views/library/app_list.h>
#include <quillon/app/views/library/library_detail.h>
#include <quillon/app/views/library/library_view.h>
#include <quillon/tests/app/views/support/read_app.h>
#include <quillon/tests/app/views/support/view_desk.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <string>
#include <utility>
#include <vector>

namespace quillon {

/// An application whose File menu has these commands.
inline AppSheet sheetOf(const std::string& name, std::vector<std::string> commands) {
    AppSheet sheet{.bundleID = "org.example." + name, .appName = name, .entries = {}};
    for (std::string& command : commands)
        sheet.entries.push_back(
            {{"File", std::move(command)}, {Modifiers::control, Key::character("S")}, true});
    return sheet;
}

/// The Library over a made-up desktop.
class LibraryTest : public testing::Test {
  protected:
    LibraryTest() { view.show(); }

    LibraryDetail& detail() const { return *view.findChild<LibraryDetail*>(); }
    AppList& apps() const { return *view.findChild<AppList*>(); }
    QLineEdit& field() const { return *view.findChild<QLineEdit*>(); }
    static std::vector<std::string> rows(const QListView& shown) {
        std::vector<std::string> rows;
        for (int row = 0; row < shown.model()->rowCount(); ++row)
            rows.push_back(shown.model()->index(row, 0).data().toString().toStdString());
        return rows;
    }
    std::vector<std::string> visibleTexts() const {
        std::vector<std::string> texts;
        for (const QLabel* const label : view.findChildren<QLabel*>())
            if (label->isVisible())
                texts.push_back(label->text().toStdString());
        return texts;
    }
    /// The row of a command in its menu.
    int rowOf(const std::string& title) const {
        const std::vector<std::string> all = rows(detail());
        for (int row = static_cast<int>(all.size()) - 1; row >= 0; --row)
            if (all[static_cast<std::size_t>(row)] == title)
                return row;
        return -1;
    }
    void click(int row, RowButton button) {
        QTest::mouseClick(detail().viewport(), Qt::LeftButton, {}, detail().buttonRect(row, button).center());
    }
    Annotation said(const std::string& app, const std::string& title) const {
        return desk.model.annotations().get("org.example." + app, "File › " + title);
    }
    void choose(int row) { apps().setCurrentIndex(apps().model()->index(row, 0)); }
    void settle() { QCoreApplication::processEvents(); }

    ViewDesk desk;
    FakeCheatSheetExports exports;
    LibraryView view{desk.model, desk.themes, {desk.icons, desk.desktop.clock, exports}};
};

} // namespace quillon
