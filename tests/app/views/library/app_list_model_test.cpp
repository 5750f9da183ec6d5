#include <quillon/app/views/library/app_list_model.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

SharedSheet sheet(const std::string& bundleID, const std::string& appName, int entries = 1) {
    AppSheet made{.bundleID = bundleID, .appName = appName, .entries = {}};
    for (int number = 0; number < entries; ++number)
        made.entries.push_back(
            {{"File", "Command " + std::to_string(number)}, {Modifiers::control, Key::character("S")}, true});
    return SharedSheet(std::move(made));
}

std::vector<std::string> names(const SharedSheets& sheets) {
    std::vector<std::string> names;
    for (const LibraryApp& app : libraryApps(sheets))
        names.push_back(app.name.toStdString());
    return names;
}

TEST(LibraryAppsTest, AreSortedByName) {
    SharedSheets sheets;
    sheets.emplace("a", sheet("a", "gimp"));
    sheets.emplace("b", sheet("b", "Geany"));
    sheets.emplace("c", sheet("c", "App 10"));
    sheets.emplace("d", sheet("d", "App 9"));
    EXPECT_THAT(names(sheets), ElementsAre("App 9", "App 10", "Geany", "gimp"));
}

TEST(LibraryAppsTest, OneWithoutANameIsCalledByItsIdentifier) {
    SharedSheets sheets;
    sheets.emplace("org.example.App", sheet("org.example.App", ""));
    EXPECT_THAT(names(sheets), ElementsAre("org.example.App"));
}

TEST(AppListModelTest, TellsNameAndNumber) {
    AppListModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    SharedSheets sheets;
    sheets.emplace("a", sheet("a", "Geany", 59));
    model.setApps(libraryApps(sheets));
    const QModelIndex only = model.indexOf("a");
    EXPECT_EQ(only.data().toString(), u"Geany"_s);
    EXPECT_EQ(only.data(AppListModel::captionRole).toString(), u"59 shortcuts"_s);
    EXPECT_EQ(only.data(Qt::AccessibleTextRole).toString(), u"Geany, 59 shortcuts"_s);
    EXPECT_FALSE(model.indexOf("b").isValid());
}

} // namespace
} // namespace quillon
