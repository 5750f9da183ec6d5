#pragma once

#include "counted_event.h"
#include "fake_clock.h"

#include <quillon/app/ports/keyboard.h>

#include <cstddef>
#include <map>
#include <memory>

namespace quillon {

/// A keyboard whose keys are pressed by hand. Ages are measured by the clock that it was given.
class FakeKeyboard final : public Keyboard {
  public:
    explicit FakeKeyboard(const FakeClock& clock);
    ~FakeKeyboard() override;

    Modifiers modifiers() const override { return m_down; }
    Subscription onModifiersChanged(std::function<void(Modifiers)> callback) override;
    std::unique_ptr<InputAges> observeInput() override;

    /// Puts modifiers down, lets them go, or sets the whole set; tells when that changed it.
    void press(Modifiers keys) { set(m_down.union_(keys)); }
    void release(Modifiers keys) { set(m_down.subtracting(keys)); }
    void set(Modifiers down);
    /// Changes the set without telling, as an event that was missed.
    void setSilently(Modifiers down) { m_down = down; }
    /// Other input, now.
    void input(InputKind kind);

    /// How many listen for modifier changes.
    std::size_t monitors() const { return m_changed.listeners(); }
    /// How many observations of other input live.
    std::size_t observations() const { return *m_observations; }

  private:
    class Ages;
    /// When each kind of input last happened.
    using LastInputs = std::map<InputKind, Instant>;

    const FakeClock& m_clock;
    Modifiers m_down;
    CountedEvent<Modifiers> m_changed;
    std::shared_ptr<std::size_t> m_observations = std::make_shared<std::size_t>(0);
    std::shared_ptr<LastInputs> m_last = std::make_shared<LastInputs>();
};

} // namespace quillon
