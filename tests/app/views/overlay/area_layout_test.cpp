#include <quillon/app/views/overlay/area_layout.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/app/views/support/many_entries.h>
#include <quillon/tests/app/views/support/printing.h>

#include <gtest/gtest.h>

#include <numeric>
#include <set>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class AreaLayoutTest : public testing::Test {
  protected:
    void lay(const AppSheet& app, double points = 10, double wide = 1134, const Annotations& said = {}) {
        AnnotationBook annotations;
        annotations.apps[app.bundleID] = said;
        sheet = PreparedSheet::prepare(app, annotations, {});
        std::vector<std::size_t> all(sheet.entries.size());
        std::iota(all.begin(), all.end(), std::size_t{0});
        content = AreaContent::of(sheet, all);
        measure = std::make_unique<TextMeasure>(
            Theme::fromLook({ColourScheme::light, "DejaVu Sans", points}, QFont()));
        layout = AreaLayout::of(content, sheet, *measure, wide);
    }
    std::set<double> columnEdges() const {
        std::set<double> edges;
        for (std::size_t i = 0; i < layout.cards.size(); ++i) {
            if (content.cards[i].shape == CardShape::narrow)
                edges.insert(layout.cards[i].rect.left());
        }
        return edges;
    }
    void expectTidy() const {
        for (std::size_t i = 0; i < layout.cards.size(); ++i) {
            const CardBox& card = layout.cards[i];
            EXPECT_GE(card.rect.left(), 0);
            EXPECT_LE(card.rect.right(), layout.width);
            EXPECT_LE(card.rect.bottom(), layout.height);
            for (std::size_t row = card.firstRow; row < card.endRow; ++row) {
                EXPECT_EQ(layout.rows[row].card, i);
                EXPECT_TRUE(card.rect.contains(layout.rows[row].rect));
                for (std::size_t other = row + 1; other < card.endRow; ++other)
                    EXPECT_FALSE(layout.rows[row].rect.intersects(layout.rows[other].rect));
            }
            for (std::size_t other = i + 1; other < layout.cards.size(); ++other)
                EXPECT_FALSE(card.rect.intersects(layout.cards[other].rect));
        }
        for (const HeadingBox& heading : layout.headings) {
            EXPECT_TRUE(layout.cards[heading.card].rect.contains(heading.rect));
            for (const RowBox& row : layout.rows)
                EXPECT_FALSE(row.rect.intersects(heading.rect));
        }
    }

    PreparedSheet sheet;
    AreaContent content;
    std::unique_ptr<TextMeasure> measure;
    AreaLayout layout;
};

TEST_F(AreaLayoutTest, NothingOverlapsOrLeavesItsCard) {
    lay(SampleMenus::sheet(), 10, 1134, SampleMenus::annotations());
    expectTidy();
    lay(sheetOfMany(300));
    expectTidy();
    lay(sheetOfLongTitles(), 24);
    expectTidy();
    lay(sheetOfLongTitles(), 5, 620);
    expectTidy();
}

TEST_F(AreaLayoutTest, ColumnsAreThreeOfEqualWidth) {
    lay(sheetOfMany(60));
    EXPECT_EQ(columnEdges().size(), 3U);
    for (const CardBox& card : layout.cards)
        EXPECT_EQ(card.rect.width(), layout.cards[0].rect.width());
}

TEST_F(AreaLayoutTest, TheLastColumnEndsWhereTheAreaDoesAndTheGapsAreEven) {
    for (const double width : {1134.0, 1142.0, 1143.0, 1144.0, 700.0}) {
        lay(sheetOfMany(60), 10, width);
        const std::set<double> edges = columnEdges();
        ASSERT_EQ(edges.size(), 3U);
        const double columnWidth = layout.cards[0].rect.width();
        const std::vector<double> lefts(edges.begin(), edges.end());
        EXPECT_EQ(lefts[2] + columnWidth, width);
        EXPECT_NEAR(lefts[1] - lefts[0], lefts[2] - lefts[1], 1);
    }
}

