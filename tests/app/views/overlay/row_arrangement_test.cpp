#include <quillon/app/views/overlay/row_arrangement.h>
#include <quillon/tests/app/views/support/many_entries.h>
#include <quillon/tests/app/views/support/printing.h>

#include <gtest/gtest.h>

#include <QFontInfo>

#include <cmath>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

const Modifiers everyModifier{Modifiers::command, Modifiers::shift, Modifiers::option, Modifiers::control};

Theme themeOf(double points) {
    return Theme::fromLook({ColourScheme::light, "DejaVu Sans", points}, QFont());
}

PreparedEntry entryOf(const QString& title, Shortcut shortcut = {Modifiers::command, Key::character("S")}) {
    return {.id = "id", .title = title, .submenu = {}, .shortcut = std::move(shortcut), .note = {}};
}

/// Whether everything stands inside of the row, beside one another.
void expectTidy(
    const RowArrangement& row, const PreparedEntry& entry, double width, const TextMeasure& measure) {
    const QRectF all(0, 0, width, row.height);
    std::vector<QRectF> parts{row.keys};
    const auto addText = [&](const PlacedText& text, const MeasuredFont& font, double padding) {
        parts.push_back(text.rect);
        EXPECT_LE(font.metrics().horizontalAdvance(text.text), text.rect.width() - 2 * padding + 1)
            << text.text.toStdString();
        EXPECT_GE(text.baseline - font.metrics().ascent(), text.rect.top() - 1);
        EXPECT_LE(text.baseline + font.metrics().descent(), text.rect.bottom() + 1);
    };
    for (const PlacedText& line : row.title)
        addText(line, measure.title, 0);
    for (const PlacedText& line : row.note)
        addText(line, measure.note, 0);
    if (row.submenu)
        addText(*row.submenu, measure.submenu, 0);
    if (row.badge)
        addText(*row.badge, measure.caption, RowArranger::badgePadding);
    if (row.pin)
        parts.push_back(*row.pin);

    for (std::size_t i = 0; i < parts.size(); ++i) {
        EXPECT_TRUE(all.adjusted(-0.5, -0.5, 0.5, 0.5).contains(parts[i]))
            << entry.title.toStdString() << ", part " << i;
        for (std::size_t j = i + 1; j < parts.size(); ++j) {
            const QRectF shared = parts[i].intersected(parts[j]);
            EXPECT_FALSE(shared.width() > 1 && shared.height() > 2.5)
                << entry.title.toStdString() << ", parts " << i << " and " << j;
        }
    }
    EXPECT_NEAR(row.keys.width(), measure.keys.width(entry.shortcut) * row.keysScale, 0.01);
}

TEST(RowArrangement, ShortPartsShareOneLineOnOneBaseline) {
    const TextMeasure measure(themeOf(10));
    const RowArranger arranger(measure, 600);
    PreparedEntry entry = entryOf(u"Group"_s);
    entry.pinned = true;
    entry.clicked = 7;
    entry.note = u"together"_s;
    entry.submenu = u"Arrange"_s;
    const RowArrangement row = arranger.arrange(entry, SubmenuInRow::shown);
    ASSERT_EQ(row.title.size(), 1U);
    ASSERT_EQ(row.note.size(), 1U);
    EXPECT_EQ(row.height, arranger.lineHeight());
    EXPECT_EQ(row.badge->text, u"clicked 7 times"_s);
    for (const double baseline : {row.submenu->baseline, row.badge->baseline, row.note[0].baseline})
        EXPECT_EQ(baseline, row.title[0].baseline);
    EXPECT_EQ(row.keys.top() + measure.keys.baseline(), row.title[0].baseline);
    EXPECT_EQ(row.keys.right(), 600);
    // Title, submenu, pin, badge, note, keys: 8 apart.
    EXPECT_EQ(row.submenu->rect.left(), row.title[0].rect.right() + 8);
    EXPECT_EQ(row.pin->left(), row.submenu->rect.right() + 8);
    EXPECT_EQ(row.badge->rect.left(), row.pin->right() + 8);
    EXPECT_EQ(row.note[0].rect.left(), row.badge->rect.right() + 8);
    EXPECT_LE(row.note[0].rect.right() + 8, row.keys.left());
}

TEST(RowArrangement, ASubmenuIsNamedOnlyWhereAskedFor) {
    const TextMeasure measure(themeOf(10));
    PreparedEntry entry = entryOf(u"Group"_s);
    entry.submenu = u"Arrange"_s;
    EXPECT_FALSE(RowArranger(measure, 400).arrange(entry, SubmenuInRow::hidden).submenu);
    EXPECT_TRUE(RowArranger(measure, 400).arrange(entry, SubmenuInRow::shown).submenu);
    EXPECT_FALSE(RowArranger(measure, 400).arrange(entryOf(u"Lock"_s), SubmenuInRow::shown).submenu);
}

