#pragma once

#include "counted_event.h"

#include <quillon/app/ports/front_application.h>

namespace quillon {

/// A desktop whose active window is chosen by hand; none at first.
class FakeFrontApplication final : public FrontApplication {
  public:
    std::optional<RunningApp> current() const override {
        ++m_questions;
        return m_current;
    }
    Subscription onActivated(std::function<void(const RunningApp&)> callback) override {
        return m_activated.subscribe(std::move(callback));
    }

    /// Brings an application's window to the front and tells it.
    void activate(RunningApp app) {
        m_current = std::move(app);
        m_activated.emit(*m_current);
    }
    /// Changes what is in front without telling, as before the program started to listen.
    void setCurrent(std::optional<RunningApp> app) { m_current = std::move(app); }
    std::size_t listeners() const { return m_activated.listeners(); }
    /// How often it was asked what is in front; on real desktops that is work for the window system.
    std::size_t questions() const { return m_questions; }

  private:
    mutable std::size_t m_questions = 0;
    std::optional<RunningApp> m_current;
    CountedEvent<const RunningApp&> m_activated;
};

} // namespace quillon
