#pragma once

#include <quillon/app/platform/linux/session/session_kind.h>
#include <quillon/app/ports/appearance.h>
#include <quillon/app/ports/tray.h>

#include <QDBusConnection>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

class DockedIcon;
class MenuServer;
class NotifierItem;
class StatusNotifier;
class X11Connection;
struct TrayLook;

/// The tray of a Linux desktop: an item on the session bus, where a tray shows such items, else a window in
/// the X server's tray.
class LinuxTray final : public Tray {
  public:
    /// `bus` may be one that is not connected, `x11` null. `appearance` outlives the tray.
    LinuxTray(
        const QDBusConnection& bus, std::shared_ptr<X11Connection> x11, Appearance& appearance,
        const Environment& environment = processEnvironment);
    ~LinuxTray() override;

    void show(TrayPresence presence) override;
    void setMenu(std::vector<TrayMenuItem> items) override;
    bool isShown() const override { return m_isShown; }
    Subscription onShownChanged(std::function<void()> callback) override {
        return m_shownChanged.subscribe(std::move(callback));
    }

  private:
    void choose(int id) const;
    void openMenu() const;
    void secondaryClick() const;
    void dockedClick(int button);
    void showOnBus();
    void lookChanged();
    TrayLook look() const;
    void follow();
    void dock();

    QDBusConnection m_bus;
    std::shared_ptr<X11Connection> m_x11;
    Appearance& m_appearance;
    std::string m_currentDesktop;
    std::optional<TrayPresence> m_presence;
    std::vector<TrayMenuItem> m_items;
    std::unique_ptr<MenuServer> m_menuServer;
    std::unique_ptr<NotifierItem> m_item;
    std::unique_ptr<StatusNotifier> m_notifier;
    std::unique_ptr<DockedIcon> m_docked; ///< while no tray on the bus has the item
    bool m_isShown = false;
    Event<> m_shownChanged;
    Subscription m_notifierChange;
    Subscription m_dockedChange;
    Subscription m_lookChange;
};

} // namespace quillon