TEST(RowArrangement, ALongNoteGoesBelowAndLeavesTheTitleAlone) {
    const TextMeasure measure(themeOf(10));
    PreparedEntry entry = entryOf(u"Duplicate"_s);
    const RowArranger arranger(measure, 330);
    const RowArrangement without = arranger.arrange(entry, SubmenuInRow::hidden);
    entry.note = u"Makes a copy of the selected shapes next to the originals, in the same layer"_s;
    const RowArrangement row = arranger.arrange(entry, SubmenuInRow::hidden);
    EXPECT_EQ(row.title, without.title);
    EXPECT_EQ(row.keys, without.keys);
    ASSERT_GE(row.note.size(), 2U);
    EXPECT_GT(row.note[0].rect.top(), row.title[0].rect.bottom() - 1);
    QStringList read;
    for (const PlacedText& line : row.note)
        read.append(line.text);
    EXPECT_EQ(read.join(u' '), entry.note);
}

TEST(RowArrangement, ALongTitleGoesOnBelowInsteadOfBeingCut) {
    const TextMeasure measure(themeOf(10));
    const PreparedEntry entry =
        entryOf(u"Neues Dokument aus Vorlage erstellen und im gleichen Fenster öffnen…"_s);
    const RowArrangement row = RowArranger(measure, 330).arrange(entry, SubmenuInRow::hidden);
    EXPECT_GE(row.title.size(), 2U);
    EXPECT_FALSE(row.isElided());
    QStringList read;
    for (const PlacedText& line : row.title)
        read.append(line.text);
    EXPECT_EQ(read.join(u' '), entry.title);
}

TEST(RowArrangement, OnlyEndlessTextIsCutAndSaysSo) {
    const TextMeasure measure(themeOf(10));
    PreparedEntry entry = entryOf(QString(4000, u'w'));
    RowArrangement row = RowArranger(measure, 330).arrange(entry, SubmenuInRow::hidden);
    EXPECT_TRUE(row.isElided());
    EXPECT_TRUE(row.title.back().text.endsWith(u'…'));
    expectTidy(row, entry, 330, measure);

    entry = entryOf(u"Save"_s);
    entry.note = u"word "_s.repeated(2000).trimmed();
    row = RowArranger(measure, 330).arrange(entry, SubmenuInRow::hidden);
    EXPECT_TRUE(row.isElided());
    EXPECT_TRUE(row.note.back().text.endsWith(u'…'));
    expectTidy(row, entry, 330, measure);
}

TEST(RowArrangement, WhereKeysWouldCrowdTheTitleTheyStandBelow) {
    const TextMeasure measure(themeOf(24));
    const PreparedEntry entry = entryOf(u"Zoom to Fit"_s, {everyModifier, Key::special(SpecialKey::space)});
    const RowArrangement row = RowArranger(measure, 420).arrange(entry, SubmenuInRow::hidden);
    EXPECT_GE(row.keys.top(), row.title.back().rect.bottom() - 1);
    EXPECT_EQ(row.keys.right(), 420);
}

TEST(RowArrangement, KeysAreNeverCutButMadeSmaller) {
    const TextMeasure measure(themeOf(24));
    const PreparedEntry entry = entryOf(u"Zoom"_s, {everyModifier, Key::special(SpecialKey::space)});
    const RowArrangement row = RowArranger(measure, 150).arrange(entry, SubmenuInRow::hidden);
    EXPECT_LT(row.keysScale, 1);
    EXPECT_NEAR(row.keys.width(), 150, 0.01);
}

struct Case {
    double points;
    double width;
};

class RowsOfAllKinds : public testing::TestWithParam<Case> {};

TEST_P(RowsOfAllKinds, NothingOverlapsOrLeavesTheRow) {
    const TextMeasure measure(themeOf(GetParam().points));
    const RowArranger arranger(measure, GetParam().width);
    std::size_t number = 0;
    for (const AppSheet& sheet : {sheetOfLongTitles(), sheetOfMany(300)}) {
        for (PreparedEntry entry : PreparedSheet::prepare(sheet, {}, {}).entries) {
            ++number;
            entry.pinned = number % 2 == 0;
            entry.clicked = number % 3 == 0 ? static_cast<Count>(number * number) : 0;
            if (number % 5 < 2)
                entry.note =
                    number % 5 == 0 ? u"kurz"_s : u"Eine Notiz, die sich über mehrere Zeilen erstreckt"_s;
            for (const SubmenuInRow submenu : {SubmenuInRow::hidden, SubmenuInRow::shown}) {
                const RowArrangement row = arranger.arrange(entry, submenu);
                expectTidy(row, entry, GetParam().width, measure);
                EXPECT_EQ(arranger.height(entry, submenu), row.height) << entry.title.toStdString();
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    FontsAndWidths, RowsOfAllKinds,
    testing::Values(
        Case{5, 330}, Case{9, 330}, Case{11, 200}, Case{11, 340}, Case{16, 280}, Case{24, 340},
        Case{24, 160}),
    [](const auto& kind) {
        return std::to_string(std::lround(kind.param.points)) + "pointsIn"
               + std::to_string(std::lround(kind.param.width));
    });

TEST(RowArrangement, RightToLeftTitlesStayWhole) {
    const TextMeasure measure(themeOf(11));
    const PreparedEntry entry = entryOf(u"העתקת העיצוב של הטקסט המסומן אל כל הפסקאות הבאות במסמך"_s);
    const RowArrangement row = RowArranger(measure, 300).arrange(entry, SubmenuInRow::hidden);
    EXPECT_FALSE(row.isElided());
    expectTidy(row, entry, 300, measure);
}

} // namespace
} // namespace quillon
