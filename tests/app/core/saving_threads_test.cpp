#include "app_model_learning_fixture.h"

#include <quillon/app/core/background_writes.h>
#include <quillon/app/platform/qt/thread_background.h>

#include <QCoreApplication>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <latch>
#include <thread>

namespace quillon {
namespace {

namespace fs = std::filesystem;

/// Saving on threads as in the running program.
class SavingThreadsTest : public AppModelLearningTest {
  protected:
    /// So many menus that a write of them takes a while.
    static SharedSheets manySheets() {
        SharedSheets sheets;
        AppSheet sheet{"", "App", {}, distantPast};
        for (int entry = 0; entry < 300; ++entry)
            sheet.entries.push_back(
                {.path = {"Menu", "Command " + std::to_string(entry)},
                 .shortcut = Shortcut(Modifiers::command, Key::character("A"))});
        for (int app = 0; app < 50; ++app) {
            sheet.bundleID = "app" + std::to_string(app);
            sheets.emplace(sheet.bundleID, SharedSheet(sheet));
        }
        return sheets;
    }
    /// Everything is other than it was.
    void learn() {
        ++m_learned;
        learned.usage.typed("app0", save);
        learned.annotations.togglePin("app0", std::to_string(m_learned));
        AppSheet sheet = *learned.sheets.at("app0");
        sheet.readAt = after(distantPast, Seconds(m_learned));
        learned.sheets.insert_or_assign("app0", SharedSheet(std::move(sheet)));
    }
    void putSave() {
        writes.put([to = stored, learned = learned]() mutable { to->save(std::move(learned)); });
    }
    void erase() {
        writes.finishWith([to = stored] { to->erase(); });
    }
    /// Returns in the middle of a save, which begins with this file and ends with another.
    void waitUntilASaveIsUnderWay() const {
        const auto patience = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (!fs::exists(data / "usage.json") && std::chrono::steady_clock::now() < patience)
            std::this_thread::yield();
        ASSERT_TRUE(fs::exists(data / "usage.json"));
    }
    /// Without the permission to read menus, so that saving is all that the threads have to do.
    std::unique_ptr<AppModel> modelOnThreads() {
        desktop.access.setTrusted(false);
        AppServices services = servicesOf(desktop, panels, settings, threads);
        services.dataFolder = data;
        auto model = std::make_unique<AppModel>(std::move(services));
        model->start();
        return model;
    }

    LearnedData learned{.sheets = manySheets()};
    std::shared_ptr<DataFolder> stored = std::make_shared<DataFolder>(data);
    ThreadBackground threads;
    BackgroundWrites writes{threads};

  private:
    int m_learned = 0;
};

TEST_F(SavingThreadsTest, ManySavesErasuresAndEndsLeaveWhatTheLastOneSaid) {
    for (int round = 0; round < 12; ++round) {
        for (int change = 0; change < 5; ++change) {
            learn();
            putSave();
            QCoreApplication::processEvents();
        }
        if (round % 3 == 0) {
            waitUntilASaveIsUnderWay();
            erase();
            EXPECT_FALSE(fs::exists(data));
        } else if (round % 3 == 1) {
            writes.finish();
            EXPECT_EQ(DataFolder(data).load(), learned);
        }
    }
    writes.finish();
    threads.finish();
    EXPECT_EQ(DataFolder(data).load(), learned);
}

TEST_F(SavingThreadsTest, AWriteUnderWayLeavesNothingBehindAfterErasing) {
    putSave();
    waitUntilASaveIsUnderWay();
    learn();
    putSave();
    erase();
    EXPECT_FALSE(fs::exists(data));
    QCoreApplication::processEvents();
    threads.finish();
    EXPECT_FALSE(fs::exists(data));
}

TEST_F(SavingThreadsTest, TheEndWaitsForAWriteUnderWay) {
    putSave();
    waitUntilASaveIsUnderWay();
    writes.finish();
    EXPECT_EQ(DataFolder(data).load(), learned);
}

TEST_F(SavingThreadsTest, FinishingReturnsWhenTheWriteHasEnded) {
    std::latch begun(1);
    std::atomic<bool> isFinishing = false;
    std::atomic<bool> hasEnded = false;
    writes.put([&] {
        begun.count_down();
        while (!isFinishing)
            std::this_thread::yield();
        for (int turn = 0; turn < 10'000; ++turn)
            std::this_thread::yield();
        hasEnded = true;
    });
    begun.wait();
    isFinishing = true;
    writes.finish();
    EXPECT_TRUE(hasEnded);
}

TEST_F(SavingThreadsTest, PuttingDoesNotWaitForTheWriteUnderWay) {
    std::latch begun(1);
    std::latch end(1);
    bool isNewestWritten = false;
    writes.put([&] {
        begun.count_down();
        end.wait();
    });
    begun.wait();
    writes.put([&] { isNewestWritten = true; });
    end.count_down();
    writes.finish();
    EXPECT_TRUE(isNewestWritten);
}

TEST_F(SavingThreadsTest, ApplicationsThatDoNotAnswerDoNotHoldUpASave) {
    std::latch end(1);
    std::vector<Subscription> readings;
    for (std::size_t i = 0; i < ReadingQueue::mostUnderWay; ++i)
        readings.push_back(threads.run([&](const std::stop_token&) {
            end.wait();
            return Background::Continuation();
        }));
    std::promise<void> written;
    writes.put([&] { written.set_value(); });
    EXPECT_EQ(written.get_future().wait_for(std::chrono::seconds(20)), std::future_status::ready);
    end.count_down();
    threads.finish();
}

TEST_F(SavingThreadsTest, TheProgramsEndWritesTheNewest) {
    auto model = modelOnThreads();
    for (int change = 0; change < 101; ++change) {
        model->togglePin(sketch.bundleID, save);
        desktop.timers.advance(Seconds(1));
        if (change % 10 == 5)
            model->eraseEverything();
        QCoreApplication::processEvents();
    }
    const AnnotationBook annotations = model->annotations();
    model->savePending();
    threads.finish();
    model.reset();
    EXPECT_EQ(DataFolder(data).load().annotations, annotations);
}

TEST_F(SavingThreadsTest, TheModelMayEndDuringAWrite) {
    DataFolder(data).save(learned);
    auto model = modelOnThreads();
    fs::remove_all(data);
    model->togglePin(sketch.bundleID, save);
    desktop.timers.advance(Seconds(1));
    waitUntilASaveIsUnderWay();
    model.reset();
    threads.finish();
    EXPECT_EQ(DataFolder(data).load().sheets, learned.sheets);
    EXPECT_TRUE(DataFolder(data).load().annotations.get(sketch.bundleID, save).pinned);
}

} // namespace
} // namespace quillon

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
