#include "local_server.h"

#include <quillon/app/core/updates/web/ask_feed.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTimer>

#include <string>

#include <sys/socket.h>

namespace quillon {
namespace {

using testing::ElementsAre;

FeedAnswer ask(const QUrl& address, FeedMethod method, std::stop_token stop = {}) {
    return askFeed({.address = address, .method = method, .sender = "Quillon/0.1"}, stop);
}

FeedAnswer head(const LocalServer& server) {
    return ask(server.url("/appcast.xml"), FeedMethod::head);
}

FeedAnswer get(const LocalServer& server) {
    return ask(server.url("/appcast.xml"), FeedMethod::get);
}

TEST(FeedRequestTest, TellsTheStatusOfWhateverTheServerAnswers) {
    for (const int status : {200, 204, 400, 401, 403, 404, 405, 410, 418, 500, 501, 503, 599}) {
        const LocalServer server(LocalServer::status(status));
        EXPECT_EQ(head(server).status, status);
        EXPECT_THAT(server.requests(), ElementsAre("HEAD /appcast.xml HTTP/1.1"));
    }
}

TEST(FeedRequestTest, APasswordIsNeverAskedFor) {
    for (const int status : {401, 407}) {
        const LocalServer server(LocalServer::status(status));
        EXPECT_EQ(stateOfFeed(head(server).status), FeedState::failed) << status;
        EXPECT_EQ(server.requests().size(), 1U);
    }
}

TEST(FeedRequestTest, GetsTheBody) {
    const LocalServer server(LocalServer::body("<rss/>"));
    EXPECT_EQ(get(server), (FeedAnswer{.status = 200, .body = "<rss/>"}));
    EXPECT_THAT(server.requests(), ElementsAre("GET /appcast.xml HTTP/1.1"));
}

TEST(FeedRequestTest, TakesNoBodyOfAnError) {
    const LocalServer server(LocalServer::saying("HTTP/1.1 500 Broken\r\nContent-Length: 6\r\n\r\n<rss/>"));
    EXPECT_EQ(get(server), (FeedAnswer{.status = 500}));
}

TEST(FeedRequestTest, SaysWhoAsksAndPassesCachesOver) {
    std::string request;
    const LocalServer server([&](QTcpSocket& client, const std::string& text) {
        request = text;
        LocalServer::status(200)(client, text);
    });
    head(server);
    // The toolkit's versions differ in how they write the names.
    const QByteArray said = QByteArray::fromStdString(request).toLower();
    EXPECT_TRUE(said.contains("\r\nuser-agent: quillon/0.1\r\n")) << request;
    EXPECT_TRUE(said.contains("\r\ncache-control: no-cache\r\n")) << request;
    EXPECT_FALSE(said.contains("cookie")) << request;
}

TEST(FeedRequestTest, KeepsNoCookies) {
    std::string second;
    const LocalServer server(
        LocalServer::redirectingTo("/next", "/next", [&](QTcpSocket& client, const std::string& text) {
            second = text;
            LocalServer::status(200)(client, text);
        }));
    const LocalServer first([&](QTcpSocket& client, const std::string& text) {
        LocalServer::saying(
            "HTTP/1.1 302 Found\r\nSet-Cookie: who=me\r\nLocation: "
            + server.url("/next").toString().toStdString() + "\r\nContent-Length: 0\r\n\r\n")(client, text);
    });
    EXPECT_EQ(head(first).status, 200);
    EXPECT_EQ(second.find("who=me"), std::string::npos) << second;
}

TEST(FeedRequestTest, FollowsARedirectionOnThisComputer) {
    for (const FeedMethod method : {FeedMethod::head, FeedMethod::get}) {
        const LocalServer server(LocalServer::redirectingTo("/next", "/next", LocalServer::status(404)));
        EXPECT_EQ(ask(server.url("/appcast.xml"), method).status, 404) << "the last answer counts";
        EXPECT_EQ(server.requests().size(), 2U);
        EXPECT_EQ(server.requests().back().substr(0, 4), method == FeedMethod::head ? "HEAD" : "GET ");
    }
}

TEST(FeedRequestTest, DoesNotFollowARedirectionToSomethingLessSafe) {
    for (const char* const target :
         {"http://192.0.2.1/appcast.xml", "file:///etc/passwd", "ftp://127.0.0.1/a"}) {
        const LocalServer server(LocalServer::redirectingTo(target, "/none", LocalServer::silence()));
        EXPECT_EQ(stateOfFeed(head(server).status), FeedState::failed) << target;
        EXPECT_EQ(server.requests().size(), 1U);
    }
}

TEST(FeedRequestTest, ARedirectionWithoutAnAddressIsAnAnswerLikeAnyOther) {
    const LocalServer server(LocalServer::status(301));
    const FeedAnswer answer = head(server);
    EXPECT_EQ(stateOfFeed(answer.status), FeedState::failed);
    EXPECT_EQ(server.requests().size(), 1U);
}

TEST(FeedRequestTest, ACircleOfRedirectionsEnds) {
    const LocalServer server(LocalServer::redirectingTo("/appcast.xml", "/none", LocalServer::silence()));
    EXPECT_EQ(stateOfFeed(head(server).status), FeedState::failed);
    EXPECT_LT(server.requests().size(), 20U);
}

TEST(FeedRequestTest, WhatIsNotHttpIsNoAnswer) {
    for (const char* const bytes : {"garbage\r\n\r\n", "SSH-2.0-OpenSSH_9\r\n", "\x15\x03\x01\x00\x02", ""}) {
        const LocalServer server(LocalServer::saying(bytes));
        EXPECT_EQ(stateOfFeed(head(server).status), FeedState::failed) << bytes;
    }
}

TEST(FeedRequestTest, ABrokenConnectionIsNoAnswer) {
    const LocalServer server([](QTcpSocket& client, const std::string&) {
        const linger atOnce{.l_onoff = 1, .l_linger = 0};
        setsockopt(
            static_cast<int>(client.socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        client.abort();
    });
    EXPECT_EQ(head(server), FeedAnswer());
}

TEST(FeedRequestTest, ABodyThatBreaksOffIsNoAnswer) {
    const LocalServer server(LocalServer::saying("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<rss>"));
    EXPECT_EQ(get(server), FeedAnswer());
}

TEST(FeedRequestTest, NobodyThereIsNoAnswer) {
    QUrl address;
    {
        const LocalServer server(LocalServer::silence());
        address = server.url("/");
    }
    EXPECT_EQ(ask(address, FeedMethod::head), FeedAnswer());
}

class StoppedFeedRequestTest : public testing::Test {
  protected:
    std::stop_source stop;
};

TEST_F(StoppedFeedRequestTest, ASilentServerIsWaitedForUntilTheStop) {
    const LocalServer server([&](QTcpSocket&, const std::string&) { stop.request_stop(); });
    EXPECT_EQ(ask(server.url("/"), FeedMethod::head, stop.get_token()), FeedAnswer());
    EXPECT_EQ(server.requests().size(), 1U);
}

TEST_F(StoppedFeedRequestTest, ABodyThatTricklesInIsWaitedForUntilTheStop) {
    int sent = 0;
    const LocalServer server([&](QTcpSocket& client, const std::string&) {
        client.write("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n");
        auto* const trickle = new QTimer(&client);
        QObject::connect(trickle, &QTimer::timeout, &client, [&] {
            client.write("x");
            if (++sent == 20)
                stop.request_stop();
        });
        trickle->start(1);
    });
    EXPECT_EQ(ask(server.url("/"), FeedMethod::get, stop.get_token()), FeedAnswer());
    EXPECT_GE(sent, 20);
}

TEST(FeedRequestTest, ABodyWithoutEndIsNotTaken) {
    qint64 sent = 0;
    const LocalServer server([&](QTcpSocket& client, const std::string&) {
        client.write("HTTP/1.1 200 OK\r\n\r\n");
        const auto more = [&sent, &client] {
            const QByteArray chunk(1 << 16, 'x');
            if (client.bytesToWrite() < chunk.size())
                sent += client.write(chunk);
        };
        QObject::connect(&client, &QTcpSocket::bytesWritten, &client, more);
        more();
    });
    EXPECT_EQ(get(server), FeedAnswer());
    EXPECT_GT(sent, largestFeed);
    EXPECT_LT(sent, 64 * largestFeed) << "buffers of the system are large, but not that large";
}

TEST(FeedRequestTest, ABodyOfTheLargestSizeIsTaken) {
    const LocalServer server(LocalServer::body(std::string(static_cast<std::size_t>(largestFeed), 'x')));
    EXPECT_EQ(get(server).body.size(), static_cast<std::size_t>(largestFeed));
    const LocalServer larger(LocalServer::body(std::string(static_cast<std::size_t>(largestFeed) + 1, 'x')));
    EXPECT_EQ(get(larger), FeedAnswer());
}

TEST(FeedRequestTest, AnAddressThatIsNoFeedIsNotAsked) {
    EXPECT_EQ(ask(QUrl(QStringLiteral("file:///etc/hostname")), FeedMethod::get), FeedAnswer());
    EXPECT_EQ(ask(QUrl(QStringLiteral("http://example.org/")), FeedMethod::get), FeedAnswer());
    EXPECT_EQ(ask(QUrl(), FeedMethod::get), FeedAnswer());
}

} // namespace
} // namespace quillon
