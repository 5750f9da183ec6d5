#include <quillon/app/cheatsheet/page_layout.h>
#include <quillon/app/cheatsheet/page_measures.h>
#include <quillon/tests/app/cheatsheet/support/printed_samples.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

constexpr double tolerance = 1e-6;
const QRectF content(36, 36, 540, 720);

struct Kind {
    const char* name;
    AnnotatedSheet (*make)();
    bool withNames = false;
};

void PrintTo(const Kind& kind, std::ostream* stream) {
    *stream << kind.name << (kind.withNames ? " by names" : "");
}

AnnotatedSheet thousandEntries() {
    return manyEntries(1000);
}

bool isInside(const QRectF& outer, const QRectF& inner) {
    return inner.left() >= outer.left() - tolerance && inner.right() <= outer.right() + tolerance
           && inner.top() >= outer.top() - tolerance && inner.bottom() <= outer.bottom() + tolerance;
}

bool overlap(const QRectF& a, const QRectF& b) {
    return std::min(a.right(), b.right()) - std::max(a.left(), b.left()) > tolerance
           && std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top()) > tolerance;
}

std::vector<PlacedText> textsIn(const PageLayout& page, PageFont font) {
    std::vector<PlacedText> texts;
    for (const Placed& placed : page)
        if (const auto* text = std::get_if<PlacedText>(&placed); text && text->font == font)
            texts.push_back(*text);
    return texts;
}

QStringList wordsIn(const PageLayout& page, PageFont font) {
    QStringList words;
    for (const PlacedText& text : textsIn(page, font))
        words.append(text.text);
    return words;
}

class PageLayoutTest : public testing::Test {
  protected:
    PrintedSheet printed(const AnnotatedSheet& of, const KeyNames* names = nullptr) {
        return PrintedSheet::of({of.sheet, of.annotations, names});
    }
    PageLayout firstPage(const AnnotatedSheet& of, const KeyNames* names = nullptr) {
        return layOutPage(printed(of, names), 1, fonts);
    }

    PageFonts fonts;
};

class EverySheetTest : public PageLayoutTest, public testing::WithParamInterface<Kind> {
  protected:
    PrintedSheet sheet = printed(GetParam().make(), GetParam().withNames ? &KeyNames::english() : nullptr);

    /// Calls with the layout of each page.
    template <class Look>
    void onEveryPage(Look look) {
        ASSERT_FALSE(sheet.pages.empty());
        for (int number = 1; number <= static_cast<int>(sheet.pages.size()); ++number)
            look(layOutPage(sheet, number, fonts));
    }
};

INSTANTIATE_TEST_SUITE_P(
    PageLayout, EverySheetTest,
    testing::Values(
        Kind{"the sample", sampleSheet}, Kind{"the sample", sampleSheet, true}, Kind{"GIMP", gimpSheet},
        Kind{"GIMP", gimpSheet, true}, Kind{"a thousand entries", thousandEntries},
        Kind{"a thousand entries", thousandEntries, true}, Kind{"a hostile sheet", hostileSheet},
        Kind{"a hostile sheet", hostileSheet, true}));

TEST_P(EverySheetTest, EverythingIsInsideOfTheMargins) {
    onEveryPage([&](const PageLayout& page) {
        for (const Placed& placed : page)
            EXPECT_TRUE(isInside(content, boxOf(placed, fonts))) << placed.index();
    });
}

/// A cap's words lie on the cap; two of a kind never meet, nor a title and a cap.
TEST_P(EverySheetTest, NothingOverlaps) {
    onEveryPage([&](const PageLayout& page) {
        const auto isGround = [](const Placed& placed) { return std::holds_alternative<PlacedCap>(placed); };
        const auto isOnCap = [](const Placed& placed) {
            const auto* text = std::get_if<PlacedText>(&placed);
            const auto* sign = std::get_if<PlacedSign>(&placed);
            return (text && text->font == PageFont::cap) || (sign && sign->font == PageFont::cap);
        };
        for (std::size_t i = 0; i < page.size(); ++i) {
            for (std::size_t j = i + 1; j < page.size(); ++j) {
                if ((isGround(page[i]) && isOnCap(page[j])) || (isOnCap(page[i]) && isGround(page[j])))
                    continue;
                EXPECT_FALSE(overlap(boxOf(page[i], fonts), boxOf(page[j], fonts)))
                    << i << " (" << page[i].index() << ") and " << j << " (" << page[j].index() << ")";
            }
        }
    });
}

