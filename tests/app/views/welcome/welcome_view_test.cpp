#include <quillon/app/views/components/focus_ring.h>
#include <quillon/app/views/components/key_places.h>
#include <quillon/app/views/welcome/step_marker.h>
#include <quillon/app/views/welcome/welcome_note.h>
#include <quillon/app/views/welcome/welcome_step.h>
#include <quillon/app/views/welcome/welcome_steps.h>
#include <quillon/app/views/welcome/welcome_texts.h>
#include <quillon/app/views/welcome/welcome_view.h>
#include <quillon/tests/app/views/support/printing.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTest>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class WelcomeViewTest : public testing::Test {
  protected:
    WelcomeViewTest() { show(); }

    void show() {
        window.resize(view.sizeHint());
        view.setParent(&window);
        view.resize(window.size());
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }
    /// The buttons that are in view, from left to right and from the top.
    QStringList buttons() const {
        QStringList labels;
        for (const auto* button : view.findChildren<QAbstractButton*>())
            if (button->isVisible())
                labels.append(button->text());
        return labels;
    }
    QAbstractButton& button(const QString& label) const {
        for (auto* found : view.findChildren<QAbstractButton*>())
            if (found->text() == label)
                return *found;
        throw std::logic_error("no button " + label.toStdString());
    }
    /// Every label in view.
    QStringList texts() const {
        QStringList texts;
        for (const auto* label : view.findChildren<QLabel*>())
            if (label->isVisible())
                texts.append(label->text());
        return texts;
    }
    const WelcomeStep& step(int number) const { return *view.findChildren<WelcomeStep*>().at(number - 1); }
    QString focused() const {
        const auto* focus = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
        return focus ? focus->text() : QString();
    }

    WelcomeNeeds needs() {
        return {
            .timers = desk.desktop.timers,
            .silentApps = desk.desktop.silentApps,
            .launcherKey = desk.desktop.launcherKey,
            .tray = desk.desktop.tray};
    }
    /// The texts of the notes that are in view.
    QStringList notes() const {
        QStringList texts;
        for (const auto* note : view.findChildren<WelcomeNote*>())
            if (note->isVisible())
                texts.append(note->text());
        return texts;
    }

    ViewDesk desk;
    QWidget window;
    WelcomeView& view = *new WelcomeView(desk.model, desk.themes, needs(), &window);
};

TEST_F(WelcomeViewTest, AsksForThePermission) {
    EXPECT_THAT(
        buttons(), ElementsAre(u"Allow Accessibility…"_s, u"Open System Settings"_s, u"Later"_s, u"Done"_s));
    EXPECT_FALSE(step(1).marker().isDone());
    EXPECT_FALSE(texts().contains(u"Allowed"_s));
    EXPECT_TRUE(texts().contains(u"Welcome to Quillon"_s));
    EXPECT_TRUE(texts().contains(u"Learn the shortcuts of the apps you already use."_s));
    EXPECT_EQ(step(1).title(), u"Allow Accessibility"_s);
    EXPECT_EQ(step(1).body(), WelcomeTexts::allowBody(Vocabulary::here()));
    EXPECT_EQ(step(2).title(), u"Hold ⌘ in any app"_s);
    EXPECT_EQ(step(2).body(), WelcomeTexts::holdBody(TriggerKey::command, u"⌘"_s));
    EXPECT_EQ(step(3).title(), WelcomeTexts::privacyTitle(Vocabulary::here()));
    EXPECT_EQ(step(3).body(), WelcomeTexts::privacyBody(Vocabulary::here()));
}

TEST_F(WelcomeViewTest, ButtonsStandAtTheEdgesOfTheirColumns) {
    const auto leftOf = [this](const QWidget& part) { return part.mapTo(&view, QPoint(0, 0)).x(); };
    const auto* const body = step(1).findChildren<QLabel*>().at(1);
    ASSERT_EQ(body->text(), step(1).body());
    EXPECT_EQ(
        leftOf(button(u"Allow Accessibility…"_s)) + focusRingRoom,
        leftOf(*body) + body->contentsRect().left());
    const QAbstractButton& done = button(u"Done"_s);
    constexpr int footerPadding = 20;
    EXPECT_EQ(leftOf(done) + done.width() - focusRingRoom, view.width() - footerPadding);
    EXPECT_EQ(done.mapTo(&view, QPoint(0, done.height())).y() - focusRingRoom, view.height() - footerPadding);
}

TEST_F(WelcomeViewTest, NoticesByItselfThatThePermissionWasGivenAndTaken) {
    desk.trust();
    EXPECT_THAT(buttons(), ElementsAre(u"Later"_s, u"Done"_s));
    EXPECT_TRUE(step(1).marker().isDone());
    EXPECT_TRUE(texts().contains(u"Allowed"_s));
    desk.desktop.access.setTrusted(false);
    desk.model.refreshTrust();
    EXPECT_FALSE(step(1).marker().isDone());
    EXPECT_TRUE(button(u"Allow Accessibility…"_s).isVisible());
    EXPECT_FALSE(texts().contains(u"Allowed"_s));
}

