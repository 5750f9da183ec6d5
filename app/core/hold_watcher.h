#pragma once

#include <quillon/app/ports/clock.h>
#include <quillon/app/ports/keyboard.h>
#include <quillon/app/ports/timers.h>
#include <quillon/kit/coach/hold_detector.h>

#include <functional>
#include <memory>

namespace quillon {

/// Feeds the hold detector from the keyboard and passes on what it says. While nothing is held it costs one
/// poll every quarter of a second; input other than modifiers is observed only while a hold is timed.
class HoldWatcher {
  public:
    HoldWatcher(Keyboard& keyboard, const Clock& clock, Timers& timers, HoldDetector detector);

    std::function<void()> onShow;
    std::function<void()> onHide;

    /// Begins to watch; anew if it already does.
    void start();
    void stop();
    /// A changed trigger key or delay. What is held, and the timers, stay as they are.
    void replaceDetector(HoldDetector detector);

    const HoldDetector& detector() const { return m_detector; }
    bool isWatching() const { return static_cast<bool>(m_monitor); }
    bool isTiming() const { return static_cast<bool>(m_holdTimer); }

  private:
    void handle(Modifiers held);
    void idlePoll();
    void holdPoll();
    void followDetector();
    bool otherInputSince(Seconds limit) const;
    void perform(std::optional<HoldDetector::Event> event);

    Keyboard& m_keyboard;
    const Clock& m_clock;
    Timers& m_timers;
    HoldDetector m_detector;
    Modifiers m_lastModifiers;
    Instant m_pressedAt = distantPast;
    Subscription m_monitor;
    Subscription m_idleTimer;
    Subscription m_holdTimer;
    std::unique_ptr<InputAges> m_inputAges;
};

} // namespace quillon
