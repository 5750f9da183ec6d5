#include <quillon/app/views/components/symbols.h>

#include <gtest/gtest.h>

#include <QImage>

namespace quillon {
namespace {

constexpr std::array allSymbols{
    Symbol::handRaised,      Symbol::hourglass,        Symbol::keyboard, Symbol::keyboardBadgeEllipsis,
    Symbol::magnifyingGlass, Symbol::menuBarRectangle, Symbol::pinFill,  Symbol::xmarkCircleFill};

int drawnPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
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

TEST(Symbols, ColoursSizesAndScreensAreKeptApart) {
    const QImage red = symbolPixmap(Symbol::pinFill, 20, Qt::red, 1).toImage();
    EXPECT_NE(symbolPixmap(Symbol::pinFill, 20, Qt::blue, 1).toImage(), red);
    EXPECT_EQ(symbolPixmap(Symbol::pinFill, 20, Qt::red, 2).size(), QSize(40, 40));
    EXPECT_EQ(symbolPixmap(Symbol::pinFill, 20, Qt::red, 1).toImage(), red);
}

TEST(Symbols, TheProductsMarkIsDrawn) {
    EXPECT_GT(drawnPixels(productMark(42, 1).toImage()), 800);
}

} // namespace
} // namespace quillon
