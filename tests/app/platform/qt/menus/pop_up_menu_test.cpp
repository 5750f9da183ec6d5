#include <quillon/app/platform/qt/menus/pop_up_menu.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>

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
    PopUpMenu menu{[this](int id) { chosen.push_back(id); }};
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

} // namespace
} // namespace quillon
