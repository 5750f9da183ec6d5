#include <quillon/app/views/tray/tray_icon.h>

#include <gtest/gtest.h>

#include <QColor>

#include <algorithm>

namespace quillon {
namespace {

int lightest(ColourScheme scheme) {
    int most = 0;
    for (const QRgb pixel : trayIcon(scheme, 22).argb)
        if (qAlpha(pixel) > 200)
            most = std::max(most, qGray(pixel));
    return most;
}

TEST(TrayIcon, StandsOutInBothSchemes) {
    EXPECT_GT(lightest(ColourScheme::dark), 200);
    EXPECT_LT(lightest(ColourScheme::light), 80);
    EXPECT_GT(lightest(ColourScheme::light), 0) << "there is something";
}

/// Draws the tray's sign at every usual size: none of its straight edges may lie between two pixels.
TEST(TrayIcon, IsCrispAtEverySize) {
    for (const int size : {16, 18, 20, 22, 24, 32, 36, 40, 44, 48, 64}) {
        const IconPixels icon = trayIcon(ColourScheme::dark, size);
        ASSERT_EQ(icon.width, size);
        ASSERT_EQ(icon.height, size);
        // Down the middle: the frame, the sign's square, the frame. Each pixel is drawn or is not.
        for (int y = 0; y < size; ++y) {
            const int alpha = qAlpha(icon.argb[static_cast<std::size_t>(y * size + size / 2)]);
            EXPECT_TRUE(alpha == 0 || alpha == 255) << "size " << size << ", row " << y << ": " << alpha;
        }
    }
}

} // namespace
} // namespace quillon
