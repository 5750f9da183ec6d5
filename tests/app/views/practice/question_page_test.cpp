#include "practice_fixture.h"

#include <quillon/app/views/components/text.h>
#include <quillon/app/views/components/themed_label.h>
#include <quillon/app/views/practice/keyboard_view.h>
#include <quillon/app/views/practice/question_card.h>

#include <QFontMetrics>
#include <QLayout>

namespace quillon {
namespace {

using QuestionPageTest = PracticeViewTest;

TEST_F(QuestionPageTest, LongTextsOverlapNothing) {
    RawMenuItem submenu = command("Words", "");
    for (int words = 0; words < 60; ++words)
        submenu.title += " path";
    std::string words;
    while (words.size() < 300)
        words += "Replace ";
    submenu.children = {command(words.c_str(), "S"), command(std::string(300, 'W').c_str(), "T")};
    read(2, "Writer", menusWith({submenu}));
    open();
    window.resize(560, 580);
    view->resize(560, 580);
    press(Qt::Key_Return);
    for (const std::size_t question : {0, 1}) {
        ASSERT_EQ(view->round().index(), question);
        showAnswer();
        QApplication::processEvents();
        EXPECT_LE(view->minimumSizeHint().width(), 560);
        const auto& card = *view->findChild<QuestionCard*>();
        EXPECT_GE(card.height(), card.layout()->minimumHeightForWidth(card.width()));
        int bottom = 0;
        for (const auto* label : card.findChildren<ThemedLabel*>()) {
            if (!label->isVisible() || label->text().isEmpty())
                continue;
            EXPECT_GE(label->y(), bottom) << utf8(label->text());
            bottom = label->geometry().bottom() + 1;
            EXPECT_TRUE(card.rect().contains(label->geometry())) << utf8(label->text());
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << utf8(label->text());
            EXPECT_LE(label->height(), 2 * QFontMetrics(label->font()).lineSpacing() + 2);
        }
        EXPECT_LE(card.geometry().bottom(), view->findChild<KeyboardView*>()->y());
        press(Qt::Key_Return);
    }
}

} // namespace
} // namespace quillon
