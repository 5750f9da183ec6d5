#include <quillon/kit/cheatsheet/cheat_sheet.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

namespace quillon::CheatSheet {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A heading and `items` items, each followed by `notes` notes.
Group group(const std::string& menu, int items, int notes = 0) {
    Group lines{Heading{menu}};
    for (int i = 0; i < items; ++i) {
        lines.push_back(Item{menu + " " + std::to_string(i), "⌘" + std::to_string(i), false});
        for (int n = 0; n < notes; ++n)
            lines.push_back(Note{menu + " note"});
    }
    return lines;
}

/// The columns of all pages.
std::vector<Column> columnsOf(const std::vector<Page>& pages) {
    std::vector<Column> columns;
    for (const Page& page : pages)
        columns.insert(columns.end(), page.begin(), page.end());
    return columns;
}

std::vector<Column> columnsOf(const std::vector<Group>& groups, int linesPerColumn) {
    return columnsOf(paginate(groups, {linesPerColumn, 3}));
}

std::vector<std::size_t> lengthsOf(const std::vector<Column>& columns) {
    std::vector<std::size_t> lengths;
    lengths.reserve(columns.size());
    for (const Column& column : columns)
        lengths.push_back(column.size());
    return lengths;
}

TEST(Paginate, ThePageOfAPrintedSheetIsTheDefault) {
    EXPECT_EQ(PageSize().linesPerColumn, 30);
    EXPECT_EQ(PageSize().columns, 3);
}

TEST(Paginate, NothingGivesNoPages) {
    EXPECT_THAT(paginate({}, {}), IsEmpty());
    EXPECT_THAT(paginate(std::vector<Group>{{}, {}}, {}), IsEmpty());
}

TEST(Paginate, LeavesOutGroupsWithoutAHeading) {
    EXPECT_THAT(
        columnsOf({{Item{"a", "b"}}, group("File", 1), {Note{"n"}}}, 30), ElementsAre(group("File", 1)));
}

TEST(Paginate, AHeadingAloneIsAGroup) {
    EXPECT_THAT(
        columnsOf({group("A", 0), group("B", 0)}, 30),
        ElementsAre(ElementsAre(Line(Heading{"A"}), Line(Heading{"B"}))));
}

TEST(Paginate, ContinuesALongGroupUnderItsHeading) {
    const std::vector<Column> columns = columnsOf({group("File", 70)}, 30);
    EXPECT_THAT(lengthsOf(columns), ElementsAre(30, 30, 13));
    EXPECT_EQ(columns[0][0], Line(Heading{"File", false}));
    EXPECT_EQ(columns[1][0], Line(Heading{"File", true}));
    EXPECT_EQ(columns[2][0], Line(Heading{"File", true}));
    EXPECT_EQ(columns[1][1], Line(Item{"File 29", "⌘29", false}));
    EXPECT_EQ(columns[2][12], Line(Item{"File 69", "⌘69", false}));
}

TEST(Paginate, ContinuesAGroupOfThirtyItems) {
    const std::vector<Column> columns = columnsOf({group("File", 30)}, 30);
    EXPECT_THAT(lengthsOf(columns), ElementsAre(30, 2));
    EXPECT_EQ(columns[1][0], Line(Heading{"File", true}));
}

TEST(Paginate, KeepsAHeadingWithItsFirstItem) {
    EXPECT_THAT(lengthsOf(columnsOf({group("A", 27), group("B", 1)}, 30)), ElementsAre(30)) << "28 and 2 fit";
    EXPECT_THAT(lengthsOf(columnsOf({group("A", 28), group("B", 1)}, 30)), ElementsAre(29, 2));
    EXPECT_THAT(lengthsOf(columnsOf({group("A", 29), group("B", 1)}, 30)), ElementsAre(30, 2));
    EXPECT_THAT(lengthsOf(columnsOf({group("A", 27), group("B", 1, 1)}, 30)), ElementsAre(28, 3))
        << "an item with a note needs three lines";
    EXPECT_THAT(lengthsOf(columnsOf({group("A", 28), group("B", 0)}, 30)), ElementsAre(30));
    EXPECT_THAT(lengthsOf(columnsOf({group("A", 29), group("B", 0)}, 30)), ElementsAre(30, 1));
}

TEST(Paginate, NeverPartsAnItemFromItsNote) {
    // 1 + 14 * 2 = 29: the next pair goes over.
    const std::vector<Column> columns = columnsOf({group("A", 15, 1)}, 30);
    EXPECT_THAT(lengthsOf(columns), ElementsAre(29, 3));
    EXPECT_EQ(columns[1][0], Line(Heading{"A", true}));
    EXPECT_EQ(columns[1][1], Line(Item{"A 14", "⌘14", false}));
}

TEST(Paginate, ANoteWithoutAnItemIsABlockOfItsOwn) {
    const Group odd{Heading{"A"}, Note{"1"}, Note{"2"}, Item{"i", "k"}};
    EXPECT_THAT(columnsOf({odd}, 30), ElementsAre(odd));
    EXPECT_THAT(lengthsOf(columnsOf({group("Z", 1), odd}, 4)), ElementsAre(2, 4));
}

TEST(Paginate, AnOverlongBlockRunsOverTheEndOfAFreshColumn) {
    const std::vector<Column> columns = columnsOf({group("A", 1, 4), group("B", 1)}, 4);
    EXPECT_THAT(lengthsOf(columns), ElementsAre(1, 6, 2));
    EXPECT_EQ(columns[0][0], Line(Heading{"A", false}));
    EXPECT_EQ(columns[1][0], Line(Heading{"A", true}));
}

TEST(Paginate, ColumnsMakePages) {
    std::vector<Group> groups;
    groups.reserve(7);
    for (int i = 0; i < 7; ++i)
        groups.push_back(group(std::to_string(i), 29));
    EXPECT_THAT(paginate(groups, {30, 3}), ElementsAre(SizeIs(3), SizeIs(3), SizeIs(1)));
    EXPECT_THAT(paginate(groups, {30, 7}), ElementsAre(SizeIs(7)));
    EXPECT_THAT(paginate(groups, {30, 1}), SizeIs(7));
    groups.pop_back();
    EXPECT_THAT(paginate(groups, {30, 3}), ElementsAre(SizeIs(3), SizeIs(3)));
}

std::vector<Group> randomGroups(RandomValues& random) {
    std::vector<Group> groups;
    for (std::size_t left = random.number(0, 8); left > 0; --left) {
        Group lines{Heading{"menu " + std::to_string(left)}};
        for (std::size_t items = random.number(0, 40); items > 0; --items) {
            lines.push_back(Item{random.title(), "⌘K", random.chance(0.1)});
            if (random.chance(0.2))
                lines.push_back(Note{random.text()});
        }
        groups.push_back(std::move(lines));
    }
    return groups;
}

TEST(Paginate, LosesAndRepeatsNothing) {
    RandomValues random(131);
    for (int round = 0; round < 300; ++round) {
        const std::vector<Group> groups = randomGroups(random);
        const PageSize size{static_cast<int>(random.number(4, 35)), static_cast<int>(random.number(1, 4))};
        std::vector<Line> expected;
        for (const Group& one : groups)
            expected.insert(expected.end(), one.begin(), one.end());
        std::vector<Line> printed;
        for (const Column& column : columnsOf(paginate(groups, size)))
            printed.insert(printed.end(), column.begin(), column.end());
        std::erase_if(printed, [](const Line& line) {
            const auto* heading = std::get_if<Heading>(&line);
            return heading && heading->continued;
        });
        EXPECT_EQ(printed, expected);
    }
}

TEST(Paginate, FillsNoColumnTooFarAndLeavesNoHeadingAtItsFoot) {
    RandomValues random(132);
    for (int round = 0; round < 300; ++round) {
        std::vector<Group> groups = randomGroups(random);
        // A menu without items ends with its heading wherever it stands.
        std::erase_if(groups, [](const Group& one) { return one.size() == 1; });
        const PageSize size{static_cast<int>(random.number(4, 35)), static_cast<int>(random.number(1, 4))};
        const std::vector<Page> pages = paginate(groups, size);
        for (std::size_t i = 0; i < pages.size(); ++i) {
            EXPECT_LE(pages[i].size(), static_cast<std::size_t>(size.columns));
            EXPECT_TRUE(i + 1 == pages.size() || pages[i].size() == static_cast<std::size_t>(size.columns));
        }
        for (const Column& column : columnsOf(pages)) {
            ASSERT_FALSE(column.empty());
            EXPECT_LE(column.size(), static_cast<std::size_t>(size.linesPerColumn));
            EXPECT_TRUE(std::holds_alternative<Heading>(column.front()));
            EXPECT_FALSE(std::holds_alternative<Heading>(column.back()));
            for (std::size_t i = 1; i < column.size(); ++i) {
                const auto* heading = std::get_if<Heading>(&column[i]);
                EXPECT_FALSE(heading && heading->continued) << "only a column's first line continues";
            }
        }
    }
}

TEST(PaginateDeathTest, RefusesColumnsThatAreTooShort) {
    EXPECT_DEATH(paginate({}, {3, 3}), "paginate: a column must hold at least 4 lines");
    EXPECT_DEATH(paginate({}, {-1, 3}), "paginate: a column must hold at least 4 lines");
    EXPECT_THAT(paginate({}, {4, 1}), IsEmpty());
}

TEST(PaginateDeathTest, RefusesPagesWithoutColumns) {
    EXPECT_DEATH(paginate({}, {30, 0}), "paginate: a page must have at least 1 column");
    EXPECT_DEATH(paginate({}, {30, -2}), "paginate: a page must have at least 1 column");
}

} // namespace
} // namespace quillon::CheatSheet
