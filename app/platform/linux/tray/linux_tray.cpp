#include "linux_tray.h"

#include "menu_server.h"
#include "notifier_item.h"
#include "status_notifier.h"

#include <quillon/app/platform/qt/menus/pop_up_menu.h>

#include <QCursor>

#include <utility>

namespace quillon {

LinuxTray::LinuxTray(const QDBusConnection& bus, Appearance& appearance, const Environment& environment)
    : m_bus(bus), m_appearance(appearance), m_currentDesktop(environment("XDG_CURRENT_DESKTOP")) {}

LinuxTray::~LinuxTray() = default;

void LinuxTray::show(TrayPresence presence) {
    m_presence = std::move(presence);
    if (!m_bus.isConnected())
        return;
    traybus::registerTypes();
    const auto look = [this] { return trayLookOf(m_currentDesktop, m_appearance.look().scheme); };
    m_menuServer = std::make_unique<MenuServer>(m_bus, [this](int id) { choose(id); });
    m_menuServer->setItems(m_items);
    m_item = std::make_unique<NotifierItem>(
        m_bus, *m_presence,
        NotifierClicks{
            .openMenu = [this] { popUpMenu(); }, .secondary = [this] { secondaryClick(); }},
        look());
    m_lookChange = m_appearance.onChanged([this, look] { m_item->setLook(look()); });
    // Last: whoever is told of the item can call it.
    m_notifier = std::make_unique<StatusNotifier>(m_bus);
    m_notifierChange = m_notifier->onChanged([this] { notifierChanged(); });
}

void LinuxTray::setMenu(std::vector<TrayMenuItem> items) {
    m_items = std::move(items);
    if (m_menuServer)
        m_menuServer->setItems(m_items);
    if (m_menu)
        m_menu->setItems(m_items);
}

void LinuxTray::popUpMenu() {
    if (!m_menu) {
        m_menu = std::make_unique<PopUpMenu>([this](int id) { choose(id); });
        m_menu->setItems(m_items);
    }
    m_menu->popUp(QCursor::pos());
}

void LinuxTray::choose(int id) const {
    if (m_presence)
        m_presence->chosen(id);
}

void LinuxTray::secondaryClick() const {
    if (m_presence)
        m_presence->secondaryClick();
}

void LinuxTray::notifierChanged() {
    if (std::exchange(m_isShown, m_notifier->isShown()) != m_isShown)
        m_shownChanged.emit();
}

} // namespace quillon
