#include "app_model_learning_fixture.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

/// Saves and what happens while one is under way.
class AppModelSavingTest : public AppModelLearningTest {
  protected:
    const std::string print = "File › Command b";

    /// What a next run finds pinned.
    bool isPinnedInNextRun(const std::string& entryID) {
        const auto next = modelOver(data);
        next->start();
        return next->annotations().get(sketch.bundleID, entryID).pinned;
    }
    /// Pins, and lets the save begin that follows a second later.
    void pinAndBeginSaving(AppModel& model, const std::string& entryID) {
        model.togglePin(sketch.bundleID, entryID);
        desktop.timers.advance(Seconds(1));
    }
};

TEST_F(AppModelSavingTest, NothingIsWrittenOnTheMainThread) {
    const auto model = startedModel();
    pinAndBeginSaving(*model, save);
    EXPECT_FALSE(isStored());
    desktop.background.runAll();
    EXPECT_TRUE(isPinnedInNextRun(save));
}

TEST_F(AppModelSavingTest, AChangeDuringAWriteIsWrittenAfterIt) {
    const auto model = startedModel();
    pinAndBeginSaving(*model, save);
    desktop.background.workNext();
    pinAndBeginSaving(*model, print);
    EXPECT_EQ(desktop.background.waiting(), 0U) << "one at a time";
    EXPECT_FALSE(isPinnedInNextRun(print));
    desktop.background.runAll();
    EXPECT_TRUE(isPinnedInNextRun(save));
    EXPECT_TRUE(isPinnedInNextRun(print));
}

TEST_F(AppModelSavingTest, SavesThatWaitAreOneAndTheNewest) {
    const auto model = startedModel();
    for (int times = 0; times < 3; ++times)
        pinAndBeginSaving(*model, save);
    EXPECT_EQ(desktop.background.waiting(), 1U);
    desktop.background.runNext();
    EXPECT_TRUE(isPinnedInNextRun(save)) << "pinned, unpinned and pinned again";
    EXPECT_EQ(desktop.background.waiting(), 0U);
}

TEST_F(AppModelSavingTest, TheEndWritesASaveThatHasNotBegun) {
    const auto model = startedModel();
    pinAndBeginSaving(*model, save);
    model->savePending();
    EXPECT_TRUE(isPinnedInNextRun(save));
}

TEST_F(AppModelSavingTest, TheEndWritesASaveThatTheBackgroundDropped) {
    const auto model = startedModel();
    pinAndBeginSaving(*model, save);
    desktop.background.requestStop();
    model->savePending();
    EXPECT_TRUE(isPinnedInNextRun(save));
}

TEST_F(AppModelSavingTest, TheEndWritesWhatChangedSinceAWriteBegan) {
    const auto model = startedModel();
    pinAndBeginSaving(*model, save);
    desktop.background.workNext();
    pinAndBeginSaving(*model, print);
    model->togglePin(sketch.bundleID, "File › Command c");
    model->savePending();
    EXPECT_TRUE(isPinnedInNextRun(print));
    EXPECT_TRUE(isPinnedInNextRun("File › Command c"));
}

TEST_F(AppModelSavingTest, NothingComesBackAfterErasing) {
    const auto model = startedModel();
    pinAndBeginSaving(*model, save);
    model->eraseEverything();
    EXPECT_FALSE(isStored());
    desktop.background.runAll();
    EXPECT_FALSE(isStored()) << "the save had not begun";
    pinAndBeginSaving(*model, save);
    desktop.background.workNext();
    pinAndBeginSaving(*model, print);
    model->eraseEverything();
    desktop.background.runAll();
    EXPECT_FALSE(isStored()) << "one had been done and one was to follow";
}

TEST_F(AppModelSavingTest, WhatIsLearnedAfterErasingIsSavedWhole) {
    const auto model = startedModel();
    model->togglePin(sketch.bundleID, save);
    model->savePending();
    pinAndBeginSaving(*model, print);
    model->eraseEverything();
    desktop.front.activate(sketch);
    desktop.background.runAll();
    model->togglePin(sketch.bundleID, print);
    pass(Seconds(1));
    const auto next = modelOver(data);
    next->start();
    EXPECT_FALSE(next->annotations().get(sketch.bundleID, save).pinned);
    EXPECT_TRUE(next->annotations().get(sketch.bundleID, print).pinned);
    EXPECT_EQ(next->sheets(), model->sheets());
    EXPECT_EQ(next->sheets().size(), 1U);
}

TEST_F(AppModelSavingTest, AFailedSaveIsNotTriedAgainAndTheNextOneWritesAll) {
    const auto model = startedModel();
    std::ofstream(data) << "in the way";
    model->togglePin(sketch.bundleID, save);
    pass(Seconds(1));
    fs::remove(data);
    pass(Seconds(10));
    model->savePending();
    EXPECT_FALSE(isStored()) << "nothing changed since";
    model->handleTyped(model->current()->entries.at(0));
    pass(Seconds(1));
    const auto next = modelOver(data);
    next->start();
    EXPECT_EQ(next->usage(), model->usage());
    EXPECT_EQ(next->annotations(), model->annotations());
    EXPECT_EQ(next->sheets(), model->sheets());
}

TEST_F(AppModelSavingTest, TheModelsEndDropsASaveThatHasNotBegun) {
    auto model = startedModel();
    pinAndBeginSaving(*model, save);
    model.reset();
    EXPECT_EQ(desktop.background.waiting(), 0U);
    desktop.background.runAll();
    EXPECT_FALSE(isStored());
}

TEST_F(AppModelSavingTest, WithoutAFolderTheBackgroundHasNothingToDo) {
    const auto model = modelOver({});
    model->start();
    desktop.background.runAll();
    pinAndBeginSaving(*model, save);
    EXPECT_EQ(desktop.background.waiting(), 0U);
}

} // namespace
} // namespace quillon
