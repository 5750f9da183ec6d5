#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/symbol_view.h>
#include <quillon/app/views/components/symbols.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>

#include <cstdlib>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

int drawnPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
    }
    return count;
}

QImage imageOf(Symbol symbol, Qt::LayoutDirection direction = Qt::LeftToRight) {
    return symbolPixmap(symbol, 20, Qt::black, 1, direction).toImage();
}

/// In how many pixels one of them has clearly more ink than the other.
int differentPixels(const QImage& one, const QImage& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += std::abs(qAlpha(one.pixel(x, y)) - qAlpha(other.pixel(x, y))) > 127 ? 1 : 0;
    }
    return count;
}

TEST(Symbols, EverySymbolIsDrawnInTheColourThatWasAskedFor) {
    for (const Symbol symbol : allSymbols) {
        const QImage image = symbolPixmap(symbol, 34, Qt::red, 2).toImage();
        EXPECT_EQ(image.size(), QSize(68, 68));
        EXPECT_GT(drawnPixels(image), 200) << symbolName(symbol).toStdString();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) == 255) {
                    ASSERT_EQ(image.pixelColor(x, y), QColor(Qt::red)) << symbolName(symbol).toStdString();
                }
            }
        }
    }
}

TEST(Symbols, EachIsDrawnFromTheFileOfItsNameUnlessTheProgramDrawsItItself) {
    QStringList names;
    for (const Symbol symbol : allSymbols) {
        if (symbol != Symbol::keyboard && symbol != Symbol::keyboardBadgeEllipsis)
            names += symbolName(symbol) + u".svg"_s;
    }
    names.sort();
    QStringList files = QDir(u":/quillon/symbols"_s).entryList(QDir::Files);
    files.sort();
    EXPECT_EQ(files, names);
}

TEST(Symbols, NoTwoLookAlike) {
    for (const Symbol one : allSymbols) {
        for (const Symbol other : allSymbols) {
            if (one < other) {
                EXPECT_GT(differentPixels(imageOf(one), imageOf(other)), 30)
                    << symbolName(one).toStdString() << " and " << symbolName(other).toStdString();
            }
        }
    }
}

TEST(Symbols, WhatFollowsTheDirectionOfReadingIsMirroredFromRightToLeft) {
    for (const Symbol symbol :
         {Symbol::sidebarLeft, Symbol::keyboardBadgeEllipsis, Symbol::noteTextBadgePlus})
        EXPECT_EQ(imageOf(symbol, Qt::RightToLeft), imageOf(symbol).mirrored(true, false));
    for (const Symbol symbol : {Symbol::checkmark, Symbol::printer, Symbol::magnifyingGlass})
        EXPECT_EQ(imageOf(symbol, Qt::RightToLeft), imageOf(symbol));
}

TEST(Symbols, AViewMirrorsItsSymbolWithItsDirection) {
    FakeAppearance appearance;
    ThemeSource themes(appearance);
    SymbolView view(themes, Symbol::sidebarLeft, 20, &Palette::secondary);
    view.resize(20, 20);
    const QImage leftToRight = view.grab().toImage();
    view.setLayoutDirection(Qt::RightToLeft);
    EXPECT_NE(leftToRight, leftToRight.mirrored(true, false));
    EXPECT_EQ(view.grab().toImage(), leftToRight.mirrored(true, false));
}

TEST(Symbols, ColoursSizesAndScreensAreKeptApart) {
    const QImage red = symbolPixmap(Symbol::pinFill, 20, Qt::red, 1).toImage();
    EXPECT_NE(symbolPixmap(Symbol::pinFill, 20, Qt::blue, 1).toImage(), red);
    EXPECT_EQ(symbolPixmap(Symbol::pinFill, 20, Qt::red, 2).size(), QSize(40, 40));
    EXPECT_EQ(symbolPixmap(Symbol::pinFill, 20, Qt::red, 1).toImage(), red);
}

TEST(Symbols, TheProductsMarkAndTheTraysSignAreDrawn) {
    EXPECT_GT(drawnPixels(productMark(42, 1).toImage()), 800);
    EXPECT_GT(drawnPixels(traySign(22, Qt::white).toImage()), 60);
}

} // namespace
} // namespace quillon
