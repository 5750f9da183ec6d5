#include <quillon/app/views/learned/week_chart.h>
#include <quillon/kit/records/usage.h>

#include <gtest/gtest.h>

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QRegion>

#include <chrono>
#include <cmath>
#include <utility>
#include <vector>

namespace quillon {
namespace {

constexpr QSize size(400, 140);
constexpr int besideBars = 6; ///< between the bars' box and the lines of text above and below it
constexpr Day monday = std::chrono::local_days{std::chrono::year{2026} / 11 / 16};

struct Bars {
    int typed = 0;   ///< pixels of that colour
    int clicked = 0; ///< likewise
    double left = 0; ///< the share of all of these that lies in the left half
};

class WeekChartTest : public testing::Test {
  protected:
    /// Without the legend's line.
    Bars paint(const std::vector<WeekBar>& weeks, Qt::LayoutDirection direction = Qt::LeftToRight) const {
        const QImage image = drawn(weeks, direction);
        Bars bars;
        int left = 0;
        for (int y = 24; y < chart.height() - 20; ++y)
            for (int x = 0; x < size.width(); ++x) {
                const bool isTyped = image.pixelColor(x, y) == theme.palette.accent;
                const bool isPlain = image.pixelColor(x, y) == theme.palette.window;
                bars.typed += isTyped ? 1 : 0;
                bars.clicked += isTyped || isPlain ? 0 : 1;
                left += !isPlain && x < size.width() / 2 ? 1 : 0;
            }
        bars.left = bars.typed + bars.clicked == 0 ? 0 : double(left) / (bars.typed + bars.clicked);
        return bars;
    }
    QImage drawn(const std::vector<WeekBar>& weeks, Qt::LayoutDirection direction = Qt::LeftToRight) const {
        QImage image(size, QImage::Format_RGB32);
        image.fill(theme.palette.window);
        QPainter painter(&image);
        painter.setLayoutDirection(direction);
        chart.paint(painter, QRect(QPoint(), size), weeks);
        return image;
    }
    /// Around all that the bars of the first of these weeks changed in the picture.
    QRect aroundBars(Count clicked, Count typed) const {
        const QImage with = drawn(weeks(clicked, typed));
        const QImage without = drawn(weeks(0, 0));
        QRegion changed;
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                if (with.pixel(x, y) != without.pixel(x, y))
                    changed += QRect(x, y, 1, 1);
        return changed.boundingRect();
    }
    /// Where the bars of the first of twelve weeks may be.
    QRect firstSlot() const {
        const int line = static_cast<int>(std::ceil(QFontMetricsF(theme.styles.caption).height()));
        const int top = line + besideBars;
        return {0, top, size.width() / 12, chart.height() - 2 * top};
    }
    static std::vector<WeekBar> weeks(Count clicked, Count typed) {
        std::vector<WeekBar> weeks(12, {monday});
        weeks.front() = {monday, clicked, typed};
        return weeks;
    }

    Theme theme = Theme::fromLook({}, QFont());
    WeekChart chart{theme};
};

TEST_F(WeekChartTest, WhatWasDoneMoreHasTheTallerBar) {
    const Bars mostlyTyped = paint(weeks(2, 10));
    const Bars mostlyClicked = paint(weeks(10, 2));
    EXPECT_GT(mostlyTyped.typed, 3 * mostlyClicked.typed);
    EXPECT_GT(mostlyClicked.clicked, mostlyTyped.clicked);
    EXPECT_GT(mostlyClicked.typed, 0);
}

TEST_F(WeekChartTest, AWeekWithoutAnythingHasNoBar) {
    EXPECT_EQ(paint(weeks(3, 0)).typed, 0);
    EXPECT_EQ(paint(weeks(0, 0)).typed, 0);
}

TEST_F(WeekChartTest, HugeCountsStayInside) {
    constexpr Count huge = largestStoredCount;
    for (const auto& [clicked, typed] : {std::pair(Count(1), huge), {huge, Count(1)}, {huge, huge}}) {
        const QRect bars = aroundBars(clicked, typed);
        EXPECT_TRUE(firstSlot().contains(bars)) << clicked << " clicked, " << typed << " typed";
        EXPECT_EQ(bars.top(), firstSlot().top()) << "the taller one is as high as the box";
        EXPECT_EQ(bars.bottom(), firstSlot().bottom()) << "and stands on its floor";
    }
    EXPECT_EQ(aroundBars(huge, 1).width(), aroundBars(huge, huge).width()) << "the lower one is seen too";
}

TEST_F(WeekChartTest, TheFirstWeekStandsWhereReadingBegins) {
    EXPECT_GT(paint(weeks(10, 10)).left, paint(weeks(10, 10), Qt::RightToLeft).left);
}

TEST_F(WeekChartTest, NoWeeksPaintNothing) {
    EXPECT_EQ(paint({}).clicked, 0);
}

} // namespace
} // namespace quillon
