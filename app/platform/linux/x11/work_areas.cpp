#include "work_areas.h"

#include "x11_property.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr std::uint32_t bytesPerNumber = 4;
constexpr std::uint32_t windowLimit = 256;
constexpr std::size_t dockLimit = 16;
constexpr std::uint32_t partialNumbers = 12;
constexpr std::uint32_t plainNumbers = 4;
constexpr std::uint32_t boxNumbers = 4;
constexpr std::uint32_t boxLimit = 16;

/// What was asked about one window.
struct Question {
    Question(X11Connection& x11, xcb_window_t asked)
        : window(asked),
          partial(X11Property::ask(
              x11, asked, x11.atom(X11Name::netWmStrutPartial), bytesPerNumber * partialNumbers)),
          plain(X11Property::ask(x11, asked, x11.atom(X11Name::netWmStrut), bytesPerNumber * plainNumbers)) {}

    std::vector<DockStrut> receive(X11Connection& x11) {
        partial.receive(x11);
        plain.receive(x11);
        const auto numbers = partial.numbers();
        return dockStruts(numbers.empty() ? plain.numbers() : numbers);
    }

    xcb_window_t window;
    X11Property partial;
    X11Property plain;
};

/// The boxes of a list of x, y, width and height. Coordinates may be negative; empty boxes are left out.
std::vector<PixelBox> pixelBoxes(const std::vector<std::uint32_t>& numbers) {
    constexpr int farthest = 65535;
    const auto number = [&](std::size_t at) {
        return std::clamp(static_cast<std::int32_t>(numbers[at]), -farthest, farthest);
    };
    std::vector<PixelBox> result;
    for (std::size_t at = 0; at + boxNumbers <= numbers.size(); at += boxNumbers) {
        const PixelBox box{number(at), number(at + 1), number(at + 2), number(at + 3)};
        if (box.width > 0 && box.height > 0)
            result.push_back(box);
    }
    return result;
}

bool isInside(const PixelBox& inner, const PixelBox& outer) {
    return inner.x >= outer.x && inner.y >= outer.y && inner.x + inner.width <= outer.x + outer.width
           && inner.y + inner.height <= outer.y + outer.height;
}

} // namespace

WorkAreas::WorkAreas(std::shared_ptr<X11Connection> x11) : m_x11(std::move(x11)) {
    m_rootEvents =
        m_x11->selectEvents(m_x11->root(), XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    m_events = m_x11->onEvent([this](const xcb_generic_event_t& event) { handle(event); });
    m_drained = m_x11->onDrained([this] { drained(); });
    m_caughtUp = m_x11->onCaughtUp([this] {
        if (m_isStale)
            m_changed.emit();
    });
}

void WorkAreas::handle(const xcb_generic_event_t& event) {
    const bool concerns =
        event.response_type == XCB_PROPERTY_NOTIFY
            ? isOfInterest(reinterpret_cast<const xcb_property_notify_event_t&>(event))
            : event.response_type == XCB_CONFIGURE_NOTIFY
                  && reinterpret_cast<const xcb_configure_notify_event_t&>(event).window == m_x11->root();
    // Who was told and has not asked since need not be told again.
    if (concerns && !std::exchange(m_isStale, true))
        m_hasToTell = true;
}

bool WorkAreas::isOfInterest(const xcb_property_notify_event_t& event) const {
    const auto is = [&](X11Name name) { return event.atom == m_x11->atom(name); };
    if (event.window == m_x11->root())
        return is(X11Name::netClientList) || is(X11Name::netWorkArea) || is(X11Name::gtkWorkAreas);
    return is(X11Name::netWmStrutPartial) || is(X11Name::netWmStrut);
}

void WorkAreas::drained() {
    if (std::exchange(m_hasToTell, false))
        m_changed.emit();
}

std::optional<PixelBox> WorkAreas::freeOf(const PixelBox& monitor) {
    if (m_isStale && !m_x11->isLate())
        ask();
    const auto managers =
        std::ranges::find_if(m_managersBoxes, [&](const PixelBox& box) { return isInside(box, monitor); });
    if (managers != m_managersBoxes.end())
        return *managers;
    return m_isListed ? std::optional(freeBox(monitor, m_desktop, m_struts)) : std::nullopt;
}

void WorkAreas::ask() {
    auto& x11 = *m_x11;
    const auto geometryCookie = xcb_get_geometry(x11.xcb(), x11.root());
    auto list =
        X11Property::ask(x11, x11.root(), x11.atom(X11Name::netClientList), bytesPerNumber * windowLimit);
    auto boxes = X11Property::ask(
        x11, x11.root(), x11.atom(X11Name::gtkWorkAreas), bytesPerNumber * boxNumbers * boxLimit);
    const auto geometry = x11.reply<xcb_get_geometry_reply_t>(geometryCookie);
    list.receive(x11);
    boxes.receive(x11);
    if (!geometry || x11.isLate())
        return;
    m_desktop = {0, 0, geometry->width, geometry->height};
    m_isListed = list.type() == XCB_ATOM_WINDOW;
    m_managersBoxes = pixelBoxes(boxes.numbers());
    askDocks(list.numbers());
}

void WorkAreas::askDocks(const std::vector<std::uint32_t>& windows) {
    std::vector<Question> questions;
    for (const xcb_window_t window : windows)
        questions.emplace_back(*m_x11, window);
    std::vector<DockStrut> struts;
    std::vector<xcb_window_t> docks;
    for (Question& question : questions) {
        const auto own = question.receive(*m_x11);
        if (own.empty() || docks.size() == dockLimit)
            continue;
        struts.insert(struts.end(), own.begin(), own.end());
        docks.push_back(question.window);
    }
    if (m_x11->isLate())
        return;
    m_struts = std::move(struts);
    m_docks.clear();
    for (const xcb_window_t dock : docks)
        m_docks.push_back(m_x11->selectEvents(dock, XCB_EVENT_MASK_PROPERTY_CHANGE));
    m_isStale = false;
}

} // namespace quillon
