#include <quillon/app/core/reading_queue.h>
#include <quillon/app/platform/fake/fake_background.h>
#include <quillon/app/platform/fake/fake_clock.h>
#include <quillon/app/platform/fake/fake_menu_reader.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;

class ReadingQueueTest : public testing::Test {
  protected:
    ReadingQueueTest() {
        queue.onRead = [this](const RunningApp& app, const AppSheet&, ReadOutcome) { read.push_back(app); };
    }
    static RunningApp app(int number) {
        const std::string name = "app" + std::to_string(number);
        return {number, "org.example." + name, name, {{1, "window"}}};
    }
    static RunningApp otherWindow(RunningApp app) {
        app.windows = {{2, "another window"}};
        return app;
    }
    std::vector<std::string> namesRead() const {
        std::vector<std::string> names;
        for (const RunningApp& one : read)
            names.push_back(one.name);
        return names;
    }

    FakeBackground background;
    FakeMenuReader menus;
    FakeClock clock;
    ReadingQueue queue{menus, background, clock};
    std::vector<RunningApp> read;
};

TEST_F(ReadingQueueTest, TellsWhatWasRead) {
    menus.answer(
        app(1).bundleID,
        {{{.title = "File", .children = {{.title = "Save", .cmdChar = "s", .cmdModifiers = 0}}}},
         ReadOutcome::limited});
    AppSheet sheet;
    ReadOutcome outcome = ReadOutcome::unavailable;
    queue.onRead = [&](const RunningApp&, AppSheet made, ReadOutcome how) {
        sheet = std::move(made);
        outcome = how;
        EXPECT_TRUE(queue.isIdle()) << "when it is told, the reading has ended";
    };
    queue.read(app(1));
    EXPECT_TRUE(queue.isReading("org.example.app1"));
    EXPECT_FALSE(queue.isReading("org.example.app2"));
    background.runAll();
    EXPECT_EQ(sheet.bundleID, "org.example.app1");
    EXPECT_EQ(sheet.appName, "app1");
    EXPECT_EQ(sheet.readAt, clock.now());
    EXPECT_EQ(sheet.entries.size(), 1U);
    EXPECT_EQ(outcome, ReadOutcome::limited);
}

TEST_F(ReadingQueueTest, ReadsAnApplicationOnceAtATime) {
    queue.read(app(1));
    queue.read(app(1));
    EXPECT_EQ(background.waiting(), 1U);
    background.runAll();
    EXPECT_THAT(namesRead(), ElementsAre("app1"));
}

TEST_F(ReadingQueueTest, AnotherWindowFollowsAndOnlyTheLastOne) {
    queue.read(app(1));
    queue.read(otherWindow(app(1)));
    RunningApp third = app(1);
    third.windows = {{3, "a third window"}};
    queue.read(third);
    background.runAll();
    EXPECT_THAT(read, ElementsAre(app(1), third));
}

TEST_F(ReadingQueueTest, NothingFollowsWhenTheWindowThatIsReadIsAskedForAgain) {
    queue.read(app(1));
    queue.read(otherWindow(app(1)));
    queue.read(app(1));
    background.runAll();
    EXPECT_THAT(read, ElementsAre(app(1)));
}

TEST_F(ReadingQueueTest, TheOneAskedForLastIsReadFirstWhenSomeHaveToWait) {
    for (int number = 1; number <= 9; ++number)
        queue.read(app(number));
    EXPECT_EQ(background.waiting(), ReadingQueue::mostUnderWay);
    EXPECT_TRUE(queue.isReading("org.example.app8"));
    background.runNext();
    EXPECT_EQ(background.waiting(), ReadingQueue::mostUnderWay);
    background.runLast();
    EXPECT_THAT(namesRead(), ElementsAre("app1", "app9"));
}

TEST_F(ReadingQueueTest, AFloodOfApplicationsIsBoundedAndTheLastIsNotLost) {
    for (int number = 1; number <= 20'000; ++number)
        queue.read(app(number));
    EXPECT_EQ(background.waiting(), ReadingQueue::mostUnderWay);
    EXPECT_TRUE(queue.isReading("org.example.app20000"));
    EXPECT_FALSE(queue.isReading("org.example.app100"));
    background.runAll();
    EXPECT_EQ(read.size(), ReadingQueue::mostUnderWay + ReadingQueue::mostWaiting);
    EXPECT_TRUE(queue.isIdle());
}

TEST_F(ReadingQueueTest, AFloodOfOneApplicationsWindowsIsBoundedToo) {
    for (int number = 0; number < 20'000; ++number) {
        RunningApp next = app(1);
        next.windows = {{static_cast<std::uint64_t>(number), "window"}};
        queue.read(next);
    }
    background.runAll();
    EXPECT_EQ(read.size(), 2U);
}

TEST_F(ReadingQueueTest, ItsEndEndsTheReadings) {
    {
        ReadingQueue shortLived(menus, background, clock);
        shortLived.read(app(1));
        EXPECT_EQ(background.waiting(), 1U);
    }
    EXPECT_EQ(background.waiting(), 0U);
}

} // namespace
} // namespace quillon
