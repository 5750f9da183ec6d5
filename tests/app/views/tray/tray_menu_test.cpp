#include <quillon/app/views/tray/tray_menu.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/tests/app/views/support/many_entries.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TrayMenuTest : public testing::Test {
  protected:
    std::string label(TrayLine line) const {
        for (const TrayMenuItem& item : desk.desktop.tray.menu())
            if (item.id == static_cast<int>(line))
                return item.label;
        return "no such line";
    }
    void choose(TrayLine line) { desk.desktop.tray.choose(static_cast<int>(line)); }

    ViewDesk desk;
    std::vector<std::string> done;
    std::vector<WindowName> opened;
    TrayMenu tray{
        desk.model,
        desk.desktop.tray,
        desk.themes,
        {.showOverlay = [this] { done.emplace_back("overlay"); },
         .openWindow = [this](WindowName name) { opened.push_back(name); },
         .checkForUpdates = [this] { done.emplace_back("updates"); },
         .quit = [this] { done.emplace_back("quit"); }}};
};

TEST_F(TrayMenuTest, TheTrayHasTheMenuBeforeTheIcon) {
    EXPECT_EQ(desk.desktop.tray.menu(), trayLines({.trusted = false, .appName = {}}));
    EXPECT_FALSE(desk.desktop.tray.presence());
    tray.show();
    ASSERT_TRUE(desk.desktop.tray.presence());
    EXPECT_EQ(desk.desktop.tray.presence()->name, "Quillon");
    EXPECT_EQ(desk.desktop.tray.presence()->themeIcon, "app.quillon.Quillon-symbolic");
}

TEST_F(TrayMenuTest, FollowsThePermissionTheApplicationAndTheTriggerAtOnce) {
    desk.trust();
    EXPECT_EQ(label(TrayLine::allowAccessibility), "no such line");
    EXPECT_EQ(label(TrayLine::showShortcuts), "Show Shortcuts");
    desk.showSample();
    EXPECT_EQ(label(TrayLine::showShortcuts), "Show Shortcuts for Sketchpad");
    desk.show(emptySheet("Terminal"));
    EXPECT_EQ(label(TrayLine::showShortcuts), "Show Shortcuts for Terminal");
    desk.model.setTrigger(TriggerKey::option);
    EXPECT_EQ(label(TrayLine::holdHint), "Or hold ⌥ in any app");
    desk.desktop.access.setTrusted(false);
    desk.model.refreshTrust();
    EXPECT_EQ(label(TrayLine::allowAccessibility), "Allow Accessibility…");
}

TEST_F(TrayMenuTest, FollowsHowKeysAreShown) {
    desk.model.setKeyLabels(KeyLabels::names);
    EXPECT_EQ(label(TrayLine::holdHint), "Or hold Super in any app");
    desk.model.setKeyLabels(KeyLabels::symbols);
    EXPECT_EQ(label(TrayLine::holdHint), "Or hold ⌘ in any app");
}

TEST_F(TrayMenuTest, EveryCommandDoesItsWork) {
    tray.show();
    for (const TrayLine line :
         {TrayLine::allowAccessibility, TrayLine::practice, TrayLine::library, TrayLine::settings})
        choose(line);
    EXPECT_THAT(
        opened,
        ElementsAre(WindowName::welcome, WindowName::practice, WindowName::library, WindowName::settings));
    EXPECT_THAT(done, IsEmpty());
    for (const TrayLine line : {TrayLine::showShortcuts, TrayLine::checkForUpdates, TrayLine::quit})
        choose(line);
    EXPECT_THAT(done, ElementsAre("overlay", "updates", "quit"));
}

TEST_F(TrayMenuTest, AClickOpensTheMenuWhereTheTrayShowsNone) {
    tray.show();
    desk.desktop.tray.presence()->openMenu();
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().constFirst()->text(), QStringLiteral("Allow Accessibility…"));
    desk.trust();
    EXPECT_EQ(menu->actions().constFirst()->text(), QStringLiteral("Show Shortcuts"))
        << "it follows while it is open";
    menu->actions().constFirst()->trigger();
    EXPECT_THAT(done, ElementsAre("overlay"));
}

TEST_F(TrayMenuTest, WhatIsNoCommandDoesNothing) {
    tray.show();
    for (const int id : {-1, 0, 1000, static_cast<int>(TrayLine::holdHint)})
        desk.desktop.tray.choose(id);
    EXPECT_THAT(done, IsEmpty());
    EXPECT_THAT(opened, IsEmpty());
}

TEST_F(TrayMenuTest, AClickWithTheMiddleButtonShowsTheOverlay) {
    tray.show();
    desk.desktop.tray.presence()->secondaryClick();
    EXPECT_THAT(done, ElementsAre("overlay"));
}

} // namespace
} // namespace quillon
