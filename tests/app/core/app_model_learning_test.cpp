#include "app_model_learning_fixture.h"

#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>

namespace quillon {
namespace {

namespace fs = std::filesystem;

TEST_F(AppModelLearningTest, PinsAndSheetsAreThereInTheNextRun) {
    auto model = startedModel();
    model->togglePin(sketch.bundleID, save);
    pass(Seconds(1.1));
    const SharedSheets sheets = model->sheets();
    model.reset();
    auto next = modelOver(data);
    EXPECT_TRUE(next->sheets().empty()) << "loaded at the start";
    next->start();
    EXPECT_TRUE(next->annotations().get(sketch.bundleID, save).pinned);
    ASSERT_TRUE(next->sheets().contains(sketch.bundleID));
    EXPECT_EQ(next->current()->entries, sheets.at(sketch.bundleID)->entries)
        << "shown before it is read anew";
}

TEST_F(AppModelLearningTest, SavesASecondAfterTheLastChange) {
    auto model = startedModel();
    pass(Seconds(0.9));
    model->togglePin(sketch.bundleID, save);
    pass(Seconds(0.9));
    EXPECT_FALSE(isStored());
    pass(Seconds(0.2));
    EXPECT_TRUE(isStored());
}

TEST_F(AppModelLearningTest, TheEndWritesWhatIsPendingAndOnlyThat) {
    auto model = startedModel();
    model->togglePin(sketch.bundleID, save);
    model->savePending();
    EXPECT_TRUE(isStored());
    fs::remove_all(data);
    model->savePending();
    EXPECT_FALSE(isStored());
}

TEST_F(AppModelLearningTest, SheetsAreWrittenOnlyWhenTheyAreOthers) {
    const auto model = startedModel();
    model->savePending();
    write("menus.json", "{}");
    model->togglePin(sketch.bundleID, save);
    model->savePending();
    EXPECT_EQ(read("menus.json"), "{}") << "there was nothing to write";
    desktop.clock.advance(Seconds(60));
    desktop.front.activate(sketch);
    desktop.background.runAll();
    model->savePending();
    EXPECT_NE(read("menus.json"), "{}");
}

TEST_F(AppModelLearningTest, AnnotationsAreWrittenOnlyWhenTheyAreOthers) {
    startedModel()->savePending();
    const auto model = startedModel();
    write("notes.json", "{}");
    model->handleTyped(model->current()->entries.at(0));
    model->savePending();
    EXPECT_EQ(read("notes.json"), "{}") << "there was nothing to write";
    model->togglePin(sketch.bundleID, save);
    model->savePending();
    EXPECT_NE(read("notes.json"), "{}");
}

TEST_F(AppModelLearningTest, AFileThatIsMissingIsWritten) {
    const auto model = startedModel();
    model->togglePin(sketch.bundleID, save);
    model->savePending();
    for (const char* name : {"usage.json", "notes.json", "menus.json", "weeks.json"}) {
        const std::string before = read(name);
        fs::remove(data / name);
        desktop.front.activate(sketch);
        desktop.background.runAll();
        model->savePending();
        EXPECT_EQ(read(name), before) << name;
    }
}

TEST_F(AppModelLearningTest, LoadingIsNoChangeToSave) {
    startedModel()->savePending();
    fs::remove(data / "usage.json");
    desktop.access.setTrusted(false);
    const auto next = modelOver(data);
    next->start();
    pass(Seconds(3));
    next->savePending();
    EXPECT_FALSE(fs::exists(data / "usage.json"));
}

TEST_F(AppModelLearningTest, WithoutAFolderNoFileIsTouched) {
    const fs::path before = fs::current_path();
    const fs::path empty = fs::path(folder.path().toStdString()) / "empty";
    fs::create_directory(empty);
    fs::current_path(empty);
    auto model = modelOver({});
    model->start();
    desktop.background.runAll();
    model->togglePin(sketch.bundleID, save);
    pass(Seconds(3));
    model->eraseEverything();
    fs::current_path(before);
    EXPECT_TRUE(fs::is_empty(empty));
    EXPECT_EQ(model->annotations(), AnnotationBook());
}

TEST_F(AppModelLearningTest, ErasingForgetsEverythingButTheSettings) {
    settings.setTrigger(TriggerKey::option);
    auto model = startedModel();
    model->togglePin(sketch.bundleID, save);
    model->savePending();
    model->togglePin(sketch.bundleID, "File › Command b");
    model->eraseEverything();
    EXPECT_FALSE(isStored());
    EXPECT_FALSE(model->current());
    EXPECT_TRUE(model->sheets().empty());
    EXPECT_EQ(model->usage(), UsageBook());
    EXPECT_EQ(model->annotations(), AnnotationBook());
    EXPECT_EQ(model->trigger(), TriggerKey::option);
    pass(Seconds(1.5));
    EXPECT_FALSE(isStored()) << "what was pending before is not written any more";
    pass(Seconds(1));
    desktop.background.runAll();
    EXPECT_EQ(model->current()->entries.size(), 3U) << "read again with the next look at the permission";
}

TEST_F(AppModelLearningTest, ErasingIsToldAsAWhole) {
    auto model = startedModel();
    model->togglePin(sketch.bundleID, save);
    std::vector<ModelField> told;
    std::vector<RecordChange> records;
    const Subscription fields = model->changed.subscribe([&](ModelField field) { told.push_back(field); });
    const Subscription changes =
        model->recordChanged.subscribe([&](const RecordChange& change) { records.push_back(change); });
    model->eraseEverything();
    EXPECT_EQ(told, (std::vector{ModelField::current, ModelField::sheets}));
    EXPECT_EQ(records, std::vector{RecordChange()});
}

TEST_F(AppModelLearningTest, AFloodOfApplicationsCostsNoGrowingMemory) {
    auto model = startedModel();
    for (int number = 0; number < 20'000; ++number) {
        const RunningApp app = appNamed("flood" + std::to_string(number), 100 + number);
        desktop.front.activate(app);
    }
    EXPECT_LE(desktop.background.waiting(), ReadingQueue::mostUnderWay);
    EXPECT_EQ(model->current()->bundleID, "org.example.flood19999");
    EXPECT_TRUE(model->reading());
    desktop.background.runAll();
    EXPECT_FALSE(model->reading());
    EXPECT_LE(model->sheets().size(), ReadingQueue::mostUnderWay + ReadingQueue::mostWaiting + 1);
}

} // namespace
} // namespace quillon
