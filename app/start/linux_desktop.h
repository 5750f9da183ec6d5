#pragma once

#include <quillon/atspi/menu_reader.h>
#include <quillon/none/no_desktop.h>
#include <quillon/ports/accessibility_access.h>
#include <quillon/ports/app_icons.h>
#include <quillon/ports/appearance.h>
#include <quillon/ports/background.h>
#include <quillon/ports/clock.h>
#include <quillon/ports/front_application.h>
#include <quillon/ports/keyboard.h>
#include <quillon/ports/panel_windows.h>
#include <quillon/xdg/app_identifier.h>

#include <memory>

namespace quillon {

class X11Connection;
class XdgAppIcons;

/// The ports of a Linux desktop. Where it lacks something, that port is the one of a desktop that offers
/// nothing.
class LinuxDesktop {
  public:
    LinuxDesktop(Background& background, const Clock& clock);
    ~LinuxDesktop();

    FrontApplication& frontApplication();
    MenuReader& menuReader() { return m_menuReader; }
    AccessibilityAccess& accessibility() { return *m_access; }
    Keyboard& keyboard();
    AppIcons& icons();
    Appearance& appearance() { return *m_appearance; }
    PanelWindows& panelWindows();

  private:
    NoDesktop m_none;
    AppIdentifier m_identifier;
    AtspiMenuReader m_menuReader;
    std::unique_ptr<AccessibilityAccess> m_access;
    std::unique_ptr<Appearance> m_appearance;
    std::unique_ptr<XdgAppIcons> m_icons;
    std::shared_ptr<X11Connection> m_x11;
    std::unique_ptr<FrontApplication> m_front;
    std::unique_ptr<Keyboard> m_keyboard;
    std::unique_ptr<PanelWindows> m_panels;
};

} // namespace quillon
