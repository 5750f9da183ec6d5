#include "linux_desktop.h"

#include "linux_menu_use.h"
#include "linux_silent_apps.h"
#include "logged_app.h"

#include <quillon/app/platform/linux/access/accessibility_bus_access.h>
#include <quillon/app/platform/linux/applications/xdg_app_icons.h>
#include <quillon/app/platform/linux/atspi/open_menus.h>
#include <quillon/app/platform/linux/launcher/session_settings.h>
#include <quillon/app/platform/linux/look/xdg_appearance.h>
#include <quillon/app/platform/linux/software/xdg_software_pages.h>
#include <quillon/app/platform/linux/tray/linux_tray.h>
#include <quillon/app/platform/linux/x11/raw_input.h>
#include <quillon/app/platform/linux/x11/root_event_brake.h>
#include <quillon/app/platform/linux/x11/x11_connection.h>
#include <quillon/app/platform/linux/x11/x11_foreground.h>
#include <quillon/app/platform/linux/x11/x11_front_application.h>
#include <quillon/app/platform/linux/x11/x11_key_reading.h>
#include <quillon/app/platform/linux/x11/x11_keyboard.h>
#include <quillon/app/platform/linux/x11/x11_keyboard_grab.h>
#include <quillon/app/platform/linux/x11/x11_panel_windows.h>
#include <quillon/app/platform/linux/x11/x11_typed_keys.h>
#include <quillon/app/platform/qt/panels/plain_panel_windows.h>
#include <quillon/app/ports/diagnostics/log.h>

#include <QGuiApplication>

namespace quillon {

namespace {

QString extensionsOf(const X11Connection& x11) {
    const X11Extensions& extensions = x11.extensions();
    return QStringLiteral("XKB %1, raw input %2")
        .arg(
            extensions.xkbFirstEvent ? u"is there" : u"is absent",
            extensions.xinputOpcode ? u"is there" : u"is absent");
}

void logActivation(const RunningApp& app) {
    const std::uint64_t window = app.windows.empty() ? 0 : app.windows.front().id;
    qCInfo(logWindows).noquote().nospace()
        << "in front: " << logged(app) << ", window 0x" << Qt::hex << window;
}

std::unique_ptr<PanelWindows>
panelWindows(const std::shared_ptr<X11Connection>& x11, const std::shared_ptr<RawInput>& input) {
    if (!x11)
        return std::make_unique<PlainPanelWindows>();
    return std::make_unique<X11PanelWindows>(x11, input);
}

LinuxMenuUse::MakeLookup lookupInOpenMenus() {
    return [memory = atspi::makeMenuBarMemory()](const RunningApp& app) {
        return std::make_shared<atspi::OpenMenus>(app, memory);
    };
}

} // namespace

LinuxDesktop::LinuxDesktop(const QDBusConnection& sessionBus, Background& background, const Clock& clock)
    : m_identifier(background, clock),
      m_launcherKey(background, processEnvironment("XDG_CURRENT_DESKTOP"), sessionSettings()),
      m_access(std::make_unique<AccessibilityBusAccess>(sessionBus)),
      m_appearance(std::make_unique<XdgAppearance>(sessionBus)),
      m_icons(std::make_unique<XdgAppIcons>(m_identifier)),
      m_softwarePages(std::make_unique<XdgSoftwarePages>()), m_x11(X11Connection::open()),
      m_brake(m_x11 ? std::make_unique<RootEventBrake>() : nullptr),
      m_input(m_x11 ? std::make_shared<RawInput>(m_x11) : nullptr),
      m_panelWindows(panelWindows(m_x11, m_input)), m_panels(*m_panelWindows),
      m_tray(std::make_unique<LinuxTray>(sessionBus, m_x11, *m_appearance)) {
    if (!m_x11) {
        qCInfo(logInput) << "there is no X server: held keys are not noticed";
        return;
    }
    qCInfo(logInput).noquote() << "held keys are noticed through an X server;" << extensionsOf(*m_x11);
    m_foreground = std::make_unique<X11Foreground>(m_x11);
    m_front = std::make_unique<X11FrontApplication>(
        m_x11, m_identifier,
        [this](const std::string& bundleID, IconPixels icon) { m_icons->note(bundleID, std::move(icon)); });
    m_keyboard = std::make_unique<X11Keyboard>(m_x11, m_input);
    m_keyReading = std::make_unique<X11KeyReading>(*m_keyboard, background);
    m_keyboardGrab = X11KeyboardGrab::ofToolkit();
    m_menuUse = std::make_unique<LinuxMenuUse>(
        m_x11, m_input, LinuxMenuUse::Needs{*m_front, background, lookupInOpenMenus()});
    m_typedKeys = std::make_unique<X11TypedKeys>(
        X11TypedKeys::Needs{
            .keyboard = *m_keyboard,
            .background = background,
            .hasOwnFocus = [] { return QGuiApplication::focusWindow() != nullptr; }},
        m_input);
    m_silentApps =
        std::make_unique<LinuxSilentApps>(LinuxSilentApps::ofSession(m_x11, background, m_identifier));
    m_activations = m_front->onActivated(logActivation);
}

LinuxDesktop::~LinuxDesktop() = default;

FrontApplication& LinuxDesktop::frontApplication() {
    if (m_front)
        return *m_front;
    return m_none.front;
}

Foreground& LinuxDesktop::foreground() {
    if (m_foreground)
        return *m_foreground;
    return m_none.foreground;
}

Keyboard& LinuxDesktop::keyboard() {
    if (m_keyboard)
        return *m_keyboard;
    return m_none.keyboard;
}

KeyReading& LinuxDesktop::keyReading() {
    if (m_keyReading)
        return *m_keyReading;
    return m_none.keyReading;
}

KeyboardGrab& LinuxDesktop::keyboardGrab() {
    if (m_keyboardGrab)
        return *m_keyboardGrab;
    return m_none.keyboardGrab;
}

MenuUse& LinuxDesktop::menuUse() {
    if (m_menuUse)
        return *m_menuUse;
    return m_none.menuUse;
}

TypedKeys& LinuxDesktop::typedKeys() {
    if (m_typedKeys)
        return *m_typedKeys;
    return m_none.typedKeys;
}

SilentApps& LinuxDesktop::silentApps() {
    if (m_silentApps)
        return *m_silentApps;
    return m_none.silentApps;
}

AppIcons& LinuxDesktop::icons() {
    return *m_icons;
}

} // namespace quillon
