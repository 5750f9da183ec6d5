#include "app_model_fixture.h"

namespace quillon {
namespace {

TEST_F(AppModelTest, ReadsTheFrontApplicationAtStart) {
    answer(sketch, 3);
    startWith(sketch);
    ASSERT_TRUE(model.current());
    EXPECT_EQ(model.current()->bundleID, "org.example.sketch");
    EXPECT_EQ(model.current()->appName, "sketch");
    EXPECT_EQ(model.current()->entries.size(), 3U);
    EXPECT_EQ(model.current()->readAt, desktop.clock.now());
    EXPECT_EQ(model.sheets().count("org.example.sketch"), 1U);
}

TEST_F(AppModelTest, ReadsNothingWithoutPermission) {
    answer(sketch, 3);
    desktop.front.setCurrent(sketch);
    model.start();
    desktop.timers.advance(Seconds(10));
    EXPECT_EQ(desktop.background.waiting(), 0U);
    EXPECT_FALSE(model.current());
}

TEST_F(AppModelTest, AHoldIsNoticedWithoutPermissionToo) {
    desktop.front.setCurrent(sketch);
    model.start();
    EXPECT_TRUE(model.watching().holds);
    desktop.keyboard.press(Modifiers::command);
    desktop.timers.advance(Seconds(0.9));
    EXPECT_TRUE(panels.overlay->visible);
    EXPECT_FALSE(model.trusted());
    EXPECT_EQ(desktop.background.waiting(), 0U);
    desktop.keyboard.release(Modifiers::command);
    EXPECT_FALSE(panels.overlay->visible);
}

TEST_F(AppModelTest, NoticesThePermissionAtTheNextPoll) {
    answer(sketch, 3);
    desktop.front.setCurrent(sketch);
    model.start();
    desktop.access.setTrustedSilently(true);
    desktop.timers.advance(Seconds(2));
    desktop.background.runAll();
    EXPECT_TRUE(model.trusted());
    EXPECT_EQ(entriesShown(), 3U);
    EXPECT_EQ(desktop.keyboard.monitors(), 1U);
    EXPECT_TRUE(model.watching().holds);
}

TEST_F(AppModelTest, NoticesThePermissionAtOnceWhereTheDesktopTells) {
    answer(sketch, 3);
    desktop.front.setCurrent(sketch);
    model.start();
    desktop.access.setTrusted(true);
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 3U);
}

TEST_F(AppModelTest, KeepsWhatItKnowsWhenThePermissionIsTaken) {
    answer(sketch, 3);
    startWith(sketch);
    desktop.access.setTrusted(false);
    EXPECT_FALSE(model.trusted());
    EXPECT_EQ(entriesShown(), 3U);
    const std::size_t asked = desktop.menus.asked().size();
    desktop.front.activate(writer);
    desktop.background.runAll();
    EXPECT_EQ(desktop.menus.asked().size(), asked);
}

TEST_F(AppModelTest, PollsAgainUntilTheFirstSheetIsThere) {
    desktop.access.setTrusted(true);
    model.start();
    EXPECT_FALSE(model.current());
    answer(sketch, 2);
    desktop.front.setCurrent(sketch);
    desktop.timers.advance(Seconds(2));
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 2U);
    const std::size_t asked = desktop.menus.asked().size();
    desktop.timers.advance(Seconds(20));
    EXPECT_EQ(desktop.menus.asked().size(), asked);
}

TEST_F(AppModelTest, FollowsTheFrontApplication) {
    answer(sketch, 3);
    answer(writer, 5);
    startWith(sketch);
    desktop.front.activate(writer);
    EXPECT_EQ(model.current()->bundleID, "org.example.writer");
    EXPECT_EQ(entriesShown(), 0U);
    EXPECT_TRUE(model.reading());
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 5U);
    EXPECT_FALSE(model.reading());
}

TEST_F(AppModelTest, ShowsAKnownSheetAtOnceAndRefreshesIt) {
    answer(sketch, 3);
    answer(writer, 5);
    startWith(sketch);
    desktop.front.activate(writer);
    desktop.background.runAll();
    answer(sketch, 4);
    desktop.front.activate(sketch);
    EXPECT_EQ(entriesShown(), 3U);
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 4U);
}

