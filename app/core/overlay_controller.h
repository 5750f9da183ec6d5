#pragma once

#include <quillon/app/ports/panel_host.h>

#include <functional>
#include <memory>

namespace quillon {

enum class Stickiness {
    held,  ///< closes when the trigger key is let go
    sticky ///< has the keyboard; closes on Escape or a click elsewhere
};

/// Creates, places, shows and hides the overlay's panel.
class OverlayController {
  public:
    explicit OverlayController(PanelHost& host);
    OverlayController(const OverlayController&) = delete;
    OverlayController& operator=(const OverlayController&) = delete;

    std::function<void()> onEscape; ///< the user pressed Escape in the panel
    std::function<void()> onResign; ///< the panel lost the keyboard, or the user pressed a button elsewhere

    /// Makes the panel ahead of its first showing, so that it shows as fast then as later. For a moment in
    /// which nothing else is to be done; nothing once the panel is there.
    void prepare();
    void show(Stickiness stickiness);
    void makeKey();
    void hide();
    bool isVisible() const { return m_panel && m_panel->isVisible(); }

  private:
    void makePanel();
    void placeIn(Rect visibleFrame);
    void fitAnew();

    PanelHost& m_host;
    std::unique_ptr<FloatingPanel> m_panel;
    Rect m_frame; ///< where it was placed last
    Subscription m_screens;
};

} // namespace quillon
