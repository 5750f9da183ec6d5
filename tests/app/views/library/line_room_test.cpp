#include <quillon/app/views/library/line_room.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>

namespace quillon {
namespace {

TEST(LineRoom, HoldsTheWholeLine) {
    for (int step = 0; step < 120; ++step) {
        QFont font = QApplication::font();
        font.setPointSizeF(6 + step / 10.0);
        for (const bool isBold : {false, true}) {
            font.setBold(isBold);
            for (const QString& line :
                 {QStringLiteral("9 clicked · 0 typed"), QStringLiteral("14 clicked · 1 typed")})
                EXPECT_EQ(QFontMetrics(font).elidedText(line, Qt::ElideRight, lineRoom(font, line)), line)
                    << font.pointSizeF();
        }
    }
}

} // namespace
} // namespace quillon
