#include <quillon/app/core/menu_click_detector.h>

#include <gtest/gtest.h>

#include <vector>

namespace quillon {
namespace {

using namespace menu_use;

const RunningApp sketch{10, "org.example.sketch", "Sketch", {}};
const RunningApp writer{20, "org.example.writer", "Writer", {}};
const Shortcut saveKeys(Modifiers::control, Key::character("S"));

/// Items stand one below the other, the first at the top of the menu.
constexpr Rect frameOf(MenuItemNumber item) {
    return {0, 20.0 * static_cast<double>(item), 100, 20};
}
constexpr Point on(MenuItemNumber item) {
    return {50, frameOf(item).y + 10};
}
MenuItemFacts factsOf(MenuItemNumber item) {
    return {
        .path = {"File", "Command " + std::to_string(item)}, .shortcut = saveKeys, .frame = frameOf(item)};
}
MenuPick pickOf(const RunningApp& app, MenuItemNumber item) {
    return {app, factsOf(item).path, saveKeys};
}

class MenuClickDetectorTest : public testing::Test {
  protected:
    using Picks = std::vector<MenuPick>;

    void notice(const MenuEvidence& evidence) {
        if (auto pick = detector.noticed(evidence, now))
            picks.push_back(std::move(*pick));
    }
    void pass(double seconds) { now = after(now, Seconds(seconds)); }
    /// Points at the item, of which the application tells at once.
    void pointAt(MenuItemNumber item) {
        notice(Pointed{item});
        notice(Told{item, factsOf(item)});
    }
    /// A menu of the sketch application, an item pointed at for a while.
    void openAt(MenuItemNumber item) {
        notice(Opened{sketch});
        pass(0.5);
        pointAt(item);
        pass(0.5);
    }

    Instant now = distantPast;
    MenuClickDetector detector;
    Picks picks;
};

TEST_F(MenuClickDetectorTest, AnswersAtTheClosing) {
    openAt(3);
    notice(Released{on(3)});
    EXPECT_EQ(picks, Picks{});
    pass(0.02);
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, AnswersWhenTheClosingIsNoticedFirst) {
    openAt(3);
    notice(Closed{});
    pass(0.1);
    notice(Released{on(3)});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, LeavesAReleaseAloneThatComesAfterTheClosing) {
    openAt(3);
    notice(Closed{});
    pass(0.2);
    notice(Released{on(3)});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, MenusCloseOnce) {
    openAt(3);
    notice(Closed{});
    pass(0.2);
    notice(Closed{});
    notice(Released{on(3)});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, EachReleaseIsAnsweredOnce) {
    openAt(3);
    notice(Released{on(3)});
    notice(Closed{});
    notice(Closed{});
    notice(Pointed{3});
    notice(Told{3, factsOf(3)});
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks.size(), 1U);
}

TEST_F(MenuClickDetectorTest, NothingWasChosenWithoutARelease) {
    openAt(3);
    notice(Closed{});
    pass(5);
    openAt(4);
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, NothingWasChosenByTheReleaseThatOpenedTheMenu) {
    notice(Released{on(3)});
    notice(Opened{sketch});
    pointAt(3);
    notice(Closed{});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, AnItemThatWasLeftOnTheReleaseCounts) {
    openAt(3);
    notice(Pointed{0});
    pass(0.3);
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, AnItemThatWasLeftEarlierDoesNot) {
    openAt(3);
    notice(Pointed{0});
    pass(0.31);
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, AnItemThatWasLeftAndPointedAtAgainCounts) {
    openAt(3);
    notice(Pointed{0});
    pass(5);
    notice(Pointed{3});
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, AnItemThatFlickersAtTheReleaseCounts) {
    notice(Opened{sketch});
    notice(Pointed{2}); // passed over, the application does not tell of it
    pass(0.1);
    pointAt(3);
    pass(0.1);
    notice(Released{on(3)});
    notice(Pointed{0});
    pass(0.01);
    notice(Pointed{3});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, GoingBackToAnItemCounts) {
    openAt(3);
    pointAt(4);
    notice(Pointed{3});
    pass(1);
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, AnItemChosenByKeyWhileThePointerRestsElsewhereDoesNotCount) {
    openAt(3);
    notice(Released{on(3)}); // which opened a submenu
    pointAt(4);
    pointAt(5);
    pass(0.5);
    notice(Pointed{6});
    notice(Told{6, factsOf(6)});
    pass(0.6);
    notice(Closed{});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, OnlyTheItemBelowThePointerCountsWhereKeysPointElsewhere) {
    openAt(3);
    pointAt(9);
    pass(1);
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, AClickOutsideCountsNothing) {
    openAt(3);
    notice(Pointed{0});
    notice(Released{{500, 500}});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, OnlyTheReleaseThatClosedTheMenusCounts) {
    openAt(3);
    notice(Released{on(3)}); // an item that keeps the menu open
    pass(0.4);
    pointAt(4);
    pass(0.4);
    notice(Released{on(4)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 4)});
}

