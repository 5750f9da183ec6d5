#pragma once

#include "first_trust.h"

namespace quillon {

/// Opens the welcome when the program starts, where it was not completed yet or menus may not be read.
class WelcomeAtStart {
  public:
    /// For the desktop's answer. Someone who has completed the welcome is mostly to be left alone, and a
    /// session that is just coming up takes its time.
    static constexpr Seconds patience{0.5};
    static constexpr Seconds patienceOnceOnboarded{4.0};

    /// Both outlive it.
    WelcomeAtStart(AppModel& model, Timers& timers) : m_model(model), m_trust(model, timers) {}

    void begin();
    /// Whether it is still to be decided.
    bool isDue() const { return m_trust.isWaiting(); }
    /// The user asked for something else meanwhile, which is not to be covered.
    void giveWay() { m_trust.stop(); }

  private:
    AppModel& m_model;
    FirstTrust m_trust;
};

} // namespace quillon
