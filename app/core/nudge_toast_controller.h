#pragma once

#include <quillon/app/ports/panel_host.h>
#include <quillon/app/ports/timers.h>

#include <memory>

namespace quillon {

/// Creates, places, shows and hides the toast's panel. It never has the keyboard and hides by itself.
class NudgeToastController {
  public:
    static constexpr Seconds fadeInTime{0.15};
    /// From the beginning of one to the beginning of the other.
    static constexpr Seconds shownTime{2.8};
    static constexpr Seconds fadeOutTime{0.4};

    /// Both outlive the controller.
    NudgeToastController(PanelHost& host, Timers& timers) : m_host(host), m_timers(timers) {}
    NudgeToastController(const NudgeToastController&) = delete;
    NudgeToastController& operator=(const NudgeToastController&) = delete;

    /// Makes the panel ahead of its first showing, so that it shows as fast then as later. For a moment in
    /// which nothing else is to be done; nothing once the panel is there.
    void prepare();
    /// Shows the panel at the pointer, as if for the first time if it is shown already.
    void show();

  private:
    void place();
    void hide();

    PanelHost& m_host;
    Timers& m_timers;
    std::unique_ptr<FloatingPanel> m_panel;
    Subscription m_hideTask;
};

} // namespace quillon
