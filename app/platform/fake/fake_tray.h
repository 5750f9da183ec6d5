#pragma once

#include "counted_event.h"

#include <quillon/app/ports/tray.h>

#include <utility>

namespace quillon {

/// A tray that comes and goes by hand; there is none at first.
class FakeTray final : public Tray {
  public:
    void show(TrayPresence presence) override { m_presence = std::move(presence); }
    void setMenu(std::vector<TrayMenuItem> items) override { m_menu = std::move(items); }
    bool isShown() const override { return m_isThere && m_presence; }
    Subscription onShownChanged(std::function<void()> callback) override {
        return m_changed.subscribe(std::move(callback));
    }

    /// Lets the tray come or go.
    void setThere(bool there) {
        if (std::exchange(m_isThere, there) != there)
            m_changed.emit();
    }
    /// The user chooses a command of the menu.
    void choose(int id) const { m_presence->chosen(id); }
    const std::optional<TrayPresence>& presence() const { return m_presence; }
    const std::vector<TrayMenuItem>& menu() const { return m_menu; }

  private:
    bool m_isThere = false;
    std::optional<TrayPresence> m_presence;
    std::vector<TrayMenuItem> m_menu;
    CountedEvent<> m_changed;
};

} // namespace quillon
