#include "x11_panel_windows.h"

#include "toolkit_connection.h"
#include "x11_property.h"
#include "x11_queries.h"

#include <xcb/shape.h>
#include <xcb/xfixes.h>

#include <string>
#include <utility>
#include <vector>

namespace quillon {

namespace {

constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;
constexpr xcb_window_t pointerRoot = XCB_INPUT_FOCUS_POINTER_ROOT;
/// How deep one of our own windows may lie below the root window, frames included.
constexpr int deepestNesting = 8;

xcb_window_t windowOf(std::uintptr_t number) {
    return static_cast<xcb_window_t>(number);
}

std::vector<xcb_rectangle_t> rectangles(const std::vector<PixelBox>& boxes) {
    std::vector<xcb_rectangle_t> result;
    for (const PixelBox& box : boxes)
        result.push_back(
            {static_cast<std::int16_t>(box.x), static_cast<std::int16_t>(box.y),
             static_cast<std::uint16_t>(box.width), static_cast<std::uint16_t>(box.height)});
    return result;
}

} // namespace

X11PanelWindows::X11PanelWindows(
    std::shared_ptr<X11Connection> x11, std::shared_ptr<RawInput> input, xcb_connection_t* maker)
    : m_x11(std::move(x11)), m_input(std::move(input)), m_maker(maker), m_workAreas(m_x11) {
    m_events = m_x11->onEvent([this](const xcb_generic_event_t& event) { handle(event); });
    m_drained = m_x11->onDrained([this] { drained(); });
    m_lost = m_x11->onLost([this] { setComposited(false); });
    followCompositor();
}

X11PanelWindows::~X11PanelWindows() = default;

void X11PanelWindows::followCompositor() {
    auto* xcb = m_x11->xcb();
    const std::string name = "_NET_WM_CM_S" + std::to_string(m_x11->screenNumber());
    const X11Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        xcb, xcb_intern_atom(xcb, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
    if (!atom)
        return;
    m_compositorSelection = atom->atom;
    if (m_x11->extensions().xfixesFirstEvent)
        xcb_xfixes_select_selection_input(
            xcb, m_x11->root(), m_compositorSelection,
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    const X11Reply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(xcb, xcb_get_selection_owner(xcb, m_compositorSelection), nullptr));
    m_composited = owner && owner->owner != XCB_NONE;
}

void X11PanelWindows::handle(const xcb_generic_event_t& event) {
    const auto xfixes = m_x11->extensions().xfixesFirstEvent;
    if (xfixes && event.response_type == *xfixes + XCB_XFIXES_SELECTION_NOTIFY) {
        const auto& selection = reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event);
        if (selection.selection == m_compositorSelection)
            setComposited(selection.owner != XCB_NONE);
    } else if (event.response_type == XCB_MAP_NOTIFY) {
        const xcb_window_t window = reinterpret_cast<const xcb_map_notify_event_t&>(event).window;
        const auto taking = m_takings.find(window);
        if (taking != m_takings.end() && taking->second.isWanted)
            focus(window);
    } else if (event.response_type == XCB_FOCUS_IN || event.response_type == XCB_FOCUS_OUT) {
        focusChanged(reinterpret_cast<const xcb_focus_in_event_t&>(event));
    }
}

void X11PanelWindows::focusChanged(const xcb_focus_in_event_t& event) {
    const auto taking = m_takings.find(event.event);
    const bool staysInside =
        event.detail == XCB_NOTIFY_DETAIL_INFERIOR || event.detail == XCB_NOTIFY_DETAIL_POINTER;
    const bool isOfAGrab = event.mode == XCB_NOTIFY_MODE_GRAB || event.mode == XCB_NOTIFY_MODE_UNGRAB;
    if (taking == m_takings.end() || staysInside || isOfAGrab)
        return;
    taking->second.isHere = event.response_type == XCB_FOCUS_IN;
    if (!taking->second.isHere)
        return;
    taking->second.isWanted = false;
    // The answer came before this event.
    learnWhoHadIt(taking->first, taking->second);
}

void X11PanelWindows::setComposited(bool composited) {
    if (std::exchange(m_composited, composited) != composited)
        m_compositedChanged.emit();
}

Subscription X11PanelWindows::onCompositedChanged(std::function<void()> callback) {
    return m_compositedChanged.subscribe(std::move(callback));
}

void X11PanelWindows::prepare(std::uintptr_t number) {
    const xcb_window_t window = windowOf(number);
    const auto& x11 = *m_x11;
    m_ourClients.insert(x11.clientBase(window));
    xcb_connection_t* toolkit = maker();
    const auto set = [&](X11Name property, xcb_atom_t type, const std::vector<std::uint32_t>& values) {
        xcb_change_property(
            toolkit, XCB_PROP_MODE_REPLACE, window, x11.atom(property), type, 32,
            static_cast<std::uint32_t>(values.size()), values.data());
    };
    set(X11Name::netWmWindowType, XCB_ATOM_ATOM, {x11.atom(X11Name::netWmWindowTypeNotification)});
    set(X11Name::netWmState, XCB_ATOM_ATOM,
        {x11.atom(X11Name::netWmStateAbove), x11.atom(X11Name::netWmStateSticky),
         x11.atom(X11Name::netWmStateSkipTaskbar), x11.atom(X11Name::netWmStateSkipPager)});
    set(X11Name::netWmDesktop, XCB_ATOM_CARDINAL, {everyDesktop});
    // Not to be focused when it appears.
    set(X11Name::netWmUserTime, XCB_ATOM_CARDINAL, {0});
    xcb_flush(toolkit);
}

void X11PanelWindows::setShape(std::uintptr_t number, const WindowShape& shape) {
    if (!m_x11->extensions().shape)
        return;
    const xcb_window_t window = windowOf(number);
    xcb_connection_t* toolkit = maker();
    const auto set = [&](xcb_shape_kind_t kind, const std::vector<PixelBox>& boxes) {
        const auto area = rectangles(boxes);
        xcb_shape_rectangles(
            toolkit, XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, window, 0, 0,
            static_cast<std::uint32_t>(area.size()), area.data());
    };
    if (shape.shown)
        set(XCB_SHAPE_SK_BOUNDING, *shape.shown);
    else
        xcb_shape_mask(toolkit, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window, 0, 0, XCB_PIXMAP_NONE);
    set(XCB_SHAPE_SK_INPUT, shape.touchable);
    xcb_flush(toolkit);
}

/// A window that goes while the toolkit's client has the pointer leaves it in the window below by the end of
/// a grab, and not by a move, which window managers tell apart. Where another client has the pointer (a menu
/// is open) nobody is told of moves anyway.
void X11PanelWindows::takeAway(std::uintptr_t number) {
    constexpr std::uint8_t toOwner = 0;
    xcb_connection_t* toolkit = maker();
    const auto grab = xcb_grab_pointer(
        toolkit, toOwner, m_x11->root(), XCB_EVENT_MASK_NO_EVENT, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
        XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
    xcb_discard_reply(toolkit, grab.sequence);
    xcb_unmap_window(toolkit, windowOf(number));
    xcb_ungrab_pointer(toolkit, XCB_CURRENT_TIME);
    xcb_flush(toolkit);
}

/// Whatever changes a window must come behind its making and before its going, and the server keeps no order
/// between connections.
xcb_connection_t* X11PanelWindows::maker() const {
    if (m_maker != nullptr)
        return m_maker;
    xcb_connection_t* const toolkit = toolkitConnection();
    return toolkit != nullptr ? toolkit : m_x11->xcb();
}

void X11PanelWindows::takeKeyboard(std::uintptr_t number) {
    const xcb_window_t window = windowOf(number);
    m_ourClients.insert(m_x11->clientBase(window));
    Taking& taking = m_takings[window];
    learnWhoHadIt(window, taking);
    taking.isWanted = true;
    taking.events =
        m_x11->selectEvents(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_FOCUS_CHANGE);
    // The server answers in order, so this is who has it before the next request takes it.
    taking.asked = xcb_get_input_focus(m_x11->xcb());
    focus(window);
}

/// The server takes the request's arrival for its time. One that comes before the window is on the screen
/// does nothing.
void X11PanelWindows::focus(xcb_window_t window) {
    xcb_set_input_focus(m_x11->xcb(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    m_x11->flush();
}

void X11PanelWindows::learnWhoHadIt(xcb_window_t window, Taking& taking) {
    if (!taking.asked)
        return;
    const auto cookie = *std::exchange(taking.asked, std::nullopt);
    const auto reply = m_x11->reply<xcb_get_input_focus_reply_t>(cookie);
    if (reply && reply->focus != window)
        taking.before = reply->focus;
}

void X11PanelWindows::returnKeyboard(std::uintptr_t number) {
    const xcb_window_t window = windowOf(number);
    auto node = m_takings.extract(window);
    if (node.empty())
        return;
    learnWhoHadIt(window, node.mapped());
    const xcb_window_t before = node.mapped().before;
    if (before != XCB_NONE && (node.mapped().isHere || isWithOurs(window)))
        focus(before);
}

/// When the window is off the screen already, the server has let the keyboard follow the pointer.
bool X11PanelWindows::isWithOurs(xcb_window_t window) {
    const auto now = inputFocus(*m_x11);
    return now == window || now == pointerRoot;
}

Subscription X11PanelWindows::onPressElsewhere(std::function<void()> callback) {
    if (++*m_pressListeners == 1)
        m_presses = m_input->onButtonPress(
            [this](const RawPress& press) { m_isPressed = m_isPressed || !isWheelButton(press.detail); });
    auto inner = std::make_shared<Subscription>(m_pressElsewhere.subscribe(std::move(callback)));
    return Subscription([inner = std::move(inner), listeners = std::weak_ptr(m_pressListeners), this] {
        inner->reset();
        const auto alive = listeners.lock();
        if (alive && --*alive == 0)
            m_presses.reset();
    });
}

void X11PanelWindows::drained() {
    if (std::exchange(m_isPressed, false) && isPointerOverOurs() == false)
        m_pressElsewhere.emit();
}

/// Follows the pointer down from the root window: our own windows may lie inside of a window manager's
/// frames. Absent when the server does not answer in time.
std::optional<bool> X11PanelWindows::isPointerOverOurs() {
    xcb_window_t window = m_x11->root();
    for (int level = 0; level < deepestNesting && !m_x11->isLate(); ++level) {
        const auto pointer = m_x11->reply<xcb_query_pointer_reply_t>(xcb_query_pointer(m_x11->xcb(), window));
        if (!pointer)
            return std::nullopt;
        if (pointer->child == XCB_NONE)
            return false;
        window = pointer->child;
        if (isOurs(window))
            return true;
    }
    return m_x11->isLate() ? std::nullopt : std::optional(false);
}

bool X11PanelWindows::isOurs(xcb_window_t window) {
    const std::uint32_t client = m_x11->clientBase(window);
    if (m_ourClients.contains(client))
        return true;
    if (!isOfThisProcess(*m_x11, window))
        return false;
    m_ourClients.insert(client);
    return true;
}

} // namespace quillon