TEST_F(AreaLayoutTest, AFewMenusDoNotWidenTheColumns) {
    lay(sheetOfMany(60));
    const double width = layout.cards[0].rect.width();
    AppSheet one{.bundleID = "one", .appName = "One", .entries = {sheetOfMany(1).entries}};
    lay(one);
    ASSERT_EQ(layout.cards.size(), 1U);
    EXPECT_EQ(layout.cards[0].rect.width(), width);
    EXPECT_EQ(layout.cards[0].rect.left(), 0);
}

TEST_F(AreaLayoutTest, ThePinnedCardSpansTheWidthAboveTheColumns) {
    lay(SampleMenus::sheet(), 10, 1134, SampleMenus::annotations());
    EXPECT_EQ(layout.cards[0].rect.topLeft(), QPointF(0, 0));
    EXPECT_EQ(layout.cards[0].rect.width(), 1134);
    for (std::size_t i = 1; i < layout.cards.size(); ++i)
        EXPECT_GT(layout.cards[i].rect.top(), layout.cards[0].rect.bottom());
}

TEST_F(AreaLayoutTest, PinnedRowsFillAGridOfThreeRowByRow) {
    Annotations said;
    for (int i = 0; i < 5; ++i)
        said[SampleMenus::sheet().entries[static_cast<std::size_t>(i)].id()].pinned = true;
    lay(SampleMenus::sheet(), 10, 1134, said);
    const auto row = [&](std::size_t i) { return layout.rows[i].rect; };
    EXPECT_EQ(row(1).left() - row(0).right(), 18);
    EXPECT_EQ(row(2).left() - row(1).right(), 18);
    EXPECT_EQ(row(0).top(), row(2).top());
    EXPECT_EQ(row(3).left(), row(0).left());
    EXPECT_GE(row(3).top(), row(0).bottom());
    EXPECT_EQ(row(0).width(), row(1).width());
}

TEST_F(AreaLayoutTest, PinnedRowsStandAboveTheColumns) {
    Annotations said;
    for (std::size_t i = 0; i < 3; ++i)
        said[SampleMenus::sheet().entries[i].id()].pinned = true;
    for (const double width : {1134.0, 1000.0, 641.0}) {
        lay(SampleMenus::sheet(), 10, width, said);
        for (std::size_t column = 0; column < 3; ++column) {
            const RowBox& pinned = layout.rows[column];
            const auto below = std::ranges::find_if(layout.rows, [&](const RowBox& row) {
                return row.submenu == SubmenuInRow::hidden && row.column == column;
            });
            ASSERT_NE(below, layout.rows.end());
            EXPECT_EQ(pinned.inner().left(), below->inner().left()) << width;
            EXPECT_EQ(pinned.inner().right(), below->inner().right()) << width;
        }
    }
}

TEST_F(AreaLayoutTest, SubmenusAreCaptionedAndTheirEndIsMarked) {
    lay(SampleMenus::sheet());
    QStringList captions;
    for (const HeadingBox& heading : layout.headings) {
        if (heading.kind == HeadingBox::Kind::submenu)
            captions.append(content.cards[heading.card].sections[heading.section].caption);
    }
    EXPECT_EQ(captions, (QStringList{u"Find"_s, u"Arrange"_s, u"Font"_s, u"Text"_s}));
    EXPECT_EQ(layout.dividers.size(), 3U) << "after Find, Arrange and Text";
}

TEST_F(AreaLayoutTest, RowsAreFoundByPoint) {
    lay(SampleMenus::sheet());
    for (std::size_t row = 0; row < layout.rows.size(); ++row)
        EXPECT_EQ(layout.rowAt(layout.rows[row].rect.center()), static_cast<std::ptrdiff_t>(row));
    EXPECT_EQ(layout.rowAt({-5, -5}), -1);
    EXPECT_EQ(layout.rowAt(layout.headings[0].rect.center()), -1);
}

TEST_F(AreaLayoutTest, NothingToShowIsEmpty) {
    lay(emptySheet("Nothing"));
    EXPECT_EQ(layout.height, 0);
    EXPECT_TRUE(layout.rows.empty());
    EXPECT_TRUE(layout.cards.empty());
}

} // namespace
} // namespace quillon
