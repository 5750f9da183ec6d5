#include "local_server.h"
#include "noted_notices.h"

#include <quillon/app/core/updates/updater.h>
#include <quillon/app/core/updates/web/ask_feed.h>
#include <quillon/app/platform/fake/fake_background.h>
#include <quillon/app/platform/fake/fake_timers.h>
#include <quillon/app/platform/fake/fake_update_framework.h>
#include <quillon/app/platform/qt/thread_background.h>
#include <quillon/tests/support/wait_for.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UpdaterTest : public testing::Test {
  protected:
    FakeClock clock;
    FakeTimers timers{clock};
    FakeBackground background;
    FakeUpdateFramework framework;
    NotedNotices notices;
    std::optional<int> status = 200;
    std::vector<FeedRequest> asked;
    Updater updater{{
        .framework = framework,
        .notices = notices,
        .background = background,
        .timers = timers,
        .ask =
            [this](const FeedRequest& request, std::stop_token) {
                asked.push_back(request);
                return FeedAnswer{.status = status};
            },
        .sender = "Quillon/1.2",
    }};
};

TEST_F(UpdaterTest, WithoutAListTheFrameworkChecksAtOnce) {
    framework.address = "";
    updater.checkForUpdates();
    EXPECT_EQ(framework.checks, 1);
    EXPECT_FALSE(updater.checking());
    EXPECT_EQ(background.waiting(), 0U);
}

TEST_F(UpdaterTest, ProbesTheList) {
    updater.checkForUpdates();
    EXPECT_TRUE(updater.checking());
    EXPECT_EQ(framework.checks, 0) << "not before the answer";
    background.runNext();
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].method, FeedMethod::head);
    EXPECT_EQ(asked[0].address.toString().toStdString(), framework.address);
    EXPECT_EQ(asked[0].sender, "Quillon/1.2");
}

TEST_F(UpdaterTest, HandsOverWhatIsReachable) {
    for (const int reachable : {200, 299, 405, 501}) {
        status = reachable;
        updater.checkForUpdates();
        background.runNext();
        EXPECT_FALSE(updater.checking());
    }
    EXPECT_EQ(framework.checks, 4);
    EXPECT_THAT(notices.told, IsEmpty());
}

TEST_F(UpdaterTest, WithoutAListYetThereIsNothingNewer) {
    for (const int absent : {404, 410}) {
        status = absent;
        updater.checkForUpdates();
        background.runNext();
    }
    EXPECT_THAT(notices.told, ElementsAre(UpdateNotice::upToDate, UpdateNotice::upToDate));
    EXPECT_EQ(framework.checks, 0);
    EXPECT_FALSE(updater.checking());
}

TEST_F(UpdaterTest, TellsOfAFailure) {
    for (const std::optional<int> failed : std::vector<std::optional<int>>{500, 301, 403, std::nullopt}) {
        status = failed;
        updater.checkForUpdates();
        background.runNext();
        EXPECT_FALSE(updater.checking());
    }
    EXPECT_EQ(notices.told, std::vector(4, UpdateNotice::unreachable));
    EXPECT_EQ(framework.checks, 0);
}

TEST_F(UpdaterTest, ASecondCheckDuringTheProbeDoesNothing) {
    status = 404;
    updater.checkForUpdates();
    updater.checkForUpdates();
    timers.advance(Seconds(14.9));
    updater.checkForUpdates();
    background.runAll();
    EXPECT_EQ(asked.size(), 1U);
    EXPECT_EQ(notices.told.size(), 1U);
}

TEST_F(UpdaterTest, AProbeTakesFifteenSecondsAtMost) {
    updater.checkForUpdates();
    timers.advance(Seconds(14.9));
    EXPECT_TRUE(updater.checking());
    EXPECT_THAT(notices.told, IsEmpty());
    timers.advance(Seconds(0.2));
    EXPECT_FALSE(updater.checking());
    EXPECT_THAT(notices.told, ElementsAre(UpdateNotice::unreachable));
    background.runAll();
    EXPECT_EQ(framework.checks, 0) << "a late answer is none";
    EXPECT_EQ(notices.told.size(), 1U);
}

TEST_F(UpdaterTest, AnAnswerInTimeEndsTheLimit) {
    updater.checkForUpdates();
    background.runNext();
    timers.advance(Seconds(60));
    EXPECT_THAT(notices.told, IsEmpty());
    EXPECT_EQ(timers.running(), 0U);
}

TEST_F(UpdaterTest, CanBeAskedAgainAfterwards) {
    status = std::nullopt;
    updater.checkForUpdates();
    background.runNext();
    status = 200;
    updater.checkForUpdates();
    background.runNext();
    EXPECT_EQ(framework.checks, 1);
}

/// The same with a server and threads.
class UpdaterAndServerTest : public testing::Test {
  protected:
    void check(const LocalServer& server) {
        framework.address = server.url("/appcast.xml").toString().toStdString();
        updater.checkForUpdates();
    }
    bool done() const { return !updater.checking(); }

    FakeClock clock;
    FakeTimers timers{clock};
    ThreadBackground background;
    FakeUpdateFramework framework;
    NotedNotices notices;
    Updater updater{{
        .framework = framework,
        .notices = notices,
        .background = background,
        .timers = timers,
        .ask = askFeed,
        .sender = "Quillon/1.2",
    }};
};

TEST_F(UpdaterAndServerTest, AnAnswerIsActedUponOnTheMainThread) {
    const LocalServer refusing(LocalServer::status(405));
    check(refusing);
    ASSERT_TRUE(waitFor([this] { return done(); }));
    EXPECT_EQ(framework.checks, 1);

    const LocalServer empty(LocalServer::status(404));
    check(empty);
    ASSERT_TRUE(waitFor([this] { return done(); }));
    EXPECT_THAT(notices.told, ElementsAre(UpdateNotice::upToDate));

    const LocalServer broken(LocalServer::status(500));
    check(broken);
    ASSERT_TRUE(waitFor([this] { return done(); }));
    EXPECT_EQ(notices.told.back(), UpdateNotice::unreachable);
}

TEST_F(UpdaterAndServerTest, AServerThatHangsIsGivenUp) {
    const LocalServer server(LocalServer::silence());
    check(server);
    ASSERT_TRUE(waitFor([&] { return !server.requests().empty(); }));
    EXPECT_TRUE(updater.checking());
    timers.advance(Updater::probeLimit);
    EXPECT_TRUE(done());
    EXPECT_THAT(notices.told, ElementsAre(UpdateNotice::unreachable));
}

TEST_F(UpdaterAndServerTest, TheProgramEndsWhileAServerHangs) {
    const LocalServer server(LocalServer::silence());
    check(server);
    ASSERT_TRUE(waitFor([&] { return !server.requests().empty(); }));
    background.finish(); // returns
    EXPECT_THAT(notices.told, IsEmpty());
}

} // namespace
} // namespace quillon
