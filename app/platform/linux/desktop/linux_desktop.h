#pragma once

#include "logged_menu_reader.h"

#include <quillon/app/platform/linux/applications/app_identifier.h>
#include <quillon/app/platform/linux/atspi/atspi_menu_reader.h>
#include <quillon/app/platform/linux/launcher/desktop_launcher_key.h>
#include <quillon/app/platform/linux/session/xdg_session_start.h>
#include <quillon/app/platform/none/no_desktop.h>
#include <quillon/app/platform/qt/panels/qt_panel_maker.h>
#include <quillon/app/ports/background.h>
#include <quillon/app/ports/clock.h>
#include <quillon/app/ports/desktop.h>

#include <QDBusConnection>

#include <memory>

namespace quillon {

class RawInput;
class RootEventBrake;
class X11Connection;
class X11KeyReading;
class X11Keyboard;
class X11KeyboardGrab;
class X11TypedKeys;
class XdgAppIcons;

/// The ports of a Linux desktop. Where it lacks something, that port is the one of a desktop that offers
/// nothing.
class LinuxDesktop final : public Desktop {
  public:
    /// `sessionBus` may be one that is not connected. `background` and `clock` outlive it.
    LinuxDesktop(const QDBusConnection& sessionBus, Background& background, const Clock& clock);
    ~LinuxDesktop() override;

    FrontApplication& frontApplication() override;
    MenuReader& menuReader() override { return m_menuReader; }
    AccessibilityAccess& accessibility() override { return *m_access; }
    Keyboard& keyboard() override;
    KeyReading& keyReading() override;
    KeyboardGrab& keyboardGrab() override;
    MenuUse& menuUse() override;
    TypedKeys& typedKeys() override;
    AppIcons& icons() override;
    Appearance& appearance() override { return *m_appearance; }
    PanelMaker& panels() override { return m_panels; }
    Foreground& foreground() override;
    Tray& tray() override { return *m_tray; }
    SessionStart& sessionStart() override { return m_sessionStart; }
    LauncherKey& launcherKey() override { return m_launcherKey; }
    SilentApps& silentApps() override;
    SoftwarePages& softwarePages() override { return *m_softwarePages; }

  private:
    NoDesktop m_none;
    AppIdentifier m_identifier;
    AtspiMenuReader m_menus;
    LoggedMenuReader m_menuReader{m_menus};
    XdgSessionStart m_sessionStart;
    DesktopLauncherKey m_launcherKey;
    std::unique_ptr<AccessibilityAccess> m_access;
    std::unique_ptr<Appearance> m_appearance;
    std::unique_ptr<XdgAppIcons> m_icons;
    std::unique_ptr<SoftwarePages> m_softwarePages;
    std::shared_ptr<X11Connection> m_x11;
    std::unique_ptr<RootEventBrake> m_brake;
    std::shared_ptr<RawInput> m_input; ///< absent without X11
    std::unique_ptr<PanelWindows> m_panelWindows;
    QtPanelMaker m_panels;
    std::unique_ptr<Foreground> m_foreground;
    std::unique_ptr<FrontApplication> m_front;
    std::unique_ptr<X11Keyboard> m_keyboard;
    std::unique_ptr<X11KeyReading> m_keyReading;
    std::unique_ptr<X11KeyboardGrab> m_keyboardGrab;
    std::unique_ptr<X11TypedKeys> m_typedKeys;
    std::unique_ptr<MenuUse> m_menuUse;
    std::unique_ptr<Tray> m_tray;
    std::unique_ptr<SilentApps> m_silentApps;
    Subscription m_activations;
};

} // namespace quillon
