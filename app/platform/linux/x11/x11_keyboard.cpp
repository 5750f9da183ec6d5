#include "x11_keyboard.h"

#include "xkb_header.h"

#include <quillon/kit/base/instant.h>

#include <chrono>
#include <limits>
#include <map>
#include <utility>

namespace quillon {

namespace {

using SteadyTime = std::chrono::steady_clock::time_point;

constexpr std::uint16_t coreKeyboard = XCB_XKB_ID_USE_CORE_KBD;

} // namespace

InputKind inputKindOfButton(std::uint32_t button) {
    if (isWheelButton(button))
        return InputKind::scrollWheel;
    switch (button) {
    case 1: return InputKind::leftMouseDown;
    case 3: return InputKind::rightMouseDown;
    default: return InputKind::otherMouseDown;
    }
}

/// When each kind of input last happened. Observed as long as it lives; shared by all observations.
class X11Keyboard::LastInputs {
  public:
    LastInputs(RawInput& input, const X11Keyboard& keyboard) : m_modifierKeys(keyboard.m_map.isModifierKey) {
        m_keys = input.onKeyPress([this](const RawPress& press) {
            if (press.detail >= m_modifierKeys.size() || !m_modifierKeys.test(press.detail))
                note(InputKind::keyDown);
        });
        m_buttons =
            input.onButtonPress([this](const RawPress& press) { note(inputKindOfButton(press.detail)); });
    }

    SteadyTime last(InputKind kind) const {
        const auto found = m_last.find(kind);
        return found == m_last.end() ? SteadyTime::min() : found->second;
    }

  private:
    void note(InputKind kind) { m_last.insert_or_assign(kind, std::chrono::steady_clock::now()); }

    std::bitset<256> m_modifierKeys;
    std::map<InputKind, SteadyTime> m_last;
    Subscription m_keys;
    Subscription m_buttons;
};

class X11Keyboard::Ages final : public InputAges {
  public:
    explicit Ages(std::shared_ptr<LastInputs> inputs) : m_inputs(std::move(inputs)) {}

    Seconds sinceLast(InputKind kind) const override {
        const SteadyTime last = m_inputs->last(kind);
        if (last < m_begin)
            return Seconds(std::numeric_limits<double>::infinity());
        return std::chrono::steady_clock::now() - last;
    }

  private:
    std::shared_ptr<LastInputs> m_inputs;
    SteadyTime m_begin = std::chrono::steady_clock::now();
};

X11Keyboard::X11Keyboard(std::shared_ptr<X11Connection> x11, std::shared_ptr<RawInput> input)
    : m_x11(std::move(x11)), m_input(std::move(input)) {
    selectXkbEvents();
    m_events = m_x11->onEvent([this](const xcb_generic_event_t& event) { handle(event); });
    m_drained = m_x11->onDrained([this] { drained(); });
    m_caughtUp = m_x11->onCaughtUp([this] { drained(); });
    m_lost = m_x11->onLost([this] {
        m_mask = 0;
        tell();
    });
    askState();
    askMap();
    m_told = modifiers();
    m_toldGroup = m_group;
}

X11Keyboard::~X11Keyboard() = default;

void X11Keyboard::selectXkbEvents() {
    if (!m_x11->extensions().xkbFirstEvent)
        return;
    constexpr std::uint16_t mapEvents =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t mapParts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
    xcb_xkb_select_events_details_t details{};
    details.affectState = details.stateDetails =
        XCB_XKB_STATE_PART_MODIFIER_BASE | XCB_XKB_STATE_PART_MODIFIER_LATCH
        | XCB_XKB_STATE_PART_MODIFIER_LOCK | XCB_XKB_STATE_PART_GROUP_STATE;
    details.affectNewKeyboard = details.newKeyboardDetails =
        XCB_XKB_NKN_DETAIL_KEYCODES | XCB_XKB_NKN_DETAIL_GEOMETRY | XCB_XKB_NKN_DETAIL_DEVICE_ID;
    xcb_xkb_select_events_aux(
        m_x11->xcb(), coreKeyboard, XCB_XKB_EVENT_TYPE_STATE_NOTIFY | mapEvents, 0, 0, mapParts, mapParts,
        &details);
    m_x11->flush();
}

void X11Keyboard::askMap() {
    if (!m_mapIsStale || m_x11->isLate())
        return;
    if (const auto asked = KeyboardMap::ask(*m_x11)) {
        m_map = *asked;
        m_mapIsStale = false;
    }
}

/// Once; from then on the events tell.
void X11Keyboard::askState() {
    if (!m_stateIsStale || m_x11->isLate() || !m_x11->extensions().xkbFirstEvent)
        return;
    const auto cookie = xcb_xkb_get_state(m_x11->xcb(), coreKeyboard);
    if (const auto state = m_x11->reply<xcb_xkb_get_state_reply_t>(cookie)) {
        m_mask = state->baseMods | state->latchedMods;
        m_locked = state->lockedMods;
        m_group = state->group;
        m_stateIsStale = false;
    }
}

Modifiers X11Keyboard::modifiers() const {
    return m_map.modifiers.modifiers(m_mask);
}

KeyState X11Keyboard::keyState() const {
    return {
        .modifiers = modifiers(), .choosers = m_map.modifiers.choosers(m_mask | m_locked), .group = m_group};
}

KeyState X11Keyboard::keyState(std::uint32_t stateOfEvent) const {
    constexpr std::uint32_t modifierBits = 0xff;
    constexpr std::uint32_t groupShift = 13; // where the keyboard extension puts the layout in effect
    constexpr std::uint32_t groupBits = 3;
    return {
        .modifiers = m_map.modifiers.modifiers(stateOfEvent & modifierBits),
        .choosers = m_map.modifiers.choosers(stateOfEvent & modifierBits),
        .group = (stateOfEvent >> groupShift) & groupBits};
}

void X11Keyboard::handle(const xcb_generic_event_t& event) {
    if (event.response_type != m_x11->extensions().xkbFirstEvent)
        return;
    const auto& state = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event);
    if (state.xkbType == XCB_XKB_STATE_NOTIFY)
        stateChanged(state);
    else
        m_mapIsStale = m_mapChangeIsUntold = true;
}

void X11Keyboard::stateChanged(const xcb_xkb_state_notify_event_t& state) {
    m_mask = state.baseMods | state.latchedMods;
    m_locked = state.lockedMods;
    m_group = state.group;
    m_stateIsStale = false;
    // What the keys stand for now is asked for once all events are told.
    if (!m_mapIsStale)
        tell();
}

void X11Keyboard::drained() {
    askState();
    askMap();
    tell();
    if (std::exchange(m_mapChangeIsUntold, false))
        m_mapChanged.emit();
}

void X11Keyboard::tell() {
    const Modifiers down = modifiers();
    if (std::exchange(m_told, down) != down)
        m_changed.emit(down);
    if (std::exchange(m_toldGroup, m_group) != m_group)
        m_groupChanged.emit();
}

Subscription X11Keyboard::onModifiersChanged(std::function<void(Modifiers)> callback) {
    return m_changed.subscribe(std::move(callback));
}

std::unique_ptr<InputAges> X11Keyboard::observeInput() {
    auto inputs = m_lastInputs.lock();
    if (!inputs) {
        inputs = std::make_shared<LastInputs>(*m_input, *this);
        m_lastInputs = inputs;
    }
    return std::make_unique<Ages>(std::move(inputs));
}

} // namespace quillon
