#include "docked_icon.h"

#include "icon_blending.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <optional>
#include <string_view>
#include <utility>

#include <unistd.h>

namespace quillon {

namespace {

constexpr std::uint16_t firstSize = 22; ///< until the tray gives another
/// Larger places are not filled: the tray's window may be of any size.
constexpr int largestSize = 128;
constexpr std::uint8_t trueColourDepth = 24;
constexpr std::uint8_t alphaDepth = 32;

/// The bits per pixel of a visual of this screen; 0 for one that it does not have.
std::uint8_t depthOf(const xcb_screen_t& screen, xcb_visualid_t visual) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0; xcb_depth_next(&depth)) {
        const xcb_visualtype_t* const visuals = xcb_depth_visuals(depth.data);
        for (int i = 0; i < xcb_depth_visuals_length(depth.data); ++i)
            if (visuals[i].visual_id == visual)
                return depth.data->depth;
    }
    return 0;
}

const xcb_screen_t& screenOf(const X11Connection& x11) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(x11.xcb()));
    for (int number = x11.screenNumber(); number > 0 && screens.rem > 1; --number)
        xcb_screen_next(&screens);
    return *screens.data;
}

/// Whether images of this depth are words of 32 bits in this machine's own order.
bool isPlain(const X11Connection& x11, std::uint8_t depth) {
    const auto order =
        std::endian::native == std::endian::little ? XCB_IMAGE_ORDER_LSB_FIRST : XCB_IMAGE_ORDER_MSB_FIRST;
    return xcb_get_setup(x11.xcb())->image_byte_order == order
           && (depth == trueColourDepth || depth == alphaDepth);
}

} // namespace

DockedIcon::DockedIcon(std::shared_ptr<X11Connection> x11, DockedIconContent content)
    : m_x11(std::move(x11)), m_content(std::move(content)), m_manager(m_x11) {
    m_managerChange = m_manager.onChanged([this] { managerChanged(); });
    m_colourChange = m_manager.onColoursChanged([this] { paint(); });
    m_events = m_x11->onEvent([this](const xcb_generic_event_t& event) { handle(event); });
    m_drained = m_x11->onDrained([this] { drained(); });
    m_caughtUp = m_x11->onCaughtUp([this] { paint(); });
    managerChanged();
}

DockedIcon::~DockedIcon() {
    dropWindow();
    m_x11->flush();
}

void DockedIcon::managerChanged() {
    dropWindow();
    if (m_manager.window() != XCB_NONE) {
        makeWindow();
        describeWindow();
        askForPlace();
    }
    m_x11->flush();
    tellShown();
}

void DockedIcon::makeWindow() {
    auto* const xcb = m_x11->xcb();
    const xcb_screen_t& screen = screenOf(*m_x11);
    const std::uint8_t wanted = depthOf(screen, m_manager.visual());
    const xcb_visualid_t visual = isPlain(*m_x11, wanted) ? m_manager.visual() : screen.root_visual;
    m_depth = depthOf(screen, visual);
    m_colours = xcb_generate_id(xcb);
    xcb_create_colormap(xcb, XCB_COLORMAP_ALLOC_NONE, m_colours, m_x11->root(), visual);
    m_window = xcb_generate_id(xcb);
    constexpr std::uint32_t events = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY
                                     | XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE;
    const std::array<std::uint32_t, 4> values{0, 0, events, m_colours};
    xcb_create_window(
        xcb, m_depth, m_window, m_x11->root(), 0, 0, firstSize, firstSize, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
        visual, XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP, values.data());
    m_pen = xcb_generate_id(xcb);
    xcb_create_gc(xcb, m_pen, m_window, 0, nullptr);
    m_width = m_height = firstSize;
}

void DockedIcon::describeWindow() const {
    auto* const xcb = m_x11->xcb();
    constexpr std::uint8_t bits = 32;
    constexpr std::array<std::uint32_t, 2> embedding{0, 1}; // version; wants to be seen
    const xcb_atom_t info = m_x11->atom(X11Name::xembedInfo);
    xcb_change_property(
        xcb, XCB_PROP_MODE_REPLACE, m_window, info, info, bits, embedding.size(), embedding.data());
    const auto setText = [&](xcb_atom_t property, xcb_atom_t type, std::string_view text) {
        xcb_change_property(
            xcb, XCB_PROP_MODE_REPLACE, m_window, property, type, 8, static_cast<std::uint32_t>(text.size()),
            text.data());
    };
    setText(m_x11->atom(X11Name::netWmName), m_x11->atom(X11Name::utf8String), m_content.name);
    using namespace std::string_view_literals;
    setText(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, "quillon\0Quillon\0"sv);
    const auto pid = static_cast<std::uint32_t>(::getpid());
    xcb_change_property(
        xcb, XCB_PROP_MODE_REPLACE, m_window, m_x11->atom(X11Name::netWmPid), XCB_ATOM_CARDINAL, bits, 1,
        &pid);
}

void DockedIcon::askForPlace() const {
    constexpr std::uint32_t requestDock = 0;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_manager.window();
    message.type = m_x11->atom(X11Name::netSystemTrayOpcode);
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = requestDock;
    message.data.data32[2] = m_window;
    xcb_send_event(
        m_x11->xcb(), 0, m_manager.window(), XCB_EVENT_MASK_NO_EVENT,
        reinterpret_cast<const char*>(&message));
}

