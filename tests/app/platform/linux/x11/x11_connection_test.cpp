#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/linux/x11/x11_keyboard.h>

#include <gtest/gtest.h>

#include <cmath>
#include <poll.h>

namespace quillon {
namespace {

struct X11ConnectionTest : X11Fixture {
    /// Counts in `told` what the connection tells of changed properties.
    Subscription countPropertyChanges() {
        return x11->onEvent([this](const xcb_generic_event_t& event) {
            told += event.response_type == XCB_PROPERTY_NOTIFY ? 1 : 0;
        });
    }

    int told = 0;
};

TEST_F(X11ConnectionTest, KnowsTheServersExtensions) {
    EXPECT_TRUE(x11->isAlive());
    EXPECT_TRUE(x11->extensions().xinputOpcode);
    EXPECT_TRUE(x11->extensions().xkbFirstEvent);
    EXPECT_TRUE(x11->extensions().xfixesFirstEvent);
    EXPECT_TRUE(x11->extensions().shape);
    EXPECT_TRUE(x11->extensions().clientPids);
    EXPECT_NE(x11->atom(X11Name::netActiveWindow), x11->atom(X11Name::netWmName));
}

TEST_F(X11ConnectionTest, AnErrorIsAnAbsentReply) {
    constexpr xcb_window_t noWindow = 0x1fffffff;
    EXPECT_EQ(x11->reply<xcb_query_tree_reply_t>(xcb_query_tree(x11->xcb(), noWindow)), nullptr);
    EXPECT_NE(x11->reply<xcb_query_tree_reply_t>(xcb_query_tree(x11->xcb(), x11->root())), nullptr);
}

TEST_F(X11ConnectionTest, EventsThatAreReadBesideAReplyAreNotForgotten) {
    const auto selection = x11->selectEvents(x11->root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    const auto listener = countPropertyChanges();
    settle();
    client->setNumbers(client->root(), "SOME_PROPERTY", "CARDINAL", {1});
    x11->reply<xcb_query_tree_reply_t>(xcb_query_tree(x11->xcb(), x11->root()));
    EXPECT_TRUE(waitFor([&] { return told == 1; }));
}

TEST_F(X11ConnectionTest, EventsThatAreReadWhileRequestsAreSentAreNotForgotten) {
    const auto selection = x11->selectEvents(x11->root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    const auto listener = countPropertyChanges();
    settle();
    client->setNumbers(client->root(), "SOME_PROPERTY", "CARDINAL", {3});
    pollfd socket{xcb_get_file_descriptor(x11->xcb()), POLLIN, 0};
    ASSERT_EQ(::poll(&socket, 1, 10'000), 1);
    xcb_no_operation(x11->xcb());
    x11->flush();
    EXPECT_TRUE(waitFor([&] { return told == 1; }));
}

TEST_F(X11ConnectionTest, SelectionsOfOneWindowDoNotDisturbEachOther) {
    const auto listener = countPropertyChanges();
    const auto first = x11->selectEvents(x11->root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    auto second = x11->selectEvents(x11->root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    second.reset();
    settle();
    client->setNumbers(client->root(), "SOME_PROPERTY", "CARDINAL", {2});
    EXPECT_TRUE(waitFor([&] { return told == 1; }));
}

struct X11LateConnectionTest : X11Fixture {
    X11LateConnectionTest() { patience = X11Connection::mainThreadPatience; }
};

TEST_F(X11LateConnectionTest, CatchesUpWhateverIsAskedBeforeItsAnswersAreRead) {
    client->grabServer();
    while (!x11->isLate())
        x11->reply<xcb_query_tree_reply_t>(xcb_query_tree(x11->xcb(), x11->root()));
    client->ungrabServer();
    pollfd socket{xcb_get_file_descriptor(x11->xcb()), POLLIN, 0};
    ASSERT_EQ(::poll(&socket, 1, 10'000), 1);
    int caughtUp = 0;
    const auto listener = x11->onCaughtUp([&] { ++caughtUp; });
    EXPECT_EQ(x11->reply<xcb_query_tree_reply_t>(xcb_query_tree(x11->xcb(), x11->root())), nullptr);
    EXPECT_TRUE(waitFor([&] { return caughtUp == 1; }));
    EXPECT_FALSE(x11->isLate());
    EXPECT_TRUE(waitFor([&] {
        return x11->reply<xcb_query_tree_reply_t>(xcb_query_tree(x11->xcb(), x11->root())) != nullptr;
    }));
}

TEST(X11ConnectionWithoutServerTest, IsAbsent) {
    EXPECT_EQ(X11Connection::open("/nonexistent/socket:0"), nullptr);
    EXPECT_EQ(X11Connection::open("no display at all"), nullptr);
}

TEST(X11ConnectionWithoutServerTest, AServerThatGoesAwayLeavesEverythingAbsent) {
    XServer server;
    ASSERT_FALSE(server.display().empty());
    const auto x11 = X11Connection::open(server.display(), std::chrono::seconds(10));
    ASSERT_NE(x11, nullptr);
    X11Keyboard keyboard(x11, std::make_shared<RawInput>(x11));
    const auto ages = keyboard.observeInput();
    int lost = 0;
    const auto listener = x11->onLost([&] { ++lost; });

    server.kill();
    EXPECT_TRUE(waitFor([&] { return lost == 1; }));
    EXPECT_FALSE(x11->isAlive());
    EXPECT_EQ(keyboard.modifiers(), Modifiers());
    EXPECT_EQ(x11->reply<xcb_query_tree_reply_t>(xcb_query_tree(x11->xcb(), x11->root())), nullptr);
    EXPECT_TRUE(std::isinf(ages->sinceLast(InputKind::keyDown).count()));
    QCoreApplication::processEvents();
    EXPECT_EQ(lost, 1);
}

TEST(X11ConnectionWithoutServerTest, ALossThatIsNoticedByAskingIsToldToo) {
    XServer server;
    const auto x11 = X11Connection::open(server.display(), std::chrono::seconds(10));
    ASSERT_NE(x11, nullptr);
    int lost = 0;
    const auto listener = x11->onLost([&] { ++lost; });
    server.kill();
    EXPECT_EQ(x11->reply<xcb_query_tree_reply_t>(xcb_query_tree(x11->xcb(), x11->root())), nullptr);
    EXPECT_TRUE(waitFor([&] { return lost == 1; }));
}

TEST(X11ConnectionWithoutServerTest, AnExtensionThatTheServerLacksIsAbsent) {
    XServer server({QStringLiteral("-extension"), QStringLiteral("X-Resource")});
    const auto x11 = X11Connection::open(server.display(), std::chrono::seconds(10));
    ASSERT_NE(x11, nullptr);
    EXPECT_FALSE(x11->extensions().clientPids);
    EXPECT_TRUE(x11->extensions().xkbFirstEvent);
}

} // namespace
} // namespace quillon
