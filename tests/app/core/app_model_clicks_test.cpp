#include "app_model_fixture.h"

#include <quillon/tests/app/core/support/menu_clicks.h>

#include <vector>

namespace quillon {
namespace {

class AppModelClicksTest : public AppModelTest {
  protected:
    void click(const RunningApp& app, const MenuEntry& entry) { tellClick(desktop.menuUse, app, entry); }
    std::optional<UsageRecord> record() const { return model.usage().record(sketch.bundleID, save.id()); }
    Count clicked() const { return record().value_or(UsageRecord{}).clicked; }

    const MenuEntry save{
        .path = {"File", "Save"}, .shortcut = Shortcut(Modifiers::control, Key::character("S"))};
    const MenuEntry quit{
        .path = {"File", "Quit"}, .shortcut = Shortcut(Modifiers::control, Key::character("Q"))};
};

TEST_F(AppModelClicksTest, AClickIsCountedAndNudged) {
    startWith(sketch);
    panels.pointerPosition = {960, 500};
    click(sketch, save);
    const UsageRecord expected{
        .clicked = 1, .lastClicked = desktop.clock.now(), .lastNudged = desktop.clock.now()};
    EXPECT_EQ(record(), expected);
    EXPECT_EQ(model.nudge(), (Nudge{save, "sketch"}));
    EXPECT_TRUE(panels.toast->visible);
    EXPECT_FALSE(panels.toast->hasKeyboard);
    EXPECT_EQ(panels.toast->frame, (Rect{780, 528, 360, 92}));
}

TEST_F(AppModelClicksTest, TheNudgeIsKnownBeforeTheToastShows) {
    startWith(sketch);
    std::vector<ModelField> told;
    bool shownBefore = true;
    const Subscription subscription = model.changed.subscribe([&](ModelField field) {
        told.push_back(field);
        shownBefore = panels.toast->visible;
        EXPECT_EQ(model.nudge()->entry, save);
    });
    click(sketch, save);
    EXPECT_EQ(told, std::vector{ModelField::nudge});
    EXPECT_FALSE(shownBefore);
    desktop.timers.advance(Seconds(10));
    click(sketch, save);
    EXPECT_EQ(told.size(), 2U) << "the same nudge again is shown again";
}

TEST_F(AppModelClicksTest, EachChangeOfARecordIsToldOnce) {
    startWith(sketch);
    std::vector<RecordChange> told;
    const Subscription subscription =
        model.recordChanged.subscribe([&](const RecordChange& change) { told.push_back(change); });
    const RecordChange ofSave{sketch.bundleID, save.id()};
    click(sketch, save);
    EXPECT_EQ(told, (std::vector{ofSave, ofSave})) << "the click, and the nudge";
    desktop.timers.advance(Seconds(2));
    click(sketch, save);
    EXPECT_EQ(told.size(), 3U) << "the click alone";
}

TEST_F(AppModelClicksTest, TwoReportsWithinASecondAreOneClick) {
    startWith(sketch);
    click(sketch, save);
    desktop.timers.advance(Seconds(0.5));
    click(sketch, save);
    EXPECT_EQ(clicked(), 1);
    desktop.timers.advance(Seconds(1.5));
    click(sketch, save);
    EXPECT_EQ(clicked(), 2);
}

TEST_F(AppModelClicksTest, TwoCommandsWithinASecondAreTwoClicks) {
    startWith(sketch);
    click(sketch, save);
    click(sketch, quit);
    EXPECT_EQ(clicked(), 1);
    EXPECT_EQ(model.usage().totals(sketch.bundleID).clicked, 2);
    EXPECT_EQ(model.nudge()->entry, quit);
}

TEST_F(AppModelClicksTest, ANudgeRestsForTenSeconds) {
    startWith(sketch);
    click(sketch, save);
    desktop.timers.advance(Seconds(5));
    panels.toast->timesShown = 0;
    click(sketch, save);
    EXPECT_EQ(panels.toast->timesShown, 0);
    EXPECT_EQ(clicked(), 2);
    desktop.timers.advance(Seconds(5));
    click(sketch, save);
    EXPECT_EQ(panels.toast->timesShown, 1);
    EXPECT_EQ(clicked(), 3);
}

TEST_F(AppModelClicksTest, AShortcutThatIsTypedEnoughIsNudgedNoMore) {
    answer(sketch, 1);
    startWith(sketch);
    const MenuEntry entry = model.current()->entries.at(0);
    for (int i = 0; i < 6; ++i)
        model.handleTyped(entry);
    click(sketch, entry);
    EXPECT_FALSE(panels.toast->visible) << "5 more than clicked, with this click";
    desktop.timers.advance(Seconds(20));
    click(sketch, entry);
    EXPECT_TRUE(panels.toast->visible) << "4 more than clicked";
}

TEST_F(AppModelClicksTest, AMutedCommandIsCountedOnly) {
    startWith(sketch);
    model.showSample(
        {sketch.bundleID, sketch.name, {save}, distantPast}, {}, {{save.id(), Annotation{.muted = true}}});
    click(sketch, save);
    EXPECT_EQ(clicked(), 1);
    EXPECT_FALSE(record()->lastNudged);
    EXPECT_FALSE(model.nudge());
    EXPECT_FALSE(panels.toast->visible);
}

TEST_F(AppModelClicksTest, NoClickIsLostWhenTheClockIsSetBack) {
    startWith(sketch);
    click(sketch, save);
    desktop.clock.setNow(after(desktop.clock.now(), Seconds(-3600)));
    click(sketch, save);
    EXPECT_EQ(clicked(), 2);
    EXPECT_EQ(record()->lastClicked, desktop.clock.now());
    desktop.timers.advance(Seconds(2));
    click(sketch, save);
    EXPECT_EQ(clicked(), 3);
    EXPECT_EQ(panels.toast->timesShown, 1)
        << "the last nudge lies in the future until the clock is there again";
}

TEST_F(AppModelClicksTest, AnApplicationWithoutAnIdentifierIsNotCounted) {
    startWith(sketch);
    click({30, "", "Nameless", {}}, save);
    EXPECT_EQ(model.usage(), UsageBook());
    EXPECT_FALSE(model.nudge());
}

TEST_F(AppModelClicksTest, AnApplicationWithoutANameIsNudgedWithout) {
    startWith(sketch);
    click({30, "org.example.nameless", "", {}}, save);
    EXPECT_EQ(model.nudge(), (Nudge{save, ""}));
}

TEST_F(AppModelClicksTest, TheApplicationNeedNotBeInFront) {
    startWith(sketch);
    click(writer, save);
    EXPECT_EQ(model.usage().record(writer.bundleID, save.id())->clicked, 1);
    EXPECT_EQ(model.current()->bundleID, sketch.bundleID);
}

TEST_F(AppModelClicksTest, ThisProgramsOwnMenusAreNotCounted) {
    startWith(sketch);
    click(appNamed("quillon", ownPid), save);
    EXPECT_EQ(model.usage(), UsageBook());
}

TEST_F(AppModelClicksTest, TheIdIsThatOfTheSheet) {
    answer(sketch, 1);
    startWith(sketch);
    const MenuEntry entry = model.current()->entries.at(0);
    click(sketch, entry);
    EXPECT_TRUE(model.current()->entry(model.usage().records(sketch.bundleID).begin()->first));
}

TEST_F(AppModelClicksTest, ClicksAreNoticedOnlyWithPermissionAndWithNudgesOn) {
    desktop.front.setCurrent(sketch);
    model.start();
    EXPECT_EQ(desktop.menuUse.monitors(), 0U);
    desktop.access.setTrusted(true);
    EXPECT_EQ(desktop.menuUse.monitors(), 1U);
    model.setNudgesOn(false);
    EXPECT_EQ(desktop.menuUse.monitors(), 0U);
    model.setNudgesOn(true);
    EXPECT_EQ(desktop.menuUse.monitors(), 1U);
    desktop.access.setTrusted(false);
    EXPECT_EQ(desktop.menuUse.monitors(), 0U);
    model.setNudgesOn(false);
    model.setNudgesOn(true);
    EXPECT_EQ(desktop.menuUse.monitors(), 0U);
}

TEST_F(AppModelClicksTest, AModelThatWasNotStartedNoticesNoClicks) {
    model.setNudgesOn(false);
    model.setNudgesOn(true);
    EXPECT_EQ(desktop.menuUse.monitors(), 0U);
}

TEST_F(AppModelClicksTest, APickThatIsHandledWithoutNudgesIsCountedOnly) {
    startWith(sketch);
    model.setNudgesOn(false);
    model.handlePick(sketch, save.path, save.shortcut);
    EXPECT_EQ(clicked(), 1);
    EXPECT_FALSE(model.nudge());
}

} // namespace
} // namespace quillon
