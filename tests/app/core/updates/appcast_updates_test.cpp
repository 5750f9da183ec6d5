#include "noted_notices.h"

#include <quillon/app/core/updates/appcast_updates.h>
#include <quillon/app/platform/fake/fake_background.h>
#include <quillon/app/platform/fake/fake_timers.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string listOf(const std::string& version) {
    return "<rss xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel><item>"
           "<sparkle:version>"
           + version + "</sparkle:version></item></channel></rss>";
}

class AppcastUpdatesTest : public testing::Test {
  protected:
    AppcastUpdates updates(const std::string& address = "https://example.org/appcast.xml") {
        return AppcastUpdates(
            {.background = background,
             .timers = timers,
             .ask =
                 [this](const FeedRequest& request, std::stop_token) {
                     asked.push_back(request);
                     return answer;
                 }},
            notices, {.feedAddress = address, .version = "1.2"});
    }

    FakeClock clock;
    FakeTimers timers{clock};
    FakeBackground background;
    NotedNotices notices;
    FeedAnswer answer{.status = 200, .body = listOf("1.3")};
    std::vector<FeedRequest> asked;
};

TEST_F(AppcastUpdatesTest, OffersANewerRelease) {
    AppcastUpdates framework = updates();
    framework.checkForUpdates();
    EXPECT_THAT(notices.offered, IsEmpty());
    background.runNext();
    EXPECT_THAT(notices.offered, ElementsAre("1.3"));
    EXPECT_EQ(notices.lastOccasion, Occasion::asked);
    EXPECT_THAT(notices.told, IsEmpty());
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].method, FeedMethod::get);
    EXPECT_EQ(asked[0].sender, "Quillon/1.2");
}

TEST_F(AppcastUpdatesTest, TellsWhenThereIsNone) {
    AppcastUpdates framework = updates();
    for (const FeedAnswer& other :
         {FeedAnswer{200, listOf("1.2")}, FeedAnswer{404, ""}, FeedAnswer{500, ""}, FeedAnswer{},
          FeedAnswer{200, "Sign in"}}) {
        answer = other;
        framework.checkForUpdates();
        background.runNext();
    }
    EXPECT_THAT(
        notices.told, ElementsAre(
                          UpdateNotice::upToDate, UpdateNotice::upToDate, UpdateNotice::unreachable,
                          UpdateNotice::unreachable, UpdateNotice::unreadable));
    EXPECT_THAT(notices.offered, IsEmpty());
}

TEST_F(AppcastUpdatesTest, WithoutAListItSaysWhereUpdatesComeFrom) {
    AppcastUpdates framework = updates("");
    EXPECT_EQ(framework.feedAddress(), "");
    framework.checkForUpdates();
    EXPECT_THAT(notices.told, ElementsAre(UpdateNotice::withSystem));
    EXPECT_EQ(background.waiting(), 0U);
}

TEST_F(AppcastUpdatesTest, ChecksOnceAtATime) {
    AppcastUpdates framework = updates();
    framework.checkForUpdates();
    framework.checkForUpdates();
    background.runAll();
    EXPECT_EQ(asked.size(), 1U);
    EXPECT_EQ(notices.offered.size(), 1U);
}

TEST_F(AppcastUpdatesTest, DoesNotWaitForEver) {
    AppcastUpdates framework = updates();
    framework.checkForUpdates();
    timers.advance(ReleaseLook::limit);
    EXPECT_THAT(notices.told, ElementsAre(UpdateNotice::unreachable));
    background.runAll();
    EXPECT_THAT(notices.offered, IsEmpty());
}

} // namespace
} // namespace quillon