TEST_F(WelcomeViewTest, OneMadeLaterKnowsIt) {
    desk.trust();
    WelcomeView later(desk.model, desk.themes, needs());
    EXPECT_TRUE(later.findChild<StepMarker*>()->isDone());
}

TEST_F(WelcomeViewTest, TheButtonsAskTheSystem) {
    button(u"Allow Accessibility…"_s).click();
    EXPECT_EQ(desk.desktop.access.asked(), 1);
    button(u"Open System Settings"_s).click();
    EXPECT_EQ(desk.desktop.access.settingsOpened(), 1);
    EXPECT_TRUE(button(u"Open System Settings"_s).isVisible());
}

TEST_F(WelcomeViewTest, TheHoldFollowsTheTriggerKey) {
    desk.model.setTrigger(TriggerKey::option);
    EXPECT_EQ(step(2).title(), u"Hold ⌥ in any app"_s);
    EXPECT_TRUE(step(2).body().startsWith(
        u"Keep the Option key (⌥) down for a moment and that app’s shortcuts appear"_s));
}

TEST_F(WelcomeViewTest, WhereThereAreNoSettingsNoneAreOffered) {
    desk.desktop.access.setHasSettings(false);
    QWidget other;
    auto* without = new WelcomeView(desk.model, desk.themes, needs(), &other);
    other.show();
    for (const auto* shown : without->findChildren<QAbstractButton*>())
        EXPECT_TRUE(shown->text() != u"Open System Settings"_s || !shown->isVisible());
}

TEST_F(WelcomeViewTest, AButtonForSettingsThatDoNotStartGoes) {
    desk.desktop.access.setHasSettings(false);
    QAbstractButton& settings = button(u"Open System Settings"_s);
    settings.setFocus();
    settings.click();
    EXPECT_FALSE(settings.isVisible());
    EXPECT_EQ(focused(), u"Allow Accessibility…"_s);
}

TEST_F(WelcomeViewTest, NamesWhatHasToBeRestartedAndLooksAgain) {
    desk.desktop.tray.show({});
    desk.desktop.tray.setThere(true);
    auto& silent = desk.desktop.silentApps;
    EXPECT_EQ(silent.looks(), 0) << "without permission nothing is read anyway";
    desk.trust();
    EXPECT_EQ(silent.looks(), 1);
    EXPECT_EQ(notes(), QStringList());
    silent.answer({"Designer", "Feather\nPad"});
    EXPECT_EQ(notes(), QStringList(WelcomeTexts::restart({u"Designer"_s, u"Feather␤Pad"_s})));
    desk.desktop.timers.advance(WelcomeSteps::lookInterval);
    EXPECT_EQ(silent.looks(), 2);
    silent.answer({});
    EXPECT_EQ(notes(), QStringList());
    desk.desktop.access.setTrusted(false);
    desk.model.refreshTrust();
    desk.desktop.timers.advance(WelcomeSteps::lookInterval);
    EXPECT_EQ(silent.looks(), 2);
}

TEST_F(WelcomeViewTest, WhatComesIntoViewMakesTheWindowTaller) {
    const int before = window.height();
    desk.trust();
    desk.desktop.silentApps.answer({"Designer"});
    QApplication::processEvents();
    view.resize(window.size());
    QApplication::processEvents();
    EXPECT_GT(window.height(), before);
    EXPECT_EQ(view.findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0);
}

TEST_F(WelcomeViewTest, TellsOnceWhereTheKeysAre) {
    EXPECT_EQ(texts().count(u"⌘ is the Super or Windows key, ⌥ is Alt, ⌃ is Ctrl."_s), 1);
}

TEST_F(WelcomeViewTest, ShowsTheTriggerKeyByItsNameWhereKeysAreNamed) {
    desk.desktop.launcherKey.set(Modifiers::command);
    desk.model.setKeyLabels(KeyLabels::names);
    EXPECT_EQ(step(2).title(), u"Hold Super in any app"_s);
    EXPECT_EQ(step(2).body(), WelcomeTexts::holdBody(TriggerKey::command, u"Super"_s));
    EXPECT_EQ(notes(), QStringList(WelcomeTexts::opensLauncher(u"Super"_s)));
    EXPECT_TRUE(button(u"Use Ctrl Instead"_s).isVisible());
    EXPECT_EQ(texts().filter(u"⌘"_s), QStringList());
    desk.model.setKeyLabels(KeyLabels::symbols);
    EXPECT_EQ(step(2).title(), u"Hold ⌘ in any app"_s);
    EXPECT_TRUE(texts().contains(placesOfKeys(Vocabulary::here())));
}

