#include <quillon/app/views/overlay/area_content.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/app/views/support/printing.h>

#include <gtest/gtest.h>

#include <numeric>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

MenuEntry entry(std::vector<std::string> path) {
    return {std::move(path), {Modifiers::command, Key::character("A")}, true};
}

PreparedSheet prepared(const AppSheet& sheet, const Annotations& said = {}, const UsageRecords& usage = {}) {
    AnnotationBook annotations;
    annotations.apps[sheet.bundleID] = said;
    UsageBook book;
    book.apps[sheet.bundleID] = usage;
    return PreparedSheet::prepare(sheet, annotations, book);
}

std::vector<std::size_t> all(const PreparedSheet& sheet) {
    std::vector<std::size_t> positions(sheet.entries.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    return positions;
}

TEST(AreaContent, GroupsByTopLevelMenuInMenuOrder) {
    const PreparedSheet sheet = prepared(SampleMenus::sheet());
    QStringList titles;
    for (const AreaCard& card : AreaContent::of(sheet, all(sheet)).cards)
        titles.append(card.title);
    EXPECT_EQ(
        titles, (QStringList{
                    u"Sketchpad"_s, u"File"_s, u"Edit"_s, u"Object"_s, u"Format"_s, u"View"_s, u"Window"_s,
                    u"Help"_s}));
}

TEST(AreaContent, NoPinsNoPinnedCard) {
    const PreparedSheet sheet = prepared(SampleMenus::sheet());
    for (const AreaCard& card : AreaContent::of(sheet, all(sheet)).cards)
        EXPECT_EQ(card.shape, CardShape::narrow);
}

TEST(AreaContent, PinnedCommandsComeFirstAndStayInTheirMenus) {
    const PreparedSheet sheet = prepared(SampleMenus::sheet(), SampleMenus::annotations());
    const AreaContent content = AreaContent::of(sheet, all(sheet));
    const AreaCard& pinned = content.cards.front();
    EXPECT_EQ(pinned.title, u"Pinned"_s);
    EXPECT_EQ(pinned.icon, Symbol::pinFill);
    EXPECT_EQ(pinned.shape, CardShape::wide);
    ASSERT_EQ(pinned.rowCount(), 3U);
    EXPECT_EQ(sheet.entries[pinned.sections[0].rows[0]].title, u"Duplicate"_s);
    EXPECT_EQ(sheet.entries[pinned.sections[0].rows[1]].title, u"Paste in Place"_s);
    EXPECT_EQ(sheet.entries[pinned.sections[0].rows[2]].title, u"Group"_s);
    std::size_t rows = 0;
    for (const AreaCard& card : content.cards)
        rows += card.rowCount();
    EXPECT_EQ(rows, sheet.entries.size() + 3);
}

TEST(AreaContent, PinnedCommandsThatAreNotFoundAreNotShown) {
    const PreparedSheet sheet = prepared(SampleMenus::sheet(), SampleMenus::annotations());
    const std::vector<std::size_t> found{0, 1};
    const AreaContent content = AreaContent::of(sheet, found);
    ASSERT_EQ(content.cards.size(), 1U);
    EXPECT_EQ(content.cards[0].shape, CardShape::narrow);
}

TEST(AreaContent, EachStayInASubmenuIsASection) {
    const PreparedSheet sheet = prepared(
        {.bundleID = "app",
         .appName = "App",
         .entries = {
             entry({"Object", "Group"}), entry({"Object", "Arrange", "Front"}),
             entry({"Object", "Arrange", "Back"}), entry({"Object", "Lock"}),
             entry({"Object", "Arrange", "Align", "Left"})}});
    const AreaContent content = AreaContent::of(sheet, all(sheet));
    ASSERT_EQ(content.cards.size(), 1U);
    EXPECT_EQ(
        content.cards[0].sections,
        (std::vector<AreaSection>{
            {{}, {0}}, {u"Arrange"_s, {1, 2}}, {{}, {3}}, {u"Arrange › Align"_s, {4}}}));
}

TEST(AreaContent, ACommandThatIsItsOwnMenuIsACardOfItsOwn) {
    const PreparedSheet sheet =
        prepared({.bundleID = "app", .appName = "App", .entries = {entry({"File"}), entry({})}});
    const AreaContent content = AreaContent::of(sheet, all(sheet));
    ASSERT_EQ(content.cards.size(), 2U);
    EXPECT_EQ(content.cards[0].title, u"File"_s);
    EXPECT_EQ(content.cards[1].title, QString());
}

} // namespace
} // namespace quillon
