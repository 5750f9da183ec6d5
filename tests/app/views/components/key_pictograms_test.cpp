#include <quillon/app/views/components/key_pictograms.h>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

const QStringList signs{u"⌃"_s, u"⌥"_s, u"⇧"_s, u"⌘"_s, u"↩"_s, u"⌤"_s, u"⇥"_s,
                        u"⇤"_s, u"⌫"_s, u"⌦"_s, u"⎋"_s, u"⌧"_s, u"←"_s, u"→"_s,
                        u"↑"_s, u"↓"_s, u"⇞"_s, u"⇟"_s, u"↖"_s, u"↘"_s, u"⏏"_s};

/// How many pixels are inked, counted by how far.
double inked(const QPainterPath& path, QSize size) {
    QImage image(size, QImage::Format_Alpha8);
    image.fill(0);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(path, Qt::black);
    }
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += image.scanLine(y)[x] / 255.0;
    return sum;
}

TEST(KeyPictogramsTest, PartsThatTouchLeaveNoSeam) {
    for (const QString& sign : signs) {
        ASSERT_TRUE(KeyPictograms::has(sign)) << sign.toStdString();
        for (double size = 9; size < 60; size += 0.5) {
            const auto [ink, path] = KeyPictograms::drawing(sign, size);
            const double whole = inked(path.simplified(), ink);
            EXPECT_GT(inked(path, ink) / whole, 0.95) << sign.toStdString() << " of size " << size;
        }
    }
}

TEST(KeyPictogramsTest, TheInkFillsItsBox) {
    for (const QString& sign : signs) {
        for (const double size : {9.0, 11.5, 26.0, 190.0}) {
            const auto [ink, path] = KeyPictograms::drawing(sign, size);
            EXPECT_EQ(ink, KeyPictograms::inkSize(sign, size));
            const QRectF box = path.boundingRect();
            EXPECT_LT((box.topLeft() - QPointF()).manhattanLength(), 0.5) << sign.toStdString();
            EXPECT_LT((box.bottomRight() - QPointF(ink.width(), ink.height())).manhattanLength(), 0.5)
                << sign.toStdString();
        }
    }
}

} // namespace
} // namespace quillon
