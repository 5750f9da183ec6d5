#include <quillon/app/views/components/styled_menu.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

void expectRound(const QMenu& menu) {
    const QRect all = menu.rect();
    const QRegion shown = menu.mask();
    for (const QPoint corner : {all.topLeft(), all.topRight(), all.bottomLeft(), all.bottomRight()})
        EXPECT_FALSE(shown.contains(corner));
    EXPECT_TRUE(shown.contains(all.center()));
    EXPECT_EQ(shown.boundingRect(), all) << "the sides are whole";
}

TEST(StyledMenu, IsRoundLikeThePanelsWhateverItsSize) {
    QMenu menu;
    menu.addAction(u"Pin"_s);
    styleMenu(menu, Theme::fromLook({ColourScheme::light, "DejaVu Sans", 10}, QFont()));
    menu.popup(QPoint(100, 100));
    const QSize before = menu.size();
    expectRound(menu);
    menu.addAction(u"Open in Library"_s);
    menu.resize(menu.sizeHint());
    EXPECT_NE(menu.size(), before);
    expectRound(menu);
}

} // namespace
} // namespace quillon
