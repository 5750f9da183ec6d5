#include <quillon/app/cheatsheet/exports/page_fit.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr QSizeF letter(612, 792);

QRectF placed(const QRectF& paper) {
    return fittedTo(paper, letter).mapRect(QRectF(QPointF(), letter));
}

void expectNear(const QRectF& a, const QRectF& b) {
    EXPECT_NEAR(a.left(), b.left(), 1e-6);
    EXPECT_NEAR(a.top(), b.top(), 1e-6);
    EXPECT_NEAR(a.width(), b.width(), 1e-6);
    EXPECT_NEAR(a.height(), b.height(), 1e-6);
}

TEST(PageFit, OnItsOwnPaperAPageStaysAsItIs) {
    EXPECT_TRUE(qFuzzyCompare(fittedTo({0, 0, 612, 792}, letter), QTransform()));
}

TEST(PageFit, OnPaperAcrossItIsTurnedAndFillsIt) {
    expectNear(placed({0, 0, 792, 612}), {0, 0, 792, 612});
    const QTransform fit = fittedTo({0, 0, 792, 612}, letter);
    EXPECT_NEAR(fit.map(QPointF(0, 0)).x(), 792, 1e-6);
    EXPECT_NEAR(fit.map(QPointF(0, 0)).y(), 0, 1e-6);
}

TEST(PageFit, OnOtherPaperItIsAsLargeAsItFitsAndInTheMiddle) {
    const QRectF a4(0, 0, 595, 842);
    const double height = 595.0 / 612 * 792;
    expectNear(placed(a4), {0, (842 - height) / 2, 595, height});
    expectNear(placed({0, 0, 842, 595}), {(842 - height) / 2, 0, height, 595});
}

TEST(PageFit, ItGrowsWithTheDotsOfThePrinter) {
    expectNear(placed({10, 20, 6120, 7920}), {10, 20, 6120, 7920});
}

} // namespace
} // namespace quillon
