#include <quillon/app/platform/fake/fake_background.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;

struct FakeBackgroundTest : testing::Test {
    FakeBackground background;
    std::vector<std::string> log;

    Background::Job job(const std::string& name) {
        return [this, name](std::stop_token) -> Background::Continuation {
            log.push_back("work " + name);
            return [this, name] { log.push_back("done " + name); };
        };
    }
};

TEST_F(FakeBackgroundTest, NothingRunsUntilItIsTold) {
    const Subscription a = background.run(job("a"));
    EXPECT_THAT(log, ElementsAre());
    EXPECT_EQ(background.waiting(), 1U);
}

TEST_F(FakeBackgroundTest, RunsTheOldestAndItsContinuation) {
    const Subscription a = background.run(job("a"));
    const Subscription b = background.run(job("b"));
    EXPECT_TRUE(background.runNext());
    EXPECT_THAT(log, ElementsAre("work a", "done a"));
    EXPECT_EQ(background.waiting(), 1U);
}

TEST_F(FakeBackgroundTest, ALaterJobMayOvertake) {
    const Subscription a = background.run(job("a"));
    const Subscription b = background.run(job("b"));
    EXPECT_TRUE(background.runLast());
    EXPECT_TRUE(background.runLast());
    EXPECT_FALSE(background.runLast());
    EXPECT_THAT(log, ElementsAre("work b", "done b", "work a", "done a"));
}

TEST_F(FakeBackgroundTest, KeepsAnAnswerBackUntilItIsDelivered) {
    const Subscription a = background.run(job("a"));
    EXPECT_TRUE(background.workNext());
    EXPECT_THAT(log, ElementsAre("work a"));
    EXPECT_EQ(background.finished(), 1U);
    EXPECT_TRUE(background.deliverNext());
    EXPECT_THAT(log, ElementsAre("work a", "done a"));
    EXPECT_FALSE(background.deliverNext());
}

TEST_F(FakeBackgroundTest, RunsJobsThatOtherJobsAdd) {
    Subscription b;
    const Subscription a = background.run(
        [&](std::stop_token) -> Background::Continuation { return [&] { b = background.run(job("b")); }; });
    background.runAll();
    EXPECT_THAT(log, ElementsAre("work b", "done b"));
}

TEST_F(FakeBackgroundTest, AJobWithoutAContinuationIsFine) {
    const Subscription a = background.run([](std::stop_token) { return Background::Continuation(); });
    EXPECT_TRUE(background.runNext());
    EXPECT_FALSE(background.runNext());
}

TEST_F(FakeBackgroundTest, AJobWhoseHandleEndedIsNotRun) {
    Subscription a = background.run(job("a"));
    const Subscription b = background.run(job("b"));
    a.reset();
    EXPECT_EQ(background.waiting(), 1U);
    background.runAll();
    EXPECT_THAT(log, ElementsAre("work b", "done b"));
}

TEST_F(FakeBackgroundTest, AnAnswerWhoseHandleEndedIsNotDelivered) {
    Subscription a = background.run(job("a"));
    EXPECT_TRUE(background.workNext());
    a.reset();
    EXPECT_EQ(background.finished(), 0U);
    EXPECT_FALSE(background.deliverNext());
    EXPECT_THAT(log, ElementsAre("work a"));
}

TEST_F(FakeBackgroundTest, AContinuationMayEndItsOwnHandle) {
    Subscription a;
    a = background.run([&](std::stop_token) -> Background::Continuation {
        return [&] {
            a.reset();
            log.push_back("done a");
        };
    });
    background.runAll();
    EXPECT_THAT(log, ElementsAre("done a"));
}

TEST_F(FakeBackgroundTest, TellsJobsToStop) {
    bool stopped = false;
    const Subscription a = background.run([&](std::stop_token stop) {
        stopped = stop.stop_requested();
        return Background::Continuation();
    });
    background.requestStop();
    background.runAll();
    EXPECT_TRUE(stopped);
}

} // namespace
} // namespace quillon
