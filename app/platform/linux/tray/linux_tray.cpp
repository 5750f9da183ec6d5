#include "linux_tray.h"

#include "docked_icon.h"
#include "menu_server.h"
#include "notifier_item.h"
#include "status_notifier.h"
#include "tray_look.h"

#include <utility>

namespace quillon {

LinuxTray::LinuxTray(
    const QDBusConnection& bus, std::shared_ptr<X11Connection> x11, Appearance& appearance,
    const Environment& environment)
    : m_bus(bus), m_x11(std::move(x11)), m_appearance(appearance),
      m_currentDesktop(environment("XDG_CURRENT_DESKTOP")) {}

LinuxTray::~LinuxTray() = default;

void LinuxTray::show(TrayPresence presence) {
    m_presence = std::move(presence);
    m_lookChange = m_appearance.onChanged([this] { lookChanged(); });
    if (m_bus.isConnected())
        showOnBus();
    follow();
}

void LinuxTray::showOnBus() {
    traybus::registerTypes();
    m_menuServer = std::make_unique<MenuServer>(m_bus, [this](int id) { choose(id); });
    m_menuServer->setItems(m_items);
    m_item = std::make_unique<NotifierItem>(
        m_bus, *m_presence,
        NotifierClicks{.openMenu = [this] { openMenu(); }, .secondary = [this] { secondaryClick(); }},
        look());
    // Last: whoever is told of the item can call it.
    m_notifier = std::make_unique<StatusNotifier>(m_bus);
    m_notifierChange = m_notifier->onChanged([this] { follow(); });
}

TrayLook LinuxTray::look() const {
    return trayLookOf(m_currentDesktop, m_appearance.look().scheme);
}

void LinuxTray::lookChanged() {
    if (m_item)
        m_item->setLook(look());
    if (m_docked)
        m_docked->schemeChanged();
}

// Docked only once it is known that no tray on the bus shows the item: two icons would be one too many.
void LinuxTray::follow() {
    const bool onBus = m_notifier && m_notifier->isShown();
    if (onBus)
        m_docked.reset();
    else if (m_x11 && !m_docked && (!m_notifier || m_notifier->isSettled()))
        dock();
    const bool isNowShown = onBus || (m_docked && m_docked->isShown());
    if (std::exchange(m_isShown, isNowShown) != isNowShown)
        m_shownChanged.emit();
}

void LinuxTray::dock() {
    m_docked = std::make_unique<DockedIcon>(
        m_x11, DockedIconContent{
                   .name = m_presence->name,
                   .draw = m_presence->draw,
                   .windowScheme = [this] { return m_appearance.look().scheme; },
                   .clicked = [this](int button) { dockedClick(button); }});
    m_dockedChange = m_docked->onShownChanged([this] { follow(); });
}

void LinuxTray::dockedClick(int button) {
    constexpr int left = 1;
    constexpr int middle = 2;
    constexpr int right = 3;
    if (button == middle)
        secondaryClick();
    else if (button == left || button == right)
        openMenu();
}

void LinuxTray::setMenu(std::vector<TrayMenuItem> items) {
    m_items = std::move(items);
    if (m_menuServer)
        m_menuServer->setItems(m_items);
}

void LinuxTray::choose(int id) const {
    if (m_presence)
        m_presence->chosen(id);
}

void LinuxTray::openMenu() const {
    if (m_presence)
        m_presence->openMenu();
}

void LinuxTray::secondaryClick() const {
    if (m_presence)
        m_presence->secondaryClick();
}

} // namespace quillon
