#include <quillon/app/core/updates/feed_answer.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(FeedAnswerTest, EveryStatusOfSuccessHasBeenReached) {
    for (int status = 200; status <= 299; ++status)
        EXPECT_EQ(stateOfFeed(status), FeedState::reachable) << status;
}

TEST(FeedAnswerTest, AServerThatRefusesToBeProbedHasBeenReached) {
    EXPECT_EQ(stateOfFeed(405), FeedState::reachable);
    EXPECT_EQ(stateOfFeed(501), FeedState::reachable);
}

TEST(FeedAnswerTest, WhatIsNotThereIsNoList) {
    EXPECT_EQ(stateOfFeed(404), FeedState::absent);
    EXPECT_EQ(stateOfFeed(410), FeedState::absent);
}

TEST(FeedAnswerTest, EveryOtherStatusIsAFailure) {
    for (int status = 0; status <= 999; ++status) {
        const bool isSuccess = status >= 200 && status <= 299;
        if (!isSuccess && status != 404 && status != 405 && status != 410 && status != 501) {
            EXPECT_EQ(stateOfFeed(status), FeedState::failed) << status;
        }
    }
    EXPECT_EQ(stateOfFeed(std::nullopt), FeedState::failed);
    EXPECT_EQ(stateOfFeed(-200), FeedState::failed);
}

} // namespace
} // namespace quillon
