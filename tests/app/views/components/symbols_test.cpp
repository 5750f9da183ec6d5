#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/symbol_view.h>
#include <quillon/app/views/components/symbols.h>

#include <gmock/gmock.h>

#include <QDir>
#include <QImage>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::AnyOf;
using testing::Each;
using testing::Ge;
using testing::Le;

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

/// The ink of the pixels in the line of an image that is so far down (0 to 1).
std::vector<int> inkOfRow(const QImage& image, double down) {
    std::vector<int> ink;
    for (int x = 0; x < image.width(); ++x)
        ink.push_back(qAlpha(image.pixel(x, static_cast<int>(image.height() * down))));
    return ink;
}

std::vector<int> inkOfColumn(const QImage& image, double across) {
    return inkOfRow(image.transformed(QTransform().rotate(-90)).mirrored(false, true), across);
}

/// How often a line of pixels goes from light to dark.
int darkLines(const std::vector<int>& ink) {
    int lines = 0;
    for (std::size_t i = 1; i < ink.size(); ++i)
        lines += ink[i - 1] < 128 && ink[i] >= 128 ? 1 : 0;
    return lines + (ink.front() >= 128 ? 1 : 0);
}

TEST(Symbols, StraightLinesAreNoBlurAtAnySize) {
    for (int size = 13; size <= 48; ++size) {
        const QImage sideBar = symbolPixmap(Symbol::sidebarLeft, size, Qt::black, 1).toImage();
        const std::vector<int> across = inkOfRow(sideBar, 0.65);
        EXPECT_THAT(across, Each(AnyOf(Le(70), Ge(185)))) << size;
        EXPECT_EQ(darkLines(across), 3) << size;
        const QImage note = symbolPixmap(Symbol::noteText, size, Qt::black, 1).toImage();
        const std::vector<int> down = inkOfColumn(note, 0.4);
        EXPECT_THAT(down, Each(AnyOf(Le(70), Ge(185)))) << size;
        EXPECT_EQ(darkLines(down), 5) << size;
    }
}

TEST(Symbols, WhatIsTheSameOnBothSidesStaysSo) {
    for (const Symbol symbol :
         {Symbol::bell, Symbol::pin, Symbol::printer, Symbol::exclamationMarkTriangle}) {
        for (int size = 13; size <= 36; ++size) {
            const QImage image = symbolPixmap(symbol, size, Qt::black, 1).toImage();
            // Where lines are as wide as an odd number of pixels, an even size leaves a column at the end.
            const QImage mirrored = image.mirrored(true, false);
            const QImage moved = mirrored.copy(1, 0, size, size);
            EXPECT_TRUE(differentPixels(image, mirrored) == 0 || differentPixels(image, moved) == 0)
                << symbolName(symbol).toStdString() << " at " << size;
        }
    }
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
