#include "app_model_fixture.h"

#include <quillon/app/core/panel_placement.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>

namespace quillon {
namespace {

TEST_F(AppModelTest, HoldingTheTriggerShowsTheOverlayUntilItIsLetGo) {
    answer(sketch, 3);
    startWith(sketch);
    desktop.keyboard.press(Modifiers::command);
    desktop.timers.advance(Seconds(0.9));
    EXPECT_TRUE(panels.overlay->visible);
    EXPECT_FALSE(panels.overlay->hasKeyboard);
    EXPECT_FALSE(model.overlaySticky());
    desktop.keyboard.release(Modifiers::command);
    EXPECT_FALSE(panels.overlay->visible);
}

TEST_F(AppModelTest, TheOverlayKeptOpenStaysWhenTheTriggerIsLetGo) {
    startWith(sketch);
    desktop.keyboard.press(Modifiers::command);
    desktop.timers.advance(Seconds(0.9));
    model.keepOverlayOpen();
    EXPECT_TRUE(model.overlaySticky());
    EXPECT_TRUE(panels.overlay->hasKeyboard);
    desktop.keyboard.release(Modifiers::command);
    EXPECT_TRUE(panels.overlay->visible);
}

TEST_F(AppModelTest, EscapeClosesTheOverlayAndClearsTheSearch) {
    startWith(sketch);
    model.showOverlay(Stickiness::sticky);
    model.setQuery("save");
    panels.overlayPanel->onEscape();
    EXPECT_FALSE(panels.overlay->visible);
    EXPECT_FALSE(model.overlaySticky());
    EXPECT_EQ(model.query(), "");
}

TEST_F(AppModelTest, LosingTheKeyboardClosesOnlyAnOverlayKeptOpen) {
    startWith(sketch);
    model.showOverlay(Stickiness::held);
    panels.overlayPanel->onResign();
    EXPECT_TRUE(panels.overlay->visible);
    model.showOverlay(Stickiness::sticky);
    panels.overlayPanel->onResign();
    EXPECT_FALSE(panels.overlay->visible);
}

TEST_F(AppModelTest, ShowingStartsWithAnEmptySearch) {
    startWith(sketch);
    model.setQuery("left over");
    model.showOverlay(Stickiness::held);
    EXPECT_EQ(model.query(), "");
}

TEST_F(AppModelTest, ShowingReadsTheFrontApplicationAnew) {
    answer(sketch, 3);
    startWith(sketch);
    answer(sketch, 4);
    model.showOverlay(Stickiness::held);
    EXPECT_EQ(entriesShown(), 3U);
    desktop.background.runAll();
    EXPECT_EQ(entriesShown(), 4U);
}

TEST_F(AppModelTest, ShownOverItselfTheOverlayStaysAsItIs) {
    answer(sketch, 3);
    startWith(sketch);
    const std::size_t asked = desktop.menus.asked().size();
    desktop.front.activate(appNamed("quillon", ownPid));
    model.showOverlay(Stickiness::sticky);
    desktop.background.runAll();
    EXPECT_EQ(desktop.menus.asked().size(), asked);
    EXPECT_EQ(model.current()->bundleID, "org.example.sketch");
    EXPECT_TRUE(panels.overlay->visible);
}

TEST_F(AppModelTest, HoldingTheTriggerDuringPracticeShowsNothing) {
    startWith(sketch);
    desktop.windows.giveKeyboard(WindowName::practice);
    model.showOverlay(Stickiness::held);
    EXPECT_FALSE(panels.overlay->visible);
    model.showOverlay(Stickiness::sticky);
    EXPECT_TRUE(panels.overlay->visible);
}

TEST_F(AppModelTest, ThePanelIsMadeOnceAndPlacedAtEachShowing) {
    startWith(sketch);
    model.showOverlay(Stickiness::sticky);
    EXPECT_EQ(panels.overlay->frame, (Rect{370, 160, 1180, 760}));
    model.closeOverlay();
    panels.allScreens = {{{0, 0, 1280, 800}, {0, 0, 1280, 800}}};
    model.showOverlay(Stickiness::sticky);
    EXPECT_DOUBLE_EQ(panels.overlay->frame.height, 640);
    EXPECT_EQ(panels.panelsMade, 1);
    EXPECT_EQ(panels.overlay->timesShown, 2);
}

TEST_F(AppModelTest, ThePanelsCanBeMadeAheadOfTheirFirstShowing) {
    startWith(sketch);
    model.preparePanels();
    EXPECT_EQ(panels.overlay->timesPrepared, 1);
    EXPECT_EQ(panels.overlay->frame, (Rect{370, 160, 1180, 760}));
    EXPECT_FALSE(panels.overlay->visible);
    EXPECT_EQ(panels.toast->timesPrepared, 1);
    EXPECT_FALSE(panels.toast->visible);
    model.showOverlay(Stickiness::sticky);
    model.preparePanels();
    EXPECT_TRUE(panels.overlay->visible);
    EXPECT_EQ(panels.panelsMade, 2);
    EXPECT_EQ(panels.overlay->timesPrepared, 1);
    EXPECT_EQ(panels.toast->timesPrepared, 1);
}

TEST_F(AppModelTest, SwitchingApplicationsWhileHeldIsFollowed) {
    answer(sketch, 3);
    answer(writer, 5);
    startWith(sketch);
    model.showOverlay(Stickiness::held);
    desktop.front.activate(writer);
    desktop.background.runAll();
    EXPECT_TRUE(panels.overlay->visible);
    EXPECT_EQ(entriesShown(), 5U);
}

TEST_F(AppModelTest, ANewTriggerKeyIsStoredAndWorksAtOnce) {
    startWith(sketch);
    model.setTrigger(TriggerKey::option);
    model.setHoldDelay(Seconds(0.3));
    EXPECT_EQ(settings.trigger(), TriggerKey::option);
    EXPECT_EQ(settings.holdDelay(), Seconds(0.3));
    desktop.keyboard.press(Modifiers::option);
    desktop.timers.advance(Seconds(0.4));
    EXPECT_TRUE(panels.overlay->visible);
}

TEST_F(AppModelTest, SettingsAreStoredAndToldOnce) {
    startWith(sketch);
    std::vector<ModelField> told;
    const auto subscription = model.changed.subscribe([&](ModelField field) { told.push_back(field); });
    for (int twice = 0; twice < 2; ++twice) {
        model.setTrigger(TriggerKey::control);
        model.setHoldDelay(Seconds(1.2));
        model.setNudgesOn(false);
        model.setCountTyped(false);
        model.setOnboarded(true);
    }
    const std::vector expected{
        ModelField::trigger, ModelField::holdDelay, ModelField::nudgesOn, ModelField::countTyped,
        ModelField::onboarded};
    EXPECT_EQ(told, expected);
    EXPECT_EQ(settings.trigger(), TriggerKey::control);
    EXPECT_EQ(settings.holdDelay(), Seconds(1.2));
    EXPECT_FALSE(settings.nudgesOn());
    EXPECT_FALSE(settings.countTyped());
    EXPECT_TRUE(settings.onboarded());
    EXPECT_EQ(desktop.keyboard.monitors(), 1U);
}

TEST_F(AppModelTest, AModelThatWasNotStartedWatchesNothing) {
    model.setNudgesOn(false);
    model.setCountTyped(false);
    EXPECT_EQ(model.watching(), Watching());
    startWith(sketch);
    EXPECT_TRUE(model.watching().holds);
}

TEST_F(AppModelTest, PinsAreToggledAndTold) {
    startWith(sketch);
    std::vector<RecordChange> told;
    const auto subscription =
        model.recordChanged.subscribe([&](const RecordChange& change) { told.push_back(change); });
    model.togglePin("org.example.sketch", "File › Command a");
    EXPECT_TRUE(model.annotations().get("org.example.sketch", "File › Command a").pinned);
    model.togglePin("org.example.sketch", "File › Command a");
    EXPECT_EQ(model.annotations(), AnnotationBook{});
    const RecordChange pin{"org.example.sketch", "File › Command a"};
    EXPECT_EQ(told, (std::vector{pin, pin}));
}

TEST_F(AppModelTest, ShowsSampleDataWithoutADesktop) {
    model.showSample(SampleMenus::sheet(), SampleMenus::usage(), SampleMenus::annotations());
    EXPECT_EQ(model.current(), SampleMenus::sheet());
    EXPECT_EQ(model.usage().totals(SampleMenus::bundleID).clicked, 44);
    EXPECT_EQ(model.annotations().pinned(SampleMenus::bundleID).size(), 3U);
}

TEST_F(AppModelTest, WindowsAreAskedFor) {
    model.requestWindow(WindowName::library);
    EXPECT_EQ(desktop.windows.opened(), std::vector{WindowName::library});
    EXPECT_TRUE(model.offersWindow(WindowName::settings));
    desktop.windows.withhold(WindowName::settings);
    EXPECT_FALSE(model.offersWindow(WindowName::settings));
}

TEST_F(AppModelTest, PracticeIsAskedForAnApplicationEachTime) {
    std::vector<std::string> practised;
    const auto subscription = model.changed.subscribe([&](ModelField field) {
        if (field == ModelField::practiceApp)
            practised.push_back(model.practiceApp());
    });
    model.openPractice("org.example.sketch");
    model.openPractice("org.example.sketch");
    EXPECT_EQ(practised, (std::vector<std::string>{"org.example.sketch", "org.example.sketch"}));
    EXPECT_EQ(desktop.windows.opened(), (std::vector{WindowName::practice, WindowName::practice}));
    EXPECT_EQ(model.practiceApp(), "org.example.sketch");
    model.requestWindow(WindowName::settings);
    EXPECT_EQ(model.practiceApp(), "org.example.sketch");
    model.requestWindow(WindowName::practice);
    EXPECT_EQ(model.practiceApp(), "") << "what was asked for last is not asked for for ever";
}

TEST_F(AppModelTest, NotesAndMutesAreTold) {
    startWith(sketch);
    int told = 0;
    const auto subscription = model.recordChanged.subscribe([&](const RecordChange&) { ++told; });
    model.setNote("org.example.sketch", "File › Command a", "thumb first");
    model.setMuted("org.example.sketch", "File › Command a", true);
    EXPECT_EQ(
        model.annotations().get("org.example.sketch", "File › Command a"),
        (Annotation{.note = "thumb first", .muted = true}));
    EXPECT_EQ(told, 2);
}

TEST_F(AppModelTest, AnOverlayThatIsShownFollowsItsScreen) {
    panels.allScreens = {
        {{0, 0, 1920, 1080}, {0, 0, 1920, 1080}}, {{1920, 0, 1280, 1000}, {1920, 0, 1280, 1000}}};
    panels.pointerPosition = {2000, 500};
    startWith(sketch);
    model.showOverlay(Stickiness::sticky);
    panels.pointerPosition = {10, 10};
    const Rect smaller{1920, 0, 1280, 500};
    panels.changeScreens({panels.allScreens[0], {smaller, smaller}});
    EXPECT_EQ(panels.overlay->frame, PanelPlacement::overlayFrame(smaller));
    panels.changeScreens({panels.allScreens[0]});
    EXPECT_EQ(panels.overlay->frame, PanelPlacement::overlayFrame({0, 0, 1920, 1080}))
        << "its screen is gone, so it goes to the main one";
}

TEST_F(AppModelTest, AnOverlayThatIsHiddenLeavesScreensAlone) {
    startWith(sketch);
    model.showOverlay(Stickiness::sticky);
    model.closeOverlay();
    const Rect before = panels.overlay->frame;
    panels.changeScreens({});
    EXPECT_EQ(panels.overlay->frame, before);
}

} // namespace
} // namespace quillon
