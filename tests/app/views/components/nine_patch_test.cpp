#include <quillon/app/views/components/device_pixels.h>
#include <quillon/app/views/components/nine_patch.h>

#include <gtest/gtest.h>

#include <QImage>

namespace quillon {
namespace {

constexpr QColor ground(20, 30, 40);
constexpr QColor fill(250, 250, 250);

/// A screen with this many device pixels per point.
class NinePatchTest : public testing::TestWithParam<double> {
  protected:
    NinePatchTest() : image(QSizeF(260 * GetParam(), 200 * GetParam()).toSize(), QImage::Format_RGB32) {
        image.setDevicePixelRatio(GetParam());
        image.fill(ground);
    }
    void draw(const QRectF& box) {
        const NinePatch patch = roundedBox(11, GetParam(), fill, fill);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(patch.inside(painter, box), fill);
        patch.paintFrame(painter, box);
    }

    QImage image;
};

TEST_P(NinePatchTest, NoSeamShowsBetweenItsPieces) {
    for (double shift = 0; shift < 1; shift += 0.125) {
        image.fill(ground);
        const QRectF box(QPointF(13 + shift, 21 + shift), QSizeF(171, 83.5));
        draw(box);
        const QRectF device(box.topLeft() * GetParam(), box.size() * GetParam());
        const QRect sure = device.adjusted(2, 2, -2, -2).toRect();
        const int corner = static_cast<int>(12 * GetParam());
        for (int y = sure.top(); y <= sure.bottom(); ++y) {
            for (int x = sure.left(); x <= sure.right(); ++x) {
                const bool inCornerX = x < sure.left() + corner || x > sure.right() - corner;
                const bool inCornerY = y < sure.top() + corner || y > sure.bottom() - corner;
                if (!(inCornerX && inCornerY)) {
                    ASSERT_GE(image.pixelColor(x, y).red(), fill.red() - 2)
                        << x << ", " << y << ", shifted " << shift;
                }
            }
        }
    }
}

TEST_P(NinePatchTest, ItsEdgesAreSharp) {
    draw(QRectF(13.3, 21.7, 171, 83.5));
    const int middleX = static_cast<int>(100 * GetParam());
    const int middleY = static_cast<int>(60 * GetParam());
    for (int y = 0; y < image.height(); ++y) {
        const QColor seen = image.pixelColor(middleX, y);
        EXPECT_TRUE(seen == fill || seen == ground) << y;
    }
    for (int x = 0; x < image.width(); ++x) {
        const QColor seen = image.pixelColor(x, middleY);
        EXPECT_TRUE(seen == fill || seen == ground) << x;
    }
}

TEST_P(NinePatchTest, BoxesThatTouchStillDoOnDevicePixels) {
    QPainter painter(&image);
    painter.translate(0.3, 7.9);
    const QRectF upper = onDevicePixels(painter, {10, 10, 50, 20.3});
    const QRectF lower = onDevicePixels(painter, {10, 30.3, 50, 20});
    EXPECT_NEAR(upper.bottom(), lower.top(), 1e-9);
    const QPointF corner = painter.deviceTransform().map(upper.topLeft());
    EXPECT_NEAR(corner.x(), std::round(corner.x()), 1e-6);
    EXPECT_NEAR(corner.y(), std::round(corner.y()), 1e-6);
}

INSTANTIATE_TEST_SUITE_P(Scales, NinePatchTest, testing::Values(1.0, 1.25, 1.5, 1.75, 2.0));

} // namespace
} // namespace quillon