TEST_F(MenuClickDetectorTest, AMenuThatClosesLongAfterTheReleaseWasNotClosedByIt) {
    openAt(3);
    notice(Released{on(3)});
    pass(1.01);
    notice(Closed{});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, WhatIsToldLateCountsForASecond) {
    notice(Opened{sketch});
    notice(Pointed{3});
    notice(Released{on(3)});
    notice(Pointed{0});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{});
    pass(1.0);
    notice(Told{3, factsOf(3)});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, WhatIsToldLaterNeverCounts) {
    notice(Opened{sketch});
    notice(Pointed{3});
    notice(Released{on(3)});
    notice(Closed{});
    pass(1.01);
    notice(Told{3, factsOf(3)});
    notice(Told{3, factsOf(3)});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, AReleaseElsewhereWhileAnAnswerIsWaitedForChangesNothing) {
    notice(Opened{sketch});
    notice(Pointed{3});
    notice(Released{on(3)});
    notice(Closed{});
    pass(0.4);
    notice(Released{{500, 500}});
    notice(Told{3, factsOf(3)});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, AnItemThatABusyApplicationPointsAtAfterTheReleaseCounts) {
    openAt(2);
    notice(Released{on(3)});
    pass(0.3);
    notice(Pointed{3});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{}) << "nothing is known of it yet";
    notice(Told{3, factsOf(3)});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, AnItemThatWasLeftLongAgoIsNotWaitedFor) {
    notice(Opened{sketch});
    notice(Pointed{2}); // the application never tells of it
    notice(Pointed{0});
    pass(1);
    notice(Released{on(3)});
    pass(0.01);
    pointAt(3);
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, TheItemOnTopCountsWhereMenusLieOnEachOther) {
    MenuItemFacts above = factsOf(3);
    above.path = {"File", "Recent", "Notes"};
    openAt(3);
    pass(1);
    notice(Pointed{7});
    pass(0.1);
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{}) << "the one below was pointed at just before";
    notice(Told{7, above});
    ASSERT_EQ(picks.size(), 1U);
    EXPECT_EQ(picks[0].path, above.path);
}

TEST_F(MenuClickDetectorTest, AnItemOnTopThatIsNoCommandHidesTheOneBelow) {
    openAt(3);
    MenuItemFacts above = factsOf(3);
    above.shortcut.reset();
    notice(Pointed{7});
    notice(Told{7, above});
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, AnItemBelowThatIsReturnedToOnTheReleaseHidesNothing) {
    MenuItemFacts above = factsOf(3);
    above.path = {"File", "Recent", "Notes"};
    openAt(3);
    notice(Pointed{7});
    notice(Told{7, above});
    pass(0.5);
    notice(Released{on(3)});
    pass(0.01);
    pointAt(3);
    notice(Closed{});
    ASSERT_EQ(picks.size(), 1U);
    EXPECT_EQ(picks[0].path, above.path);
}

TEST_F(MenuClickDetectorTest, WhatIsNoCommandWithAShortcutCountsNothing) {
    MenuItemFacts title = factsOf(3);
    title.path = {"File"};
    MenuItemFacts disabled = factsOf(3);
    disabled.enabled = false;
    MenuItemFacts withoutShortcut = factsOf(3);
    withoutShortcut.shortcut.reset();
    MenuItemFacts withoutFrame = factsOf(3);
    withoutFrame.frame.reset();
    for (const MenuItemFacts& facts : {title, disabled, withoutShortcut, withoutFrame}) {
        notice(Opened{sketch});
        notice(Pointed{3});
        notice(Told{3, facts});
        notice(Released{on(3)});
        notice(Closed{});
    }
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, WhatWasToldBeforeTheReleaseStands) {
    openAt(3);
    notice(Released{on(3)});
    pass(0.01);
    MenuItemFacts afterwards = factsOf(3);
    afterwards.enabled = false; // by its own doing
    notice(Told{3, afterwards});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, WhatIsToldAnewBeforeTheReleaseReplacesWhatWasTold) {
    notice(Opened{sketch});
    notice(Released{on(1)}); // of the menu's title
    pass(0.5);
    pointAt(3);
    pass(0.5);
    MenuItemFacts disabled = factsOf(3);
    disabled.enabled = false;
    notice(Told{3, disabled});
    pass(0.5);
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{});
}

TEST_F(MenuClickDetectorTest, TheMenuThatOpensNextBeginsAnew) {
    openAt(3);
    notice(Opened{writer});
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{}) << "the item was of the menu before";
    notice(Opened{writer});
    pointAt(4);
    notice(Released{on(4)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(writer, 4)});
}

TEST_F(MenuClickDetectorTest, ALongRestOnAnItemDoesNotLoseTheClick) {
    openAt(3);
    pass(300);
    notice(Released{on(3)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 3)});
}

TEST_F(MenuClickDetectorTest, EvidenceWithoutAMenuMeansNothing) {
    pointAt(3);
    notice(Released{on(3)});
    notice(Closed{});
    notice(Told{9, factsOf(9)});
    EXPECT_EQ(picks, Picks{});
    EXPECT_EQ(detector, MenuClickDetector());
}

TEST_F(MenuClickDetectorTest, RemembersTheItemsThatWerePointedAtLast) {
    openAt(1);
    for (MenuItemNumber item = 2; item <= 10'000; ++item)
        pointAt(item);
    EXPECT_EQ(detector.items(), MenuClickDetector::mostItems);
    notice(Released{on(10'000)});
    notice(Closed{});
    EXPECT_EQ(picks, Picks{pickOf(sketch, 10'000)});
    EXPECT_EQ(detector, MenuClickDetector()) << "a click that was answered leaves nothing behind";
}

} // namespace
} // namespace quillon
