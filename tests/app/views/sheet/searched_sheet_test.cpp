#include <quillon/app/views/sheet/searched_sheet.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/app/views/support/printing.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class SearchedSheetTest : public testing::Test {
  protected:
    SearchedSheetTest() {
        annotations.apps[app] = SampleMenus::annotations();
        usage.apps[app] = SampleMenus::usage();
        update();
    }
    void update() { searched.update(sheet ? &*sheet : nullptr, annotations, usage); }
    QStringList found(std::string_view query) {
        QStringList titles;
        for (const std::size_t match : searched.matches(query))
            titles.append(searched.prepared()->entries[match].title);
        return titles;
    }

    const std::string app{SampleMenus::bundleID};
    std::optional<AppSheet> sheet = SampleMenus::sheet();
    AnnotationBook annotations;
    UsageBook usage;
    SearchedSheet searched;
};

TEST_F(SearchedSheetTest, FindsCommandsByTheirWordsKeysAndNotes) {
    EXPECT_EQ(found("").size(), 59);
    EXPECT_EQ(found("cmd -"), (QStringList{u"Smaller"_s, u"Zoom Out"_s}));
    EXPECT_EQ(found("exporting"), QStringList{u"Zoom to Fit"_s});
}

TEST_F(SearchedSheetTest, NamesTheCommandThatIsClickedMost) {
    ASSERT_NE(searched.mostClicked(), nullptr);
    EXPECT_EQ(searched.mostClicked()->title, u"Duplicate"_s);
    usage = {};
    usage.apps[app]["File › Vanished"].clicked = 9;
    searched.recordsMayDiffer();
    update();
    EXPECT_EQ(searched.mostClicked(), nullptr);
}

TEST_F(SearchedSheetTest, TheSameMenusReadAgainArePreparedOnce) {
    const auto before = searched.prepared();
    searched.matches("e");
    sheet->readAt = sheet->readAt + std::chrono::seconds(1000);
    searched.sheetMayDiffer();
    update();
    EXPECT_EQ(searched.prepared(), before);
    EXPECT_FALSE(searched.isSearchStale());
}

TEST_F(SearchedSheetTest, OtherMenusAreFoundAtOnce) {
    searched.matches("e");
    sheet->entries.erase(sheet->entries.begin() + 3, sheet->entries.end());
    searched.sheetMayDiffer();
    update();
    EXPECT_TRUE(searched.isSearchStale());
    EXPECT_EQ(found("").size(), 3);
    EXPECT_LE(found("e").size(), 3);
}

TEST_F(SearchedSheetTest, APinLeavesTheSearchAsItIsAndANoteDoesNot) {
    searched.matches("e");
    const std::string id = sheet->entries[0].id();
    annotations.apps[app][id].pinned = true;
    searched.recordsMayDiffer();
    update();
    EXPECT_FALSE(searched.isSearchStale());
    EXPECT_TRUE(searched.prepared()->entries[0].pinned);
    annotations.apps[app][id].note = "quagga";
    searched.recordsMayDiffer();
    update();
    EXPECT_EQ(found("quagga").size(), 1);
}

TEST_F(SearchedSheetTest, NoSheetIsAnEmptyOne) {
    sheet.reset();
    searched.sheetMayDiffer();
    update();
    EXPECT_TRUE(searched.prepared()->entries.empty());
    EXPECT_TRUE(found("").isEmpty());
    EXPECT_TRUE(found("e").isEmpty());
    EXPECT_EQ(searched.mostClicked(), nullptr);
}

} // namespace
} // namespace quillon
