#include <quillon/app/views/components/colours.h>
#include <quillon/app/views/tray/pop_up_menu.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QTest>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using Kind = TrayMenuItem::Kind;

class PopUpMenuTest : public testing::Test {
  protected:
    std::vector<std::string> texts() {
        std::vector<std::string> read;
        for (const QAction* action : menu.menu().actions())
            read.push_back(
                action->isSeparator()
                    ? "-"
                    : (action->isEnabled() ? "" : "disabled ") + action->text().toStdString()
                          + action->shortcut().toString().toStdString());
        return read;
    }

    std::vector<int> chosen;
    ViewDesk desk;
    PopUpMenu menu{desk.themes, [this](int id) { chosen.push_back(id); }};
    const TrayMenuItem first{.id = 1, .kind = Kind::command, .label = "Fish & Chips "};
    const TrayMenuItem told{.id = 2, .kind = Kind::line, .label = "told"};
    const TrayMenuItem line{.id = 3, .kind = Kind::separator};
    const TrayMenuItem quit{.id = 4, .kind = Kind::command, .label = "Quit ", .key = Key::character("Q")};
};

TEST_F(PopUpMenuTest, ReadsAsItsValuesSay) {
    menu.setItems({first, told, line, quit});
    EXPECT_THAT(texts(), ElementsAre("Fish && Chips ", "disabled told", "-", "Quit Ctrl+Q"));
    menu.menu().actions().constLast()->trigger();
    EXPECT_THAT(chosen, ElementsAre(4));
}

TEST_F(PopUpMenuTest, TheKeysThatItShowsChoose) {
    menu.setItems({first, told, line, quit});
    menu.popUp({20, 20});
    QTest::keyClick(&menu.menu(), Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_THAT(chosen, ElementsAre());
    EXPECT_TRUE(menu.menu().isVisible());
    QTest::keyClick(&menu.menu(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_THAT(chosen, ElementsAre(4));
    EXPECT_FALSE(menu.menu().isVisible());
}

TEST_F(PopUpMenuTest, ChangesWhileItIsOpen) {
    menu.setItems({first, quit});
    menu.popUp({20, 20});
    EXPECT_TRUE(menu.menu().isVisible());
    menu.menu().setActiveAction(menu.menu().actions().constLast());
    menu.setItems({told, line, first, quit});
    EXPECT_THAT(texts(), ElementsAre("disabled told", "-", "Fish && Chips ", "Quit Ctrl+Q"));
    EXPECT_EQ(menu.menu().activeAction(), menu.menu().actions().constLast())
        << "what is highlighted stays so";
    EXPECT_EQ(menu.menu().size(), menu.menu().sizeHint()) << "every line has its place";
    menu.setItems({quit});
    EXPECT_THAT(texts(), ElementsAre("Quit Ctrl+Q"));
    EXPECT_TRUE(menu.menu().isVisible());
    menu.setItems({first, quit});
    EXPECT_THAT(texts(), ElementsAre("Fish && Chips ", "Quit Ctrl+Q"));
    menu.menu().actions().constFirst()->trigger();
    EXPECT_THAT(chosen, ElementsAre(1)) << "once, however often it came and went";
}

TEST_F(PopUpMenuTest, LooksLikeThePanelsAndFollowsTheDesktop) {
    menu.setItems({first, told, line, quit});
    for (const ColourScheme scheme : {ColourScheme::light, ColourScheme::dark}) {
        desk.desktop.appearance.set({scheme, "DejaVu Sans", 10});
        menu.popUp({20, 20});
        const QImage picture = menu.menu().grab().toImage();
        const Palette palette = Palette::forScheme(scheme);
        const QRect rule = menu.menu().actionGeometry(menu.menu().actions().at(2));
        EXPECT_EQ(picture.pixelColor(rule.center().x(), rule.top() + 1), palette.card);
        EXPECT_EQ(picture.pixel(rule.center()), Colours::over(palette.windowBorder, palette.card).rgb())
            << "a line between the groups is seen";
        EXPECT_FALSE(menu.menu().mask().contains(QPoint(0, 0))) << "round";
    }
    EXPECT_EQ(menu.menu().accessibleName(), u"Quillon"_s);
}

} // namespace
} // namespace quillon
