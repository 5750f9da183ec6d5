#include "settings_fixture.h"

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class GeneralPageTest : public SettingsViewTest {
  protected:
    GeneralPage& page() { return view->general(); }
    FigureLabel& seconds() { return *page().findChild<FigureLabel*>(); }
    /// The user picks a choice with the keyboard.
    static void pick(DropDown& choices, int down) {
        choices.setFocus();
        for (int i = 0; i < std::abs(down); ++i)
            QTest::keyClick(&choices, down > 0 ? Qt::Key_Down : Qt::Key_Up);
    }
    /// What a screen reader calls a choice, whose own name is what is chosen.
    static QString labelOf(QWidget& control) {
        for (const auto& [label, relation] : read(control).relations(QAccessible::Label))
            return label->text(QAccessible::Name);
        return {};
    }
    static QStringList choicesOf(const DropDown& choices) {
        QStringList names;
        for (int i = 0; i < choices.count(); ++i)
            names.append(choices.itemText(i));
        return names;
    }
};

TEST_F(GeneralPageTest, TheTriggerKeysAreOfferedByTheirNames) {
    EXPECT_EQ(choicesOf(page().trigger()), (QStringList{u"Command"_s, u"Option"_s, u"Control"_s}));
    EXPECT_EQ(page().trigger().currentText(), u"Command"_s);
    EXPECT_THAT(texts(), Contains(u"Hold this key"_s));
    EXPECT_THAT(texts(), Contains(u"⌘ is the Super or Windows key, ⌥ is Alt, ⌃ is Ctrl."_s));
}

TEST_F(GeneralPageTest, TheExplanationFollowsTheKeyAtOnce) {
    EXPECT_THAT(texts(), Contains(u"Using the key in a shortcut (⌘-click) never opens the overlay."_s));
    pick(page().trigger(), 2);
    EXPECT_EQ(desk.model.trigger(), TriggerKey::control);
    EXPECT_THAT(texts(), Contains(u"Using the key in a shortcut (⌃-click) never opens the overlay."_s));
    desk.model.setTrigger(TriggerKey::option);
    EXPECT_EQ(page().trigger().currentText(), u"Option"_s);
    EXPECT_THAT(texts(), Contains(u"Using the key in a shortcut (⌥-click) never opens the overlay."_s));
}

TEST_F(GeneralPageTest, TheExplanationShowsKeysAsTheyAreChosenToBeShown) {
    desk.desktop.launcherKey.set(Modifiers::command);
    pick(page().keyLabels(), 1);
    EXPECT_THAT(texts(), Contains(u"Using the key in a shortcut (Super-click) never opens the overlay."_s));
    EXPECT_THAT(
        texts(),
        Contains(
            u"Your desktop opens its launcher when Super is pressed alone, so holding it may do both."_s));
    EXPECT_EQ(page().useOther().text(), u"Use Ctrl Instead"_s);
    pick(page().keyLabels(), -1);
    EXPECT_THAT(texts(), Contains(u"Using the key in a shortcut (⌘-click) never opens the overlay."_s));
    EXPECT_EQ(page().useOther().text(), u"Use ⌃ Instead"_s);
}

TEST_F(GeneralPageTest, AKeyThatAlsoOpensTheLauncherIsToldAndReplacedWithOneClick) {
    EXPECT_FALSE(page().useOther().isVisible());
    desk.desktop.launcherKey.set(Modifiers::command);
    EXPECT_THAT(
        texts(),
        Contains(u"Your desktop opens its launcher when ⌘ is pressed alone, so holding it may do both."_s));
    EXPECT_EQ(page().useOther().text(), u"Use ⌃ Instead"_s);
    QTest::mouseClick(&page().useOther(), Qt::LeftButton);
    EXPECT_EQ(desk.model.trigger(), TriggerKey::control);
    EXPECT_EQ(page().trigger().currentText(), u"Control"_s);
    EXPECT_FALSE(page().useOther().isVisible());
    EXPECT_TRUE(page().trigger().hasFocus()) << "the keyboard is not lost with the button";
}