void DockedIcon::handle(const xcb_generic_event_t& event) {
    if (m_window != XCB_NONE && handleOwn(event))
        m_hasToPaint = true;
}

/// Whether the window has to be painted.
bool DockedIcon::handleOwn(const xcb_generic_event_t& event) {
    switch (event.response_type) {
    case XCB_EXPOSE: return reinterpret_cast<const xcb_expose_event_t&>(event).window == m_window;
    case XCB_REPARENT_NOTIFY: {
        const auto& notice = reinterpret_cast<const xcb_reparent_notify_event_t&>(event);
        if (notice.window == m_window)
            reparented(notice.parent);
        return notice.window == m_window;
    }
    case XCB_CONFIGURE_NOTIFY: {
        const auto& notice = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        if (notice.window != m_window)
            return false;
        const bool isOther = notice.width != m_width || notice.height != m_height;
        m_width = notice.width;
        m_height = notice.height;
        return isOther;
    }
    case XCB_MAP_NOTIFY:
        m_isMapped |= reinterpret_cast<const xcb_map_notify_event_t&>(event).window == m_window;
        return false;
    case XCB_UNMAP_NOTIFY:
        m_isMapped &= reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window != m_window;
        return false;
    case XCB_DESTROY_NOTIFY:
        if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == m_window)
            dropWindow();
        return false;
    // Not when it goes down: the pointer then belongs to this window, and a menu could not take it.
    case XCB_BUTTON_RELEASE: {
        const auto& release = reinterpret_cast<const xcb_button_release_event_t&>(event);
        if (release.event == m_window)
            m_clicks.push_back(release.detail);
        return false;
    }
    default: return false;
    }
}

void DockedIcon::reparented(xcb_window_t parent) {
    m_isTakenIn = parent != m_x11->root();
    if (!m_isTakenIn) // its tray has gone: an icon in the middle of the screen is of no use
        xcb_unmap_window(m_x11->xcb(), m_window);
}

void DockedIcon::drained() {
    if (std::exchange(m_hasToPaint, false))
        paint();
    m_x11->flush();
    tellShown();
    for (const int button : std::exchange(m_clicks, {}))
        m_content.clicked(button);
}

void DockedIcon::tellShown() {
    if (std::exchange(m_wasShown, isShown()) != isShown())
        m_shownChanged.emit();
}

void DockedIcon::schemeChanged() {
    paint();
}

void DockedIcon::paint() {
    const int size = std::min({m_width, m_height, largestSize});
    if (!m_isTakenIn || size <= 0 || m_x11->isLate() || !isPlain(*m_x11, m_depth))
        return;
    const int left = (m_width - size) / 2;
    const int top = (m_height - size) / 2;
    const auto below = background(left, top, size);
    const auto told = schemeOfTrayColours(m_manager.colours());
    const auto seen = told ? told : schemeOfBackground(below);
    const ColourScheme scheme = seen ? *seen : m_content.windowScheme();
    const auto pixels = blended(m_content.draw(scheme, size), below);
    constexpr std::uint8_t leftPad = 0;
    xcb_put_image(
        m_x11->xcb(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, m_pen, static_cast<std::uint16_t>(size),
        static_cast<std::uint16_t>(size), static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
        leftPad, m_depth, static_cast<std::uint32_t>(pixels.size() * sizeof(std::uint32_t)),
        reinterpret_cast<const std::uint8_t*>(pixels.data()));
    m_x11->flush();
}

/// What the tray shows where the icon will be; clear where it cannot be seen.
std::vector<std::uint32_t> DockedIcon::background(int left, int top, int size) const {
    auto* const xcb = m_x11->xcb();
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
    // Answered by an error, which does no harm, where the tray's window is of another depth.
    constexpr std::uint32_t parentRelative = XCB_BACK_PIXMAP_PARENT_RELATIVE;
    xcb_change_window_attributes(xcb, m_window, XCB_CW_BACK_PIXMAP, &parentRelative);
    xcb_clear_area(xcb, 0, m_window, 0, 0, 0, 0);
    constexpr std::uint32_t allPlanes = ~0U;
    const auto image = m_x11->reply<xcb_get_image_reply_t>(xcb_get_image(
        xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, m_window, static_cast<std::int16_t>(left),
        static_cast<std::int16_t>(top), static_cast<std::uint16_t>(size), static_cast<std::uint16_t>(size),
        allPlanes));
    const std::size_t bytes = pixels.size() * sizeof(std::uint32_t);
    if (!image || static_cast<std::size_t>(xcb_get_image_data_length(image.get())) < bytes)
        return pixels;
    std::memcpy(pixels.data(), xcb_get_image_data(image.get()), bytes);
    if (m_depth == trueColourDepth)
        for (std::uint32_t& pixel : pixels)
            pixel |= 0xff000000;
    return pixels;
}

void DockedIcon::dropWindow() {
    if (m_window == XCB_NONE)
        return;
    xcb_free_gc(m_x11->xcb(), m_pen);
    xcb_destroy_window(m_x11->xcb(), m_window);
    xcb_free_colormap(m_x11->xcb(), m_colours);
    m_window = XCB_NONE;
    m_isTakenIn = m_isMapped = m_hasToPaint = false;
    m_clicks.clear();
}

} // namespace quillon
