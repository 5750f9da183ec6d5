#include <quillon/app/cheatsheet/page_fonts.h>

#include <gtest/gtest.h>

#include <QFontInfo>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class PageFontsTest : public testing::Test {
  protected:
    PageFonts fonts;
};

TEST_F(PageFontsTest, EveryFontHasItsSize) {
    EXPECT_EQ(PageFonts::size(PageFont::name), 20);
    EXPECT_EQ(PageFonts::size(PageFont::legend), 9);
    EXPECT_EQ(PageFonts::size(PageFont::heading), 10.5);
    EXPECT_EQ(PageFonts::size(PageFont::title), 8);
    EXPECT_EQ(PageFonts::size(PageFont::cap), 9.5);
    EXPECT_EQ(PageFonts::size(PageFont::note), 8.5);
    EXPECT_EQ(PageFonts::size(PageFont::footer), 8);
    for (const PageFont which : {PageFont::heading, PageFont::cap, PageFont::note})
        EXPECT_EQ(
            QFontInfo(fonts.font(which)).pixelSize(), PageFonts::size(which) * PageFonts::unitsPerPoint);
}

TEST_F(PageFontsTest, NamesAndHeadingsAreBoldNotesItalicAndCapsSemibold) {
    EXPECT_EQ(fonts.font(PageFont::name).weight(), QFont::Bold);
    EXPECT_EQ(fonts.font(PageFont::heading).weight(), QFont::Bold);
    EXPECT_EQ(fonts.font(PageFont::cap).weight(), QFont::DemiBold);
    EXPECT_TRUE(fonts.font(PageFont::note).italic());
    EXPECT_EQ(fonts.font(PageFont::title).weight(), QFont::Normal);
    EXPECT_FALSE(fonts.font(PageFont::title).italic());
}

TEST_F(PageFontsTest, WhatFitsStaysAndWhatDoesNotEndsInAnEllipsis) {
    EXPECT_EQ(fonts.elided(PageFont::title, u"Save"_s, 100), u"Save"_s);
    const QString shortened = fonts.elided(PageFont::title, QString(5000, u'm'), 100);
    EXPECT_TRUE(shortened.endsWith(u'…'));
    EXPECT_LE(fonts.width(PageFont::title, shortened), 100);
    EXPECT_GT(fonts.width(PageFont::title, shortened), 80);
}

TEST_F(PageFontsTest, WithoutRoomThereIsNothing) {
    EXPECT_EQ(fonts.elided(PageFont::title, u"Save"_s, 0), QString());
    EXPECT_EQ(fonts.elided(PageFont::title, u"Save"_s, -5), QString());
    EXPECT_EQ(fonts.elided(PageFont::title, u"Save"_s, 1), QString());
}

TEST_F(PageFontsTest, LinesBreakBetweenWords) {
    const QStringList lines = fonts.wrapped(PageFont::note, u"one two three four five six seven"_s, 60, 9);
    EXPECT_GT(lines.size(), 1);
    EXPECT_EQ(lines.join(u' '), u"one two three four five six seven"_s);
    for (const QString& line : lines)
        EXPECT_LE(fonts.width(PageFont::note, line), 60);
}

TEST_F(PageFontsTest, WordsLongerThanALineBreakInside) {
    const QStringList lines = fonts.wrapped(PageFont::note, QString(60, u'm'), 60, 50);
    EXPECT_GT(lines.size(), 3);
    EXPECT_EQ(lines.join(QString()), QString(60, u'm'));
    for (const QString& line : lines)
        EXPECT_LE(fonts.width(PageFont::note, line), 60);
}

TEST_F(PageFontsTest, OfTooManyLinesTheLastEndsInAnEllipsis) {
    const QStringList lines = fonts.wrapped(PageFont::note, u"word "_s.repeated(2000), 60, 3);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines.last().endsWith(u'…'));
    EXPECT_LE(fonts.width(PageFont::note, lines.last()), 60);
}

TEST_F(PageFontsTest, NothingIsNoLines) {
    EXPECT_EQ(fonts.wrapped(PageFont::note, {}, 60, 3).join(QString()), QString());
}

} // namespace
} // namespace quillon
