#pragma once

#include "accessibility_access.h"
#include "app_icons.h"
#include "appearance.h"
#include "foreground.h"
#include "front_application.h"
#include "key_reading.h"
#include "keyboard.h"
#include "keyboard_grab.h"
#include "launcher_key.h"
#include "menu_reader.h"
#include "menu_use.h"
#include "panel_maker.h"
#include "session_start.h"
#include "silent_apps.h"
#include "software_pages.h"
#include "tray.h"
#include "typed_keys.h"

namespace quillon {

/// Every port of one desktop. What it cannot offer is a port that offers nothing.
class Desktop {
  public:
    virtual ~Desktop() = default;

    virtual FrontApplication& frontApplication() = 0;
    virtual MenuReader& menuReader() = 0;
    virtual AccessibilityAccess& accessibility() = 0;
    virtual Keyboard& keyboard() = 0;
    virtual KeyReading& keyReading() = 0;
    virtual KeyboardGrab& keyboardGrab() = 0;
    virtual MenuUse& menuUse() = 0;
    virtual TypedKeys& typedKeys() = 0;
    virtual AppIcons& icons() = 0;
    virtual Appearance& appearance() = 0;
    virtual PanelMaker& panels() = 0;
    virtual Foreground& foreground() = 0;
    virtual Tray& tray() = 0;
    virtual SessionStart& sessionStart() = 0;
    virtual LauncherKey& launcherKey() = 0;
    virtual SilentApps& silentApps() = 0;
    virtual SoftwarePages& softwarePages() = 0;
};

} // namespace quillon
