#pragma once

#include <quillon/kit/base/instant.h>
#include <quillon/kit/shortcut/modifiers.h>

#include <optional>

namespace quillon {

/// Turns modifier changes, other input and clock ticks into showing and hiding the overlay: shown when the
/// trigger was held alone for a while, hidden when it is let go, never shown by a hold that turned out to be
/// part of a shortcut, a click or a scroll. Times are handed in; all of one detector come from one clock.
class HoldDetector {
  public:
    enum class Event { show, hide };

    HoldDetector(Modifiers trigger, Seconds delay) : m_trigger(trigger), m_delay(delay) {}

    /// The modifiers now held are exactly `held`.
    std::optional<Event> modifiersChanged(Modifiers held, Instant at);
    /// A key, button or wheel was used: spoils a hold that is not yet showing.
    void otherInput();
    std::optional<Event> tick(Instant now);

    Modifiers trigger() const { return m_trigger; }
    Seconds delay() const { return m_delay; }
    /// When the trigger became held alone; absent when no hold is being timed.
    std::optional<Instant> pressedAt() const { return m_pressedAt; }
    /// This hold was spoiled and will not show.
    bool cancelled() const { return m_cancelled; }
    /// The overlay is shown by this hold.
    bool showing() const { return m_showing; }

    bool operator==(const HoldDetector&) const = default;

  private:
    Modifiers m_trigger;
    Seconds m_delay;
    std::optional<Instant> m_pressedAt;
    bool m_cancelled = false;
    bool m_showing = false;
};

} // namespace quillon
