#pragma once

#include "panel_host.h"

#include <memory>

namespace quillon {

enum class Stickiness {
    held,  ///< closes when the trigger key is let go
    sticky ///< has the keyboard; closes on Escape or a click elsewhere
};

/// Creates, places, shows and hides the overlay's panel.
class OverlayController {
  public:
    explicit OverlayController(PanelHost& host) : m_host(host) {}

    void show(AppModel& model, Stickiness stickiness);
    void makeKey();
    void hide();
    bool isVisible() const { return m_panel && m_panel->isVisible(); }

  private:
    PanelHost& m_host;
    std::unique_ptr<FloatingPanel> m_panel;
};

} // namespace quillon
