#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/scroll_pane.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPushButton>
#include <QScrollBar>

namespace quillon {
namespace {

class ScrollPaneTest : public testing::Test {
  protected:
    ScrollPaneTest() {
        window.resize(200, 200);
        pane.setGeometry(0, 0, 200, 150);
        button.setGeometry(0, 160, 100, 30);
        pane.setWidget(content);
    }
    void fill(int height) {
        content->setMinimumHeight(height);
        ASSERT_TRUE(makeActive(window));
        button.setFocus();
        QApplication::processEvents();
    }
    QImage picture() { return pane.grab().toImage(); }

    FakeAppearance appearance;
    ThemeSource themes{appearance};
    QWidget window;
    ScrollPane pane{themes, &window};
    QPushButton button{&window};
    QWidget* content = new QWidget;
};

TEST_F(ScrollPaneTest, TheKeyboardComesWhereThereIsSomethingToScroll) {
    window.show();
    fill(100);
    EXPECT_EQ(pane.focusPolicy(), Qt::NoFocus);
    fill(1000);
    EXPECT_EQ(pane.focusPolicy(), Qt::StrongFocus);
    fill(100);
    EXPECT_EQ(pane.focusPolicy(), Qt::NoFocus);
}

TEST_F(ScrollPaneTest, ARingShowsTheKeyboardOverTheWholeContent) {
    window.show();
    content->setAutoFillBackground(true);
    fill(1000);
    const QImage before = picture();
    pane.setFocus();
    ASSERT_TRUE(pane.hasFocus());
    const QImage after = picture();
    EXPECT_NE(after.pixelColor(0, 75), before.pixelColor(0, 75));
    EXPECT_NE(after.pixelColor(100, 0), before.pixelColor(100, 0));
    EXPECT_EQ(after.pixelColor(100, 75), before.pixelColor(100, 75));
    button.setFocus();
    EXPECT_EQ(picture(), before);
}

} // namespace
} // namespace quillon