TEST_F(WelcomeViewTest, WhereTheDesktopTakesTheTriggerKeyItOffersAnother) {
    EXPECT_FALSE(button(u"Use ⌃ Instead"_s).isVisible());
    desk.desktop.launcherKey.set(Modifiers::command);
    EXPECT_EQ(notes(), QStringList(WelcomeTexts::opensLauncher(u"⌘"_s)));
    button(u"Use ⌃ Instead"_s).setFocus();
    button(u"Use ⌃ Instead"_s).click();
    EXPECT_EQ(desk.model.trigger(), TriggerKey::control);
    EXPECT_EQ(step(2).title(), u"Hold ⌃ in any app"_s);
    EXPECT_EQ(notes(), QStringList());
    EXPECT_EQ(focused(), u"Done"_s);
    desk.model.setTrigger(TriggerKey::option);
    EXPECT_EQ(notes(), QStringList()) << "the launcher is not opened by this one";
}

TEST_F(WelcomeViewTest, WithoutATrayItTellsHowToReachTheProgram) {
    EXPECT_EQ(notes(), QStringList()) << "a tray may still be coming up";
    desk.desktop.timers.advance(WelcomeSteps::patienceForTray);
    EXPECT_EQ(notes(), QStringList(WelcomeTexts::withoutTray()));
    desk.desktop.tray.show({});
    desk.desktop.tray.setThere(true);
    EXPECT_EQ(notes(), QStringList());
}

TEST_F(WelcomeViewTest, WithATrayNothingIsSaidOfIt) {
    desk.desktop.tray.show({});
    desk.desktop.tray.setThere(true);
    desk.desktop.timers.advance(Seconds(60));
    EXPECT_EQ(notes(), QStringList());
}

TEST_F(WelcomeViewTest, DoneClosesItAndRemembersThat) {
    button(u"Done"_s).click();
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(desk.model.onboarded());
}

TEST_F(WelcomeViewTest, LaterClosesItAndItComesAgain) {
    button(u"Later"_s).click();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(desk.model.onboarded());
}

TEST_F(WelcomeViewTest, TheKeyboardAloneIsEnough) {
    EXPECT_EQ(focused(), u"Allow Accessibility…"_s);
    QStringList order;
    for (int presses = 0; presses < 4; ++presses) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        order.append(focused());
    }
    EXPECT_THAT(
        order, ElementsAre(u"Open System Settings"_s, u"Later"_s, u"Done"_s, u"Allow Accessibility…"_s));
    desk.desktop.access.setGrantsWhenAsked(true);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    desk.model.refreshTrust();
    EXPECT_EQ(focused(), u"Done"_s) << "the keyboard does not stay with what went";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_TRUE(desk.model.onboarded());
}

/// Every label whose text does not fit into its room.
QStringList clippedTexts(const QWidget& view) {
    QStringList clipped;
    for (const auto* label : view.findChildren<QLabel*>()) {
        const QRect needed = label->fontMetrics().boundingRect(
            QRect(0, 0, label->width(), QWIDGETSIZE_MAX), label->wordWrap() ? Qt::TextWordWrap : 0,
            label->text());
        if (label->isVisible() && !label->size().isEmpty()
            && (needed.height() > label->height() || needed.width() > label->width()))
            clipped.append(label->text());
    }
    for (const auto* button : view.findChildren<QAbstractButton*>())
        if (button->isVisible() && button->width() < button->sizeHint().width())
            clipped.append(button->text());
    return clipped;
}

TEST_F(WelcomeViewTest, EverythingFitsInEverySizeOfTheFont) {
    for (const double points : {7.0, 10.0, 14.0, 22.0}) {
        desk.desktop.appearance.set({ColourScheme::light, {}, points});
        show();
        EXPECT_EQ(clippedTexts(view), QStringList()) << points << " points";
    }
}

TEST_F(WelcomeViewTest, OnASmallScreenItIsScrolledAlsoByTheKeyboard) {
    auto& bar = *view.findChild<QScrollArea*>()->verticalScrollBar();
    EXPECT_EQ(bar.maximum(), 0);
    window.resize(400, 300);
    view.resize(window.size());
    QApplication::processEvents();
    EXPECT_GT(bar.maximum(), 0);
    EXPECT_EQ(clippedTexts(view), QStringList());
    EXPECT_EQ(view.findChild<QScrollArea*>()->focusPolicy(), Qt::StrongFocus);
    EXPECT_TRUE(view.rect().contains(
        button(u"Done"_s).geometry().translated(button(u"Done"_s).parentWidget()->pos())));
}

TEST_F(WelcomeViewTest, EveryPartCanBeReadAloud) {
    const auto nameOf = [](QWidget& widget) {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    };
    auto& marker = *view.findChild<StepMarker*>();
    EXPECT_EQ(nameOf(marker), u"Step 1"_s);
    desk.trust();
    EXPECT_EQ(nameOf(marker), u"Step 1, done"_s);
    for (auto* button : view.findChildren<QAbstractButton*>())
        EXPECT_EQ(nameOf(*button), button->text());
}

} // namespace
} // namespace quillon
