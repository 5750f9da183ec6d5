#include "hold_watcher.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr Seconds idleInterval{0.25};
constexpr Seconds holdInterval{1.0 / 30};
/// Keeps input that arrived together with the press from spoiling the hold.
constexpr Seconds slack{0.02};

constexpr std::array spoilingInput{
    InputKind::keyDown, InputKind::leftMouseDown, InputKind::rightMouseDown, InputKind::otherMouseDown,
    InputKind::scrollWheel};

} // namespace

HoldWatcher::HoldWatcher(Keyboard& keyboard, const Clock& clock, Timers& timers, HoldDetector detector)
    : m_keyboard(keyboard), m_clock(clock), m_timers(timers), m_detector(detector) {}

void HoldWatcher::start() {
    stop();
    m_monitor = m_keyboard.onModifiersChanged([this](Modifiers held) { handle(held); });
    m_idleTimer = m_timers.every(idleInterval, [this] { idlePoll(); });
    followDetector();
}

void HoldWatcher::stop() {
    m_monitor.reset();
    m_idleTimer.reset();
    m_holdTimer.reset();
    m_inputAges.reset();
}

void HoldWatcher::replaceDetector(HoldDetector detector) {
    const bool wasShowing = m_detector.showing();
    m_detector = detector;
    if (wasShowing)
        perform(HoldDetector::Event::hide);
}

void HoldWatcher::handle(Modifiers held) {
    if (held == m_lastModifiers)
        return;
    m_lastModifiers = held;
    const Instant now = m_clock.steadyNow();
    if (held == m_detector.trigger() && !m_detector.pressedAt())
        m_pressedAt = now;
    const auto event = m_detector.modifiersChanged(held, now);
    followDetector();
    perform(event);
}

void HoldWatcher::idlePoll() {
    handle(m_keyboard.modifiers());
}

void HoldWatcher::holdPoll() {
    const Modifiers held = m_keyboard.modifiers();
    if (held != m_lastModifiers) {
        handle(held);
        return;
    }
    const Instant now = m_clock.steadyNow();
    if (otherInputSince(secondsBetween(m_pressedAt, now) - slack))
        m_detector.otherInput();
    const auto event = m_detector.tick(now);
    followDetector();
    perform(event);
}

// The fast poll and the observation of other input last exactly as long as a hold is timed.
void HoldWatcher::followDetector() {
    if (!m_detector.pressedAt()) {
        m_holdTimer.reset();
        m_inputAges.reset();
    } else if (!m_holdTimer) {
        m_inputAges = m_keyboard.observeInput();
        m_holdTimer = m_timers.every(holdInterval, [this] { holdPoll(); });
    }
}

bool HoldWatcher::otherInputSince(Seconds limit) const {
    return std::ranges::any_of(
        spoilingInput, [&](InputKind kind) { return m_inputAges && m_inputAges->sinceLast(kind) < limit; });
}

void HoldWatcher::perform(std::optional<HoldDetector::Event> event) {
    if (!event)
        return;
    const auto& callback = *event == HoldDetector::Event::show ? onShow : onHide;
    if (callback)
        callback();
}

} // namespace quillon