TEST_F(AppModelTest, IgnoresItself) {
    answer(sketch, 3);
    startWith(sketch);
    desktop.front.activate(appNamed("quillon", ownPid));
    EXPECT_EQ(model.current()->bundleID, "org.example.sketch");
    EXPECT_EQ(desktop.background.waiting(), 0U);
    model.read(appNamed("quillon", ownPid));
    EXPECT_EQ(desktop.background.waiting(), 0U);
}

TEST_F(AppModelTest, ReadsNothingOnRequestWithoutPermission) {
    model.start();
    model.read(sketch);
    EXPECT_EQ(desktop.background.waiting(), 0U);
    EXPECT_FALSE(model.reading());
}

TEST_F(AppModelTest, KeepsALateSheetWithoutShowingIt) {
    answer(sketch, 3);
    answer(writer, 5);
    desktop.access.setTrusted(true);
    desktop.front.setCurrent(sketch);
    model.start();
    desktop.front.activate(writer);
    desktop.background.runLast();
    EXPECT_EQ(entriesShown(), 5U);
    desktop.background.runAll();
    EXPECT_EQ(model.current()->bundleID, "org.example.writer");
    EXPECT_EQ(entriesShown(), 5U);
    EXPECT_EQ(model.sheets().at("org.example.sketch")->entries.size(), 3U);
}

TEST_F(AppModelTest, TellsTwoApplicationsOfOneProcessApart) {
    RunningApp calc = appNamed("calc", sketch.pid);
    answer(sketch, 3);
    answer(calc, 5);
    desktop.access.setTrusted(true);
    desktop.front.setCurrent(sketch);
    model.start();
    desktop.front.activate(calc);
    desktop.background.runAll();
    EXPECT_EQ(model.current()->bundleID, "org.example.calc");
    EXPECT_EQ(entriesShown(), 5U);
}

TEST_F(AppModelTest, KeepsAGoodSheetWhenAnEmptyMenuBarIsRead) {
    answer(sketch, 3);
    startWith(sketch);
    answer(sketch, 0);
    desktop.front.activate(sketch);
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 3U);
    EXPECT_EQ(model.sheets().at("org.example.sketch")->entries.size(), 3U);
}

TEST_F(AppModelTest, KeepsAGoodSheetWhenTheApplicationStopsAnswering) {
    answer(sketch, 3);
    startWith(sketch);
    answer(sketch, 1, ReadOutcome::partial);
    desktop.front.activate(sketch);
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 3U);
}

TEST_F(AppModelTest, AsksAnApplicationAgainThatDidNotAnswer) {
    answer(sketch, 0, ReadOutcome::partial);
    startWith(sketch);
    EXPECT_FALSE(model.answered());
    answer(sketch, 3);
    desktop.timers.advance(Seconds(2));
    EXPECT_TRUE(model.reading());
    EXPECT_TRUE(model.retrying());
    desktop.background.runAll();
    EXPECT_FALSE(model.retrying());
    EXPECT_EQ(entriesShown(), 3U);
    EXPECT_TRUE(model.answered());
}

TEST_F(AppModelTest, OneThatAnsweredCostsNothingAnyMore) {
    answer(sketch, 3);
    startWith(sketch);
    const std::size_t questions = desktop.front.questions();
    desktop.timers.advance(Seconds(100));
    EXPECT_EQ(desktop.front.questions(), questions);
    EXPECT_EQ(desktop.background.waiting(), 0U);
}

TEST_F(AppModelTest, AsksAnApplicationThatStaysStoppedEverMoreRarelyUntilTheUserAsks) {
    answer(sketch, 0, ReadOutcome::partial);
    startWith(sketch);
    const auto readingsWithin = [this](int seconds) {
        std::size_t readings = 0;
        for (int at = 0; at < seconds; at += 2) {
            desktop.timers.advance(Seconds(2));
            readings += desktop.background.waiting();
            desktop.background.runAll();
        }
        return readings;
    };
    EXPECT_EQ(readingsWithin(14), 3U);
    EXPECT_EQ(readingsWithin(1000), 3U);
    model.showOverlay(Stickiness::held);
    EXPECT_TRUE(model.reading());
    EXPECT_FALSE(model.retrying());
    desktop.background.runAll();
    EXPECT_EQ(readingsWithin(14), 3U);
}