TEST_F(GeneralPageTest, AKeyThatTheLauncherDoesNotUseIsNoConflict) {
    desk.desktop.launcherKey.set(Modifiers::option);
    EXPECT_FALSE(page().useOther().isVisible());
    desk.model.setTrigger(TriggerKey::option);
    EXPECT_TRUE(page().useOther().isVisible());
}

TEST_F(GeneralPageTest, TheStoredDefaultStaysWhereTheLauncherUsesIt) {
    desk.desktop.launcherKey.set(Modifiers::command);
    EXPECT_EQ(desk.model.trigger(), TriggerKey::command);
}

TEST_F(GeneralPageTest, TheHoldTimeIsShownWithOneDecimal) {
    EXPECT_EQ(seconds().text(), u"0.8 s"_s);
    EXPECT_GE(seconds().width(), 44);
    EXPECT_EQ(page().holdTime().width(), 200);
    page().holdTime().setFocus();
    QTest::keyClick(&page().holdTime(), Qt::Key_Right);
    EXPECT_EQ(seconds().text(), u"0.9 s"_s);
    EXPECT_DOUBLE_EQ(desk.model.holdDelay().count(), 0.9);
    desk.model.setHoldDelay(Seconds(1.5));
    EXPECT_EQ(seconds().text(), u"1.5 s"_s);
}

TEST_F(GeneralPageTest, TheHoldTimeStaysWithinItsEnds) {
    StepSlider& slider = page().holdTime();
    slider.setFocus();
    QTest::keyClick(&slider, Qt::Key_End);
    EXPECT_EQ(seconds().text(), u"2.0 s"_s);
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_DOUBLE_EQ(desk.model.holdDelay().count(), 2.0);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(seconds().text(), u"0.3 s"_s);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_DOUBLE_EQ(desk.model.holdDelay().count(), 0.3);
}

TEST_F(GeneralPageTest, AStoredTimeThatTheSliderCannotGiveIsShownAndKept) {
    for (const double stored : {0.85, 3.0, 0.1, 17.0}) {
        desk.model.setHoldDelay(Seconds(stored));
        open();
        EXPECT_EQ(seconds().text(), QString::number(stored, 'f', 1) + u" s"_s);
        EXPECT_DOUBLE_EQ(desk.model.holdDelay().count(), stored);
        EXPECT_GE(seconds().width(), seconds().sizeHint().width());
    }
}

TEST_F(GeneralPageTest, HowKeysAreShownIsChosen) {
    EXPECT_EQ(choicesOf(page().keyLabels()), (QStringList{u"Symbols"_s, u"Names"_s}));
    EXPECT_EQ(page().keyLabels().currentText(), u"Symbols"_s);
    pick(page().keyLabels(), 1);
    EXPECT_EQ(desk.model.keyLabels(), KeyLabels::names);
    desk.model.setKeyLabels(KeyLabels::symbols);
    EXPECT_EQ(page().keyLabels().currentText(), u"Symbols"_s);
}

TEST_F(GeneralPageTest, StartingWithTheSessionIsASwitch) {
    EXPECT_FALSE(page().start().isChecked());
    QTest::mouseClick(&page().start(), Qt::LeftButton);
    EXPECT_TRUE(desk.desktop.sessionStart.isOn());
    QTest::mouseClick(&page().start(), Qt::LeftButton);
    EXPECT_FALSE(desk.desktop.sessionStart.isOn());
}

TEST_F(GeneralPageTest, APressOnTheLabelOfASwitchIsForTheSwitch) {
    QLabel* label = nullptr;
    for (QLabel* each : page().findChildren<QLabel*>())
        if (each->text() == u"Start with the session"_s)
            label = each;
    ASSERT_TRUE(label);
    QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(5, label->height() / 2));
    EXPECT_TRUE(desk.desktop.sessionStart.isOn());
}

