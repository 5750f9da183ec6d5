#include "raw_input.h"

#include <xcb/xinput.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace quillon {

/// How many listen to each kind of event, and so what the server has to send.
class RawInput::Selection {
  public:
    explicit Selection(std::shared_ptr<X11Connection> x11) : m_x11(std::move(x11)) {}

    const std::shared_ptr<X11Connection>& x11() const { return m_x11; }

    void add(std::uint32_t mask) {
        m_masks.push_back(mask);
        apply();
    }
    void remove(std::uint32_t mask) {
        m_masks.erase(std::ranges::find(m_masks, mask));
        apply();
    }

  private:
    void apply() {
        std::uint32_t wanted = 0;
        for (const std::uint32_t mask : m_masks)
            wanted |= mask;
        if (std::exchange(m_selected, wanted) == wanted)
            return;
        struct {
            xcb_input_event_mask_t header{XCB_INPUT_DEVICE_ALL_MASTER, 1};
            std::uint32_t mask = 0;
        } request;
        request.mask = wanted;
        xcb_input_xi_select_events(m_x11->xcb(), m_x11->root(), 1, &request.header);
        m_x11->flush();
    }

    std::shared_ptr<X11Connection> m_x11;
    std::vector<std::uint32_t> m_masks;
    std::uint32_t m_selected = 0;
};

RawInput::RawInput(std::shared_ptr<X11Connection> x11)
    : m_selection(std::make_shared<Selection>(std::move(x11))) {
    const auto& connection = *m_selection->x11();
    if (!connection.extensions().xinputOpcode)
        return;
    m_opcode = *connection.extensions().xinputOpcode;
    m_events = m_selection->x11()->onEvent([this](const xcb_generic_event_t& event) { handle(event); });
}

RawInput::~RawInput() = default;

Subscription RawInput::onKeyPress(Callback callback) {
    return listen(m_keyPress, XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS, std::move(callback));
}

Subscription RawInput::onKeyRelease(Callback callback) {
    return listen(m_keyRelease, XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE, std::move(callback));
}

Subscription RawInput::onButtonPress(Callback callback) {
    return listen(m_buttonPress, XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS, std::move(callback));
}

Subscription RawInput::onButtonRelease(Callback callback) {
    return listen(m_buttonRelease, XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE, std::move(callback));
}

Subscription RawInput::listen(Event<const RawPress&>& event, std::uint32_t mask, Callback callback) {
    if (!m_events)
        return {};
    m_selection->add(mask);
    auto inner = std::make_shared<Subscription>(event.subscribe(std::move(callback)));
    return Subscription([inner = std::move(inner), selection = std::weak_ptr<Selection>(m_selection), mask] {
        inner->reset();
        if (const auto alive = selection.lock())
            alive->remove(mask);
    });
}

void RawInput::handle(const xcb_generic_event_t& event) {
    if (event.response_type != XCB_GE_GENERIC)
        return;
    const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
    if (generic.extension != m_opcode)
        return;
    const auto press = [&event] {
        const auto& raw = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event);
        return RawPress{raw.detail, (raw.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT) != 0, raw.time};
    };
    if (generic.event_type == XCB_INPUT_RAW_KEY_PRESS)
        m_keyPress.emit(press());
    else if (generic.event_type == XCB_INPUT_RAW_KEY_RELEASE)
        m_keyRelease.emit(press());
    else if (generic.event_type == XCB_INPUT_RAW_BUTTON_PRESS)
        m_buttonPress.emit(press());
    else if (generic.event_type == XCB_INPUT_RAW_BUTTON_RELEASE)
        m_buttonRelease.emit(press());
}

} // namespace quillon