TEST_F(AppModelTest, ABusThatIsGoneForAMomentEndsNoAttempts) {
    answer(sketch, 0, ReadOutcome::partial);
    startWith(sketch);
    answer(sketch, 0, ReadOutcome::unavailable);
    desktop.timers.advance(Seconds(2));
    desktop.background.runAll();
    answer(sketch, 3);
    desktop.timers.advance(Seconds(4));
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 3U);
}

TEST_F(AppModelTest, AsksNoneAgainThatIsInFrontNoMore) {
    answer(sketch, 0, ReadOutcome::partial);
    startWith(sketch);
    desktop.front.setCurrent(std::nullopt);
    desktop.timers.advance(Seconds(100));
    EXPECT_EQ(desktop.background.waiting(), 0U);
}

TEST_F(AppModelTest, AsksNoneAgainWithoutPermission) {
    answer(sketch, 0, ReadOutcome::partial);
    startWith(sketch);
    desktop.access.setTrusted(false);
    desktop.timers.advance(Seconds(100));
    EXPECT_EQ(desktop.background.waiting(), 0U);
}

TEST_F(AppModelTest, TheNextApplicationIsNotTakenForOneThatIsAskedAgain) {
    answer(sketch, 0, ReadOutcome::partial);
    startWith(sketch);
    desktop.timers.advance(Seconds(2));
    answer(writer, 5);
    desktop.front.activate(writer);
    EXPECT_TRUE(model.reading());
    EXPECT_FALSE(model.retrying());
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 5U);
}

TEST_F(AppModelTest, ForgettingEverythingForgetsWhoIsAskedAgain) {
    answer(sketch, 0, ReadOutcome::partial);
    startWith(sketch);
    desktop.timers.advance(Seconds(2));
    EXPECT_TRUE(model.retrying());
    model.eraseEverything();
    desktop.background.runAll();
    EXPECT_FALSE(model.retrying());
}

TEST_F(AppModelTest, TakesAShorterSheetOfAnApplicationThatSharesMoreThanIsRead) {
    answer(sketch, 3, ReadOutcome::limited);
    startWith(sketch);
    answer(sketch, 2, ReadOutcome::limited);
    desktop.front.activate(sketch);
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 2U);
}

TEST_F(AppModelTest, ALateEmptySheetChangesNothing) {
    answer(sketch, 3);
    answer(writer, 5);
    startWith(sketch);
    answer(sketch, 0);
    desktop.front.activate(sketch);
    EXPECT_TRUE(desktop.background.workNext());
    desktop.front.activate(writer);
    EXPECT_TRUE(desktop.background.deliverNext());
    EXPECT_EQ(model.current()->bundleID, "org.example.writer");
    EXPECT_EQ(model.sheets().at("org.example.sketch")->entries.size(), 3U);
}

TEST_F(AppModelTest, NeverKeepsAnEmptySheet) {
    answer(sketch, 0);
    startWith(sketch);
    ASSERT_TRUE(model.current());
    EXPECT_EQ(model.current()->bundleID, "org.example.sketch");
    EXPECT_TRUE(model.sheets().empty());
}

TEST_F(AppModelTest, KeepsWhatItHadWhenTheBusIsGone) {
    answer(sketch, 3);
    startWith(sketch);
    answer(sketch, 0, ReadOutcome::unavailable);
    desktop.front.activate(sketch);
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 3U);
    EXPECT_FALSE(model.reading());
}

TEST_F(AppModelTest, ReadsAnApplicationOnlyOnceAtATime) {
    answer(sketch, 3);
    desktop.access.setTrusted(true);
    desktop.front.setCurrent(sketch);
    model.start();
    desktop.front.activate(sketch);
    model.showOverlay(Stickiness::sticky);
    EXPECT_EQ(desktop.background.waiting(), 1U);
}