TEST_P(EverySheetTest, WhatACapShowsIsOnIt) {
    onEveryPage([&](const PageLayout& page) {
        for (std::size_t i = 0; i + 1 < page.size(); ++i) {
            if (const auto* cap = std::get_if<PlacedCap>(&page[i])) {
                const QRectF shown = boxOf(page[i + 1], fonts);
                EXPECT_GE(shown.left(), cap->box.left() - tolerance);
                EXPECT_LE(shown.right(), cap->box.right() + tolerance);
                EXPECT_NEAR(shown.center().x(), cap->box.center().x(), 0.1);
            }
        }
    });
}

TEST_P(EverySheetTest, EveryLineIsInItsColumn) {
    onEveryPage([&](const PageLayout& page) {
        for (const Placed& placed : page) {
            const QRectF box = boxOf(placed, fonts);
            const auto* text = std::get_if<PlacedText>(&placed);
            if (!text || text->font == PageFont::name || text->font == PageFont::legend
                || text->font == PageFont::footer)
                continue;
            const int column = static_cast<int>(
                (box.left() + tolerance - 36) / (PageMeasures::columnWidth + PageMeasures::columnGap));
            const double left = 36 + column * (PageMeasures::columnWidth + PageMeasures::columnGap);
            EXPECT_TRUE(isInside({left, 36, PageMeasures::columnWidth, 720}, box))
                << text->text.toStdString();
        }
    });
}

TEST_P(EverySheetTest, CapsAreOfTheirSizeUnlessTheyNeedTooMuchOfTheColumn) {
    onEveryPage([&](const PageLayout& page) {
        for (const PlacedText& text : textsIn(page, PageFont::cap)) {
            EXPECT_LE(text.scale, 1);
            EXPECT_GT(text.scale, 0.4);
        }
    });
    if (!GetParam().withNames)
        onEveryPage([&](const PageLayout& page) {
            for (const PlacedText& text : textsIn(page, PageFont::cap))
                if (text.text.size() == 1) {
                    EXPECT_EQ(text.scale, 1) << text.text.toStdString();
                }
        });
}

TEST_F(PageLayoutTest, ColumnsAreAsWideAsTheyAreApartAllows) {
    EXPECT_DOUBLE_EQ(PageMeasures::columnWidth, 520.0 / 3);
    const PageLayout page = firstPage(sampleSheet());
    std::set<double> lefts;
    for (const PlacedText& heading : textsIn(page, PageFont::heading))
        lefts.insert(heading.start.x());
    EXPECT_THAT(
        lefts, testing::ElementsAre(
                   testing::DoubleEq(36), testing::DoubleEq(36 + 520.0 / 3 + 10),
                   testing::DoubleEq(36 + 2 * (520.0 / 3 + 10))));
}

TEST_F(PageLayoutTest, TheHeaderNamesTheApplicationCountsAndExplains) {
    const PageLayout page = firstPage(sampleSheet());
    EXPECT_EQ(wordsIn(page, PageFont::name), QStringList{u"Sketchpad"_s});
    EXPECT_EQ(wordsIn(page, PageFont::legend).first(), u"59 shortcuts"_s);
    QString legend;
    for (const Placed& placed : page) {
        if (const auto* sign = std::get_if<PlacedSign>(&placed); sign && sign->font == PageFont::legend)
            legend += sign->sign;
        else if (const auto* text = std::get_if<PlacedText>(&placed); text && text->font == PageFont::legend)
            legend += text->text;
    }
    EXPECT_TRUE(legend.startsWith(u"59 shortcuts⌘ Command  ⌥ Option  ⌃ Control  ⇧ Shift"_s))
        << legend.toStdString();
}

TEST_F(PageLayoutTest, WhereKeysAreNamedThereIsNothingToExplain) {
    const PageLayout page = firstPage(sampleSheet(), &KeyNames::english());
    EXPECT_EQ(wordsIn(page, PageFont::legend), QStringList{u"59 shortcuts"_s});
    EXPECT_TRUE(wordsIn(page, PageFont::cap).contains(u"Ctrl"_s));
}

