#pragma once

#include "dock_struts.h"
#include "x11_connection.h"

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// What the docks of the desktop leave free of each monitor.
///
/// Properties and events tell when it may have changed; it is asked for, all at once, when somebody wants to
/// know. While the server does not answer in time it is what it was.
class WorkAreas {
  public:
    explicit WorkAreas(std::shared_ptr<X11Connection> x11);

    /// Absent where no window manager lists the windows. `monitor` and the result are in the server's pixels.
    std::optional<PixelBox> freeOf(const PixelBox& monitor);
    /// Called when something has happened by which it may have changed since it was asked for.
    Subscription onChanged(std::function<void()> callback) {
        return m_changed.subscribe(std::move(callback));
    }

  private:
    void handle(const xcb_generic_event_t& event);
    bool isOfInterest(const xcb_property_notify_event_t& event) const;
    void drained();
    void ask();
    void askDocks(const std::vector<std::uint32_t>& windows);

    std::shared_ptr<X11Connection> m_x11;
    bool m_isStale = true;
    bool m_hasToTell = false;
    bool m_isListed = false; ///< there is a window manager that lists the windows
    PixelBox m_desktop;
    std::vector<DockStrut> m_struts;
    std::vector<PixelBox> m_managersBoxes; ///< as the window manager tells them itself; of any monitor
    std::vector<Subscription> m_docks;     ///< the events of the windows that have struts
    Event<> m_changed;
    Subscription m_rootEvents;
    Subscription m_events;
    Subscription m_drained;
    Subscription m_caughtUp;
};

} // namespace quillon
