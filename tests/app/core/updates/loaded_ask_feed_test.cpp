#include "local_server.h"

#include <quillon/app/core/updates/web/loaded/loaded_ask_feed.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

FeedRequest requestTo(const LocalServer& server) {
    return {.address = server.url("/appcast.xml"), .sender = "Quillon/0.1"};
}

TEST(LoadedAskFeedTest, TheLibraryAsks) {
    const LocalServer server(LocalServer::status(404));
    const AskFeed ask = loadedAskFeed(QStringLiteral(QUILLON_WEB_LIBRARY));
    EXPECT_EQ(ask(requestTo(server), {}).status, 404);
    EXPECT_EQ(ask(requestTo(server), {}).status, 404) << "and once more";
}

TEST(LoadedAskFeedTest, WithoutTheLibraryThereIsNoAnswer) {
    const LocalServer server(LocalServer::status(404));
    EXPECT_EQ(loadedAskFeed(u"/nowhere/quillon_web.so"_s)(requestTo(server), {}), FeedAnswer());
    EXPECT_TRUE(server.requests().empty());
}

} // namespace
} // namespace quillon
