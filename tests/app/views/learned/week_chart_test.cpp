#include <quillon/app/views/learned/week_chart.h>

#include <gtest/gtest.h>

#include <QFont>
#include <QImage>
#include <QPainter>

#include <chrono>
#include <vector>

namespace quillon {
namespace {

constexpr QSize size(400, 140);
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
        QImage image(size, QImage::Format_RGB32);
        image.fill(theme.palette.window);
        QPainter painter(&image);
        painter.setLayoutDirection(direction);
        chart.paint(painter, QRect(QPoint(), size), weeks);
        painter.end();
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
    EXPECT_GT(paint(weeks(1, 100'000'000'000)).typed, 0);
}

TEST_F(WeekChartTest, TheFirstWeekStandsWhereReadingBegins) {
    EXPECT_GT(paint(weeks(10, 10)).left, paint(weeks(10, 10), Qt::RightToLeft).left);
}

TEST_F(WeekChartTest, NoWeeksPaintNothing) {
    EXPECT_EQ(paint({}).clicked, 0);
}

} // namespace
} // namespace quillon
