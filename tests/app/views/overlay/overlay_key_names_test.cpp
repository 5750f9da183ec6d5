#include "overlay_fixture.h"

#include <cmath>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;

class OverlayKeyNamesTest : public OverlayTest {
  protected:
    OverlayKeyNamesTest() {
        desk.trust();
        desk.showSample();
    }

    void showNames() { desk.settings.setKeyLabels(KeyLabels::names); }
};

TEST_F(OverlayKeyNamesTest, RowsSayTheNamesOfTheirKeysAtOnce) {
    const auto endOf = [this](const QString& row) {
        return view->area().spokenRow(this->row(row)).section(u", "_s, -1);
    };
    const QString symbols = endOf(u"Duplicate"_s);
    showNames();
    const QString names = endOf(u"Duplicate"_s);
    EXPECT_TRUE(names.contains(u"Super "_s)) << names.toStdString();
    desk.settings.setKeyLabels(KeyLabels::symbols);
    EXPECT_EQ(endOf(u"Duplicate"_s), symbols);
}

TEST_F(OverlayKeyNamesTest, HintsNameTheTriggerKey) {
    EXPECT_THAT(texts(), Contains(u"Let go of ⌘ to close · click to keep it open"_s));
    showNames();
    EXPECT_THAT(texts(), Contains(u"Let go of Super to close · click to keep it open"_s));
    desk.settings.setTrigger(TriggerKey::control);
    EXPECT_THAT(texts(), Contains(u"Let go of Ctrl to close · click to keep it open"_s));
}

TEST_F(OverlayKeyNamesTest, KeysAreWholeAndInsideOfTheirRowsAtEveryWidth) {
    showNames();
    desk.show(sheetOfMany(300));
    for (const int width : {420, 760, 1180, 1400}) {
        view->resize(width, 760);
        const TextMeasure measure(desk.themes.theme());
        const AreaLayout& layout = view->area().layout();
        ASSERT_EQ(layout.rows.size(), 300U);
        for (const RowBox& row : layout.rows) {
            const PreparedEntry& entry = view->area().sheet().entries[row.entry];
            const RowArrangement parts =
                RowArranger(measure, row.inner().width()).arrange(entry, row.submenu);
            EXPECT_LE(parts.keys.right(), std::floor(row.inner().width()));
            EXPECT_GE(parts.keys.left(), 0);
            EXPECT_NEAR(parts.keys.width(), measure.keys.width(entry.shortcut) * parts.keysScale, 0.01);
            for (const PlacedText& line : parts.title)
                EXPECT_FALSE(line.rect.intersects(parts.keys)) << entry.title.toStdString();
            EXPECT_DOUBLE_EQ(parts.height, row.rect.height());
        }
    }
}

TEST_F(OverlayKeyNamesTest, RowsOfOneLineAreAsHighAsWithSymbols) {
    const auto lineHeight = [this] {
        return RowArranger(TextMeasure(desk.themes.theme()), 300).lineHeight();
    };
    const double symbols = lineHeight();
    showNames();
    EXPECT_EQ(lineHeight(), symbols);
}

TEST_F(OverlayKeyNamesTest, SearchesUnderstandNamesAndSymbolsWhateverIsShown) {
    for (const KeyLabels labels : {KeyLabels::symbols, KeyLabels::names}) {
        desk.settings.setKeyLabels(labels);
        for (const char* query : {"super s", "cmd s", "⌘ s", "Super+S", "windows s"}) {
            desk.model.setQuery(query);
            ASSERT_EQ(cards().size(), 2) << query << ": a menu and a row";
            EXPECT_TRUE(cards().last().startsWith(u"Save, "_s)) << query;
        }
    }
}

} // namespace
} // namespace quillon
