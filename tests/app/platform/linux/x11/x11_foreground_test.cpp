#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/linux/x11/x11_foreground.h>

#include <gmock/gmock.h>

#include <cstring>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Message {
    xcb_window_t window;
    std::string type;
    std::vector<std::uint32_t> numbers;
    std::string text;
};

struct X11ForegroundTest : X11Fixture {
    void SetUp() override {
        X11Fixture::SetUp();
        manager.reset(xcb_connect(x11Display().c_str(), nullptr));
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(manager.get(), x11->root(), XCB_CW_EVENT_MASK, &mask);
        xcb_flush(manager.get());
        foreground = std::make_unique<X11Foreground>(x11);
        window = client->makeWindow({});
    }

    /// What a window manager was told so far, of this type.
    std::vector<Message> messages(const std::string& type) {
        free(xcb_get_input_focus_reply(manager.get(), xcb_get_input_focus(manager.get()), nullptr));
        while (xcb_generic_event_t* event = xcb_poll_for_event(manager.get())) {
            if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE)
                note(reinterpret_cast<const xcb_client_message_event_t&>(*event));
            free(event);
        }
        std::vector<Message> found;
        for (const Message& message : all)
            if (message.type == type)
                found.push_back(message);
        return found;
    }
    void note(const xcb_client_message_event_t& event) {
        Message message{.window = event.window, .type = {}, .numbers = {}, .text = {}};
        for (const char* name :
             {"_NET_ACTIVE_WINDOW", "_NET_WM_DESKTOP", "_NET_STARTUP_INFO", "_NET_STARTUP_INFO_BEGIN"})
            if (client->atom(name) == event.type)
                message.type = name;
        if (event.format == 32)
            message.numbers.assign(event.data.data32, event.data.data32 + 5);
        else
            message.text.assign(reinterpret_cast<const char*>(event.data.data8), 20);
        all.push_back(std::move(message));
    }
    bool isAskedFor() {
        return waitFor([this] {
            settle();
            return !messages("_NET_ACTIVE_WINDOW").empty();
        });
    }

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    std::unique_ptr<xcb_connection_t, Disconnect> manager;
    std::unique_ptr<X11Foreground> foreground;
    xcb_window_t window = XCB_NONE;
    std::vector<Message> all;
};

TEST_F(X11ForegroundTest, AsksTheWindowManagerAsTheUserWouldAndAsOfNow) {
    client->setText(window, "WM_NAME", "STRING", "of earlier");
    foreground->bring(window);
    ASSERT_TRUE(isAskedFor());
    const Message message = messages("_NET_ACTIVE_WINDOW").front();
    EXPECT_EQ(message.window, window);
    EXPECT_EQ(message.numbers[0], 2u) << "for the user";
    EXPECT_GT(message.numbers[1], 0u) << "the time";
    EXPECT_EQ(message.numbers[2], 0u);
    EXPECT_THAT(client->numbers(window, "_NET_WM_USER_TIME"), ElementsAre(message.numbers[1]));
    EXPECT_THAT(messages("_NET_STARTUP_INFO_BEGIN"), IsEmpty());
}

TEST_F(X11ForegroundTest, LaterRequestsAreOfALaterTime) {
    foreground->bring(window);
    ASSERT_TRUE(isAskedFor());
    const auto first = messages("_NET_ACTIVE_WINDOW").front().numbers[1];
    all.clear();
    ASSERT_TRUE(waitFor([&] {
        foreground->bring(window);
        settle();
        const auto told = messages("_NET_ACTIVE_WINDOW");
        return !told.empty() && told.back().numbers[1] > first;
    }));
}

TEST_F(X11ForegroundTest, TheWindowThatWasAskedForLastIsBrought) {
    const xcb_window_t other = client->makeWindow({});
    foreground->bring(window);
    foreground->bring(other);
    ASSERT_TRUE(isAskedFor());
    for (const Message& message : messages("_NET_ACTIVE_WINDOW"))
        EXPECT_EQ(message.window, other);
}

TEST_F(X11ForegroundTest, AWindowOfAnotherWorkspaceComesToTheShownOne) {
    client->setNumbers(x11->root(), "_NET_CURRENT_DESKTOP", "CARDINAL", {3});
    client->setNumbers(window, "_NET_WM_DESKTOP", "CARDINAL", {1});
    foreground->bring(window);
    ASSERT_TRUE(isAskedFor());
    ASSERT_EQ(messages("_NET_WM_DESKTOP").size(), 1u);
    EXPECT_EQ(messages("_NET_WM_DESKTOP").front().numbers[0], 3u);
    all.clear();
    for (const std::uint32_t stays : {3u, 0xFFFFFFFFu}) {
        client->setNumbers(window, "_NET_WM_DESKTOP", "CARDINAL", {stays});
        foreground->bring(window);
        ASSERT_TRUE(isAskedFor());
    }
    EXPECT_THAT(messages("_NET_WM_DESKTOP"), IsEmpty());
}

TEST_F(X11ForegroundTest, ALauncherThatWaitsIsToldThatTheStartIsOver) {
    foreground->expect("geany\"1_TIME4711");
    foreground->bring(window);
    ASSERT_TRUE(isAskedFor());
    std::string text;
    for (const char* type : {"_NET_STARTUP_INFO_BEGIN", "_NET_STARTUP_INFO"})
        for (const Message& piece : messages(type))
            text += piece.text;
    EXPECT_STREQ(text.c_str(), "remove: ID=\"geany\\\"1_TIME4711\"");
    all.clear();
    foreground->bring(window);
    ASSERT_TRUE(isAskedFor());
    EXPECT_THAT(messages("_NET_STARTUP_INFO_BEGIN"), IsEmpty()) << "once";
}

} // namespace
} // namespace quillon
