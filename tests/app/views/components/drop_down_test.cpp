#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/drop_down.h>

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QWidget>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class DropDownTest : public testing::Test {
  protected:
    FakeAppearance appearance;
    ThemeSource themes{appearance};
    DropDown choices{themes};
};

TEST_F(DropDownTest, GrowsWithItsChoicesButNotWithoutEnd) {
    choices.addItem(u"Short"_s);
    const int narrow = choices.sizeHint().width();
    choices.addItem(u"A choice that is longer"_s);
    EXPECT_GT(choices.sizeHint().width(), narrow);
    choices.addItem(QString(300, u'm'));
    EXPECT_LT(choices.sizeHint().width(), 320);
}

TEST_F(DropDownTest, ShowsItsChoiceWholeAtEverySize) {
    for (const QString& choice : {u"Command"_s, u"Symbols"_s, u"Control"_s}) {
        choices.clear();
        choices.addItem(choice);
        for (double points = 7; points < 24; points += 0.5) {
            appearance.set({ColourScheme::light, {}, points});
            choices.resize(choices.sizeHint());
            EXPECT_EQ(choices.shownText(), choice) << points;
        }
    }
}

TEST_F(DropDownTest, OpensAListThatIsCutRoundAndShowsAllChoices) {
    for (const QString& choice : {u"One"_s, u"Two"_s, u"Three"_s})
        choices.addItem(choice);
    choices.show();
    choices.showPopup();
    const QAbstractItemView& list = *choices.view();
    EXPECT_FALSE(list.window()->mask().isEmpty());
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.model()->index(2, 0))));
    choices.hidePopup();
}

} // namespace
} // namespace quillon