TEST_F(PageLayoutTest, TheFooterCountsThePages) {
    const PrintedSheet sheet = printed(manyEntries(300));
    const int pages = static_cast<int>(sheet.pages.size());
    ASSERT_GT(pages, 2);
    for (int number = 1; number <= pages; ++number)
        EXPECT_EQ(
            wordsIn(layOutPage(sheet, number, fonts), PageFont::footer),
            (QStringList{u"Made with Quillon"_s, u"Page %1 of %2"_s.arg(number).arg(pages)}));
}

TEST_F(PageLayoutTest, AMenuThatGoesOnSaysSoHoweverLongItsName) {
    AnnotatedSheet one = emptySheet("One");
    for (int i = 0; i < 40; ++i)
        one.sheet.entries.push_back(
            {{std::string(300, 'm'), "Item " + std::to_string(i)},
             {Modifiers::command, Key::character("A")}});
    const QStringList headings = wordsIn(firstPage(one), PageFont::heading);
    ASSERT_EQ(headings.size(), 2);
    EXPECT_TRUE(headings[0].endsWith(u"…"_s));
    EXPECT_TRUE(headings[1].endsWith(u"… (continued)"_s));
}

TEST_F(PageLayoutTest, PinnedCommandsAreMarkedWhereverTheyStand) {
    AnnotatedSheet one = emptySheet("One");
    one.sheet.entries = {
        {{"File", "Save"}, {Modifiers::command, Key::character("S")}},
        {{"File", "Open"}, {Modifiers::command, Key::character("O")}}};
    one.annotations[one.sheet.entries[0].id()].pinned = true;
    const PageLayout page = firstPage(one);
    EXPECT_EQ(wordsIn(page, PageFont::title), (QStringList{u"Save"_s, u"Save"_s, u"Open"_s}));
    EXPECT_EQ(
        std::ranges::count_if(
            page, [](const Placed& placed) { return std::holds_alternative<PlacedPin>(placed); }),
        2);
}

/// One command with a note, on a page of its own.
QStringList linesOfNote(const std::string& note, const PageFonts& fonts, int others = 0) {
    AnnotatedSheet one = emptySheet("One");
    for (int i = 0; i <= others; ++i)
        one.sheet.entries.push_back(
            {{"File", "Item " + std::to_string(i)}, {Modifiers::command, Key::character("A")}});
    one.annotations[one.sheet.entries[0].id()].note = note;
    return wordsIn(layOutPage(PrintedSheet::of({one.sheet, one.annotations}), 1, fonts), PageFont::note);
}

TEST_F(PageLayoutTest, ANoteTakesTheLinesThatTheColumnHasLeft) {
    const std::string words = "A note of more words than one line of a column on a printed page can hold";
    const QStringList alone = linesOfNote(words, fonts);
    EXPECT_GE(alone.size(), 2);
    EXPECT_EQ(alone.join(u' ').toStdString(), words);
    std::string endless;
    for (int i = 0; i < 1000; ++i)
        endless += words + " ";
    const QStringList cut = linesOfNote(endless, fonts);
    EXPECT_EQ(cut.size(), 8);
    EXPECT_TRUE(cut.last().endsWith(u'…'));
}

TEST_F(PageLayoutTest, LineBreaksAndTabsInNotesAreBlanks) {
    EXPECT_EQ(linesOfNote("one\n\n\ttwo", fonts), QStringList{u"one two"_s});
}

TEST_F(PageLayoutTest, ANoteInAFullColumnEndsInAnEllipsis) {
    AnnotatedSheet full = emptySheet("Full");
    for (int i = 0; i < 15; ++i) {
        full.sheet.entries.push_back(
            {{"Menu " + std::to_string(i), "Item"}, {Modifiers::command, Key::character("A")}});
    }
    full.annotations[full.sheet.entries[13].id()].note = std::string(5000, 'x');
    const QStringList lines = wordsIn(firstPage(full), PageFont::note);
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_TRUE(lines.last().endsWith(u'…'));
}

} // namespace
} // namespace quillon