TEST_F(GeneralPageTest, AStartThatCannotBeChangedIsSaidAndTheSwitchGoesBack) {
    const QString problem =
        u"The start with the session could not be changed: your configuration folder cannot "
        "be written to. Allow that, then try again."_s;
    EXPECT_THAT(texts(), Not(Contains(problem)));
    desk.desktop.sessionStart.refuses = true;
    QTest::mouseClick(&page().start(), Qt::LeftButton);
    EXPECT_FALSE(page().start().isChecked());
    EXPECT_THAT(texts(), Contains(problem));
    EXPECT_EQ(read(page().start()).text(QAccessible::Description), problem);
    desk.desktop.sessionStart.refuses = false;
    QTest::mouseClick(&page().start(), Qt::LeftButton);
    EXPECT_TRUE(page().start().isChecked());
    EXPECT_THAT(texts(), Not(Contains(problem)));
}

TEST_F(GeneralPageTest, AStartThatWasChangedElsewhereIsSeenWhenThePageIsShownAgain) {
    desk.desktop.sessionStart.setOn(true);
    openTab(SettingsTab::coach);
    openTab(SettingsTab::general);
    EXPECT_TRUE(page().start().isChecked());
}

TEST_F(GeneralPageTest, WithoutASessionThatStartsProgramsThereIsNoSwitch) {
    desk.desktop.sessionStart.isThere = false;
    open();
    EXPECT_THAT(texts(), Not(Contains(u"Start with the session"_s)));
    EXPECT_EQ(page().findChild<SwitchControl*>(), nullptr);
}

TEST_F(GeneralPageTest, AccessibilityIsAllowedOrAskedFor) {
    EXPECT_THAT(texts(), Not(Contains(u"Allowed"_s)));
    EXPECT_EQ(page().allow().text(), u"Allow…"_s);
    QTest::mouseClick(&page().allow(), Qt::LeftButton);
    EXPECT_THAT(desk.desktop.windows.opened(), ElementsAre(WindowName::welcome));
    desk.trust();
    EXPECT_THAT(texts(), Contains(u"Allowed"_s));
    EXPECT_FALSE(page().allow().isVisible());
}

TEST_F(GeneralPageTest, EveryControlIsNamedAndTheSliderTellsItsUnit) {
    EXPECT_EQ(labelOf(page().trigger()), u"Hold this key"_s);
    EXPECT_EQ(
        read(page().trigger()).text(QAccessible::Description),
        u"Using the key in a shortcut (⌘-click) never opens the overlay."_s);
    EXPECT_EQ(labelOf(page().keyLabels()), u"Show keys as"_s);
    EXPECT_EQ(read(page().start()).text(QAccessible::Name), u"Start with the session"_s);
    EXPECT_EQ(read(page().start()).role(), QAccessible::CheckBox);

    QAccessibleInterface& slider = read(page().holdTime());
    EXPECT_EQ(slider.role(), QAccessible::Slider);
    EXPECT_EQ(slider.text(QAccessible::Name), u"Hold time"_s);
    EXPECT_EQ(slider.text(QAccessible::Value), u"0.8 s"_s);
    EXPECT_EQ(slider.text(QAccessible::Description), u"0.8 s"_s);
    ASSERT_TRUE(slider.valueInterface());
    EXPECT_EQ(slider.valueInterface()->currentValue().toDouble(), 0.8);
    EXPECT_EQ(slider.valueInterface()->minimumValue().toDouble(), 0.3);
    EXPECT_EQ(slider.valueInterface()->maximumValue().toDouble(), 2.0);
    slider.valueInterface()->setCurrentValue(1.2);
    EXPECT_DOUBLE_EQ(desk.model.holdDelay().count(), 1.2);
}

TEST_F(GeneralPageTest, TabGoesThroughThePageInReadingOrderAndRound) {
    desk.desktop.launcherKey.set(Modifiers::command);
    const std::vector<QWidget*> order{&view->tabs(),      &page().trigger(),   &page().useOther(),
                                      &page().holdTime(), &page().keyLabels(), &page().start(),
                                      &page().allow()};
    view->tabs().setFocus();
    for (std::size_t i = 0; i < 2 * order.size(); ++i) {
        EXPECT_EQ(QApplication::focusWidget(), order[i % order.size()]) << i;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
}

} // namespace
} // namespace quillon
