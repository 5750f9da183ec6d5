#include "app_model_fixture.h"

#include <vector>

namespace quillon {
namespace {

class AppModelTypingTest : public AppModelTest {
  protected:
    /// Of what `menuBarOf` makes, the command with the letter.
    void press(const std::string& letter) {
        desktop.typedKeys.press({.characters = letter, .keyCode = 0, .modifiers = Modifiers::command});
    }
    Count typed(const RunningApp& app) const { return model.usage().totals(app.bundleID).typed; }
};

TEST_F(AppModelTypingTest, ATypedShortcutIsCounted) {
    answer(sketch, 3);
    startWith(sketch);
    std::vector<RecordChange> told;
    const Subscription subscription =
        model.recordChanged.subscribe([&](const RecordChange& change) { told.push_back(change); });
    press("b");
    press("b");
    press("z");
    EXPECT_EQ(model.usage().record(sketch.bundleID, "File › Command b"), UsageRecord{.typed = 2});
    EXPECT_EQ(typed(sketch), 2);
    EXPECT_EQ(told.size(), 2U);
    EXPECT_FALSE(model.nudge());
}

TEST_F(AppModelTypingTest, IsCountedForTheApplicationInFront) {
    answer(sketch, 3);
    answer(writer, 3);
    startWith(sketch);
    desktop.front.activate(writer);
    press("a");
    EXPECT_EQ(typed(writer), 0) << "nothing is known of it yet";
    desktop.background.runAll();
    press("a");
    EXPECT_EQ(typed(writer), 1);
    EXPECT_EQ(typed(sketch), 0);
}

TEST_F(AppModelTypingTest, WhatIsTypedIntoNoApplicationBelongsToNone) {
    answer(sketch, 3);
    startWith(sketch);
    desktop.front.setCurrent(std::nullopt);
    press("a");
    desktop.front.activate(appNamed("quillon", ownPid));
    press("a");
    EXPECT_EQ(typed(sketch), 0);
    desktop.front.activate(sketch);
    press("a");
    EXPECT_EQ(typed(sketch), 1);
}

TEST_F(AppModelTypingTest, WithoutASheetNothingIsCounted) {
    startWith(sketch);
    press("a");
    model.eraseEverything();
    press("a");
    model.handleTyped({.path = {"File", "Save"}, .shortcut = Shortcut({}, Key::character("S"))});
    EXPECT_EQ(model.usage(), UsageBook());
}

TEST_F(AppModelTypingTest, AnApplicationWithoutAnIdentifierIsNotCounted) {
    const RunningApp nameless{30, "", "", {}};
    desktop.menus.answer(nameless.pid, {menuBarOf(2), ReadOutcome::complete});
    startWith(nameless);
    ASSERT_EQ(entriesShown(), 2U);
    press("a");
    EXPECT_EQ(model.usage(), UsageBook());
}

TEST_F(AppModelTypingTest, IsNoticedOnlyWithPermissionAndWhileItIsCounted) {
    desktop.front.setCurrent(sketch);
    model.start();
    EXPECT_EQ(desktop.typedKeys.monitors(), 0U);
    desktop.access.setTrusted(true);
    EXPECT_EQ(desktop.typedKeys.monitors(), 1U);
    model.setCountTyped(false);
    EXPECT_EQ(desktop.typedKeys.monitors(), 0U);
    EXPECT_EQ(desktop.menuUse.monitors(), 1U);
    model.setCountTyped(true);
    model.setNudgesOn(false);
    EXPECT_EQ(desktop.typedKeys.monitors(), 1U);
    EXPECT_EQ(desktop.menuUse.monitors(), 0U);
    desktop.access.setTrusted(false);
    EXPECT_EQ(desktop.typedKeys.monitors(), 0U);
}

TEST_F(AppModelTypingTest, AModelThatWasNotStartedNoticesNoKeys) {
    model.setCountTyped(false);
    model.setCountTyped(true);
    EXPECT_EQ(desktop.typedKeys.monitors(), 0U);
}

} // namespace
} // namespace quillon
