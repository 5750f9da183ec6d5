#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/linux/tray/docked_icon.h>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace quillon {
namespace {

/// A tray's manager, on a connection of its own.
class FakeManager {
  public:
    FakeManager(const std::string& display, std::uint32_t background)
        : m_xcb(xcb_connect(display.c_str(), nullptr)) {
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_xcb)).data;
        m_window = xcb_generate_id(m_xcb);
        const std::uint32_t values[] = {background, 1, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
        xcb_create_window(
            m_xcb, XCB_COPY_FROM_PARENT, m_window, m_screen->root, 10, 10, 64, 32, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
            XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
        xcb_map_window(m_xcb, m_window);
        const xcb_atom_t selection = atom("_NET_SYSTEM_TRAY_S0");
        xcb_set_selection_owner(m_xcb, m_window, selection, XCB_CURRENT_TIME);
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = m_screen->root;
        message.type = atom("MANAGER");
        message.data.data32[1] = selection;
        message.data.data32[2] = m_window;
        xcb_send_event(
            m_xcb, 0, m_screen->root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
            reinterpret_cast<const char*>(&message));
        xcb_flush(m_xcb);
    }
    ~FakeManager() { xcb_disconnect(m_xcb); }
    FakeManager(const FakeManager&) = delete;
    FakeManager& operator=(const FakeManager&) = delete;

    /// The window that asked for a place since the last time; absent when none did.
    std::optional<xcb_window_t> request() {
        while (xcb_generic_event_t* const event = xcb_poll_for_event(m_xcb)) {
            const X11Reply<xcb_generic_event_t> owned(event);
            const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
            if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE
                && message.type == atom("_NET_SYSTEM_TRAY_OPCODE") && message.data.data32[1] == 0)
                return message.data.data32[2];
        }
        return std::nullopt;
    }

    /// As a manager whose end puts the icons back into the root window does it.
    void takeIn(xcb_window_t icon, std::uint32_t size) {
        xcb_change_save_set(m_xcb, XCB_SET_MODE_INSERT, icon);
        xcb_reparent_window(m_xcb, icon, m_window, 4, 4);
        const std::uint32_t sizes[] = {size, size};
        xcb_configure_window(m_xcb, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, sizes);
        xcb_map_window(m_xcb, icon);
        xcb_flush(m_xcb);
    }

    std::uint32_t pixel(xcb_window_t window, std::int16_t x, std::int16_t y) {
        const X11Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(
            m_xcb, xcb_get_image(m_xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, window, x, y, 1, 1, ~0U), nullptr));
        return image ? *reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get())) & 0xffffff
                     : 1;
    }

  private:
    xcb_atom_t atom(std::string_view name) {
        const X11Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
            m_xcb, xcb_intern_atom(m_xcb, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
        return reply->atom;
    }

    xcb_connection_t* m_xcb;
    xcb_screen_t* m_screen;
    xcb_window_t m_window;
};

constexpr std::uint32_t darkGrey = 0x202020;

/// Its upper half is drawn, in white for a dark tray and in black for a light one.
IconPixels halfIcon(ColourScheme scheme, int size) {
    IconPixels icon{.width = size, .height = size, .argb = {}};
    const std::uint32_t sign = scheme == ColourScheme::dark ? 0xffffffff : 0xff000000;
    for (int i = 0; i < size * size; ++i)
        icon.argb.push_back(i < size * size / 2 ? sign : 0);
    return icon;
}

class DockedIconTest : public X11Fixture {
  protected:
    DockedIcon makeIcon() {
        return DockedIcon(
            x11, {.name = "Quillon",
                  .draw = halfIcon,
                  .windowScheme = [] { return ColourScheme::light; },
                  .clicked = [this](int button) { clicks.push_back(button); }});
    }
    xcb_window_t dock(FakeManager& manager, const DockedIcon& icon) {
        std::optional<xcb_window_t> window;
        EXPECT_TRUE(waitFor([&] { return (window = manager.request()).has_value(); }));
        if (window)
            manager.takeIn(*window, 20);
        EXPECT_TRUE(waitFor([&] { return icon.isShown(); }));
        return window.value_or(0);
    }

    std::vector<int> clicks;
};

TEST_F(DockedIconTest, AsksTheTrayThatIsThereForAPlace) {
    FakeManager manager(x11Display(), darkGrey);
    settle();
    const DockedIcon icon = makeIcon();
    EXPECT_FALSE(icon.isShown());
    const xcb_window_t window = dock(manager, icon);
    EXPECT_EQ(client->numbers(window, "_XEMBED_INFO"), (std::vector<std::uint32_t>{0, 1}));
    EXPECT_TRUE(waitFor([&] { return manager.pixel(window, 10, 2) == 0xffffff; })) << "light on a dark tray";
    EXPECT_EQ(manager.pixel(window, 10, 18), darkGrey) << "the tray's colour around it";
}

TEST_F(DockedIconTest, ComesToATrayThatComesLaterAndAgain) {
    DockedIcon icon = makeIcon();
    int told = 0;
    const Subscription listener = icon.onShownChanged([&] { ++told; });
    for (int round = 0; round < 2; ++round) {
        xcb_window_t window = 0;
        {
            FakeManager manager(x11Display(), 0xf0f0f0);
            window = dock(manager, icon);
            EXPECT_TRUE(waitFor([&] { return manager.pixel(window, 10, 2) == 0; })) << "dark on a light tray";
        }
        EXPECT_TRUE(waitFor([&] { return !icon.isShown(); }));
        settle();
        EXPECT_FALSE(client->isMapped(window)) << "not left behind in the middle of the screen";
    }
    EXPECT_EQ(told, 4);
}

TEST_F(DockedIconTest, TellsClicksOnceTheButtonIsLetGo) {
    FakeManager manager(x11Display(), darkGrey);
    const DockedIcon icon = makeIcon();
    dock(manager, icon);
    client->movePointer(24, 24);
    client->buttonDown(1);
    settle();
    EXPECT_TRUE(clicks.empty());
    client->buttonUp(1);
    client->click(2);
    EXPECT_TRUE(waitFor([&] { return clicks == std::vector<int>{1, 2}; }));
}

TEST_F(DockedIconTest, LeavesTheTrayWithItsEnd) {
    FakeManager manager(x11Display(), darkGrey);
    xcb_window_t window = 0;
    {
        const DockedIcon icon = makeIcon();
        window = dock(manager, icon);
    }
    settle();
    EXPECT_FALSE(client->isMapped(window));
}

} // namespace
} // namespace quillon