TEST_F(AppModelTest, ReadsAnotherWindowAfterTheOneUnderWay) {
    RunningApp otherWindow = sketch;
    otherWindow.windows = {{99, "another window"}};
    answer(sketch, 3);
    desktop.access.setTrusted(true);
    desktop.front.setCurrent(sketch);
    model.start();
    desktop.front.activate(otherWindow);
    EXPECT_EQ(desktop.background.waiting(), 1U);
    EXPECT_TRUE(desktop.background.workNext());
    answer(sketch, 5);
    EXPECT_TRUE(desktop.background.deliverNext());
    EXPECT_EQ(entriesShown(), 3U);
    EXPECT_TRUE(model.reading());
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 5U);
    EXPECT_EQ(desktop.menus.asked().back(), otherWindow);
    EXPECT_FALSE(model.reading());
}

TEST_F(AppModelTest, ShowsTheSheetAndTheEndOfItsReadingTogether) {
    answer(sketch, 3);
    desktop.access.setTrusted(true);
    desktop.front.setCurrent(sketch);
    int seenEmptyAndNotRead = 0;
    const auto subscription = model.changed.subscribe([&](ModelField) {
        seenEmptyAndNotRead += model.current() && entriesShown() == 0 && !model.reading() ? 1 : 0;
    });
    model.start();
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 3U);
    EXPECT_EQ(seenEmptyAndNotRead, 0);
}

TEST_F(AppModelTest, KeepsNoSheetOfAnApplicationWithoutAnIdentifier) {
    const RunningApp nameless{30, "", "", {}};
    desktop.menus.answer(nameless.pid, {menuBarOf(2), ReadOutcome::complete});
    startWith(nameless);
    EXPECT_EQ(entriesShown(), 2U);
    EXPECT_TRUE(model.sheets().empty());
}

TEST_F(AppModelTest, IsReadingOnlyWhatIsShown) {
    answer(writer, 5);
    desktop.access.setTrusted(true);
    desktop.front.setCurrent(sketch);
    model.start();
    desktop.front.activate(writer);
    desktop.background.runLast();
    EXPECT_FALSE(model.reading());
    desktop.front.activate(sketch);
    EXPECT_TRUE(model.reading());
}

TEST_F(AppModelTest, TellsWhatChanged) {
    answer(sketch, 3);
    std::vector<ModelField> seen;
    const auto subscription = model.changed.subscribe([&](ModelField field) { seen.push_back(field); });
    startWith(sketch);
    const std::vector expected{ModelField::trusted, ModelField::current, ModelField::reading,
                               ModelField::current, ModelField::reading, ModelField::sheets};
    EXPECT_EQ(seen, expected);
}

TEST_F(AppModelTest, ReadsByAMaximumDepthOfFour) {
    RawMenuItem deep{.title = "Six", .cmdChar = "x", .cmdModifiers = 0};
    for (const char* title : {"Five", "Four", "Three", "Two", "One"})
        deep = {.title = title, .children = {{.title = title, .cmdChar = "y", .cmdModifiers = 0}, deep}};
    desktop.menus.answer(sketch.bundleID, {{deep}, ReadOutcome::complete});
    startWith(sketch);
    for (const MenuEntry& entry : model.current()->entries)
        EXPECT_LE(entry.path.size(), 5U) << entry.id();
    EXPECT_EQ(entriesShown(), 4U);
}

TEST(AppModelLifetime, EndsWhileAReadingIsUnderWay) {
    QTemporaryDir folder;
    Settings settings(folder.filePath(QStringLiteral("settings.ini")));
    FakeDesktop desktop;
    FakePanelHost panels;
    desktop.access.setTrusted(true);
    desktop.front.setCurrent(appNamed("sketch", 10));
    {
        AppModel model(servicesOf(desktop, panels, settings));
        model.start();
        EXPECT_TRUE(desktop.background.workNext());
    }
    EXPECT_EQ(desktop.background.finished(), 0U);
    EXPECT_FALSE(desktop.background.deliverNext());
    EXPECT_EQ(desktop.front.listeners(), 0U);
    EXPECT_EQ(desktop.timers.running(), 0U);
}

} // namespace
} // namespace quillon
