#pragma once

#include "no_accessibility_access.h"
#include "no_app_icons.h"
#include "no_appearance.h"
#include "no_foreground.h"
#include "no_front_application.h"
#include "no_key_reading.h"
#include "no_keyboard.h"
#include "no_keyboard_grab.h"
#include "no_launcher_key.h"
#include "no_menu_reader.h"
#include "no_menu_use.h"
#include "no_panel_maker.h"
#include "no_session_start.h"
#include "no_silent_apps.h"
#include "no_software_pages.h"
#include "no_tray.h"
#include "no_typed_keys.h"
#include "no_windows.h"

namespace quillon {

/// Every port of a desktop that offers nothing. Time and background work do not depend on a desktop.
struct NoDesktop {
    NoFrontApplication front;
    NoMenuReader menus;
    NoAccessibilityAccess access;
    NoKeyboard keyboard;
    NoKeyReading keyReading;
    NoKeyboardGrab keyboardGrab;
    NoMenuUse menuUse;
    NoTypedKeys typedKeys;
    NoAppIcons icons;
    NoAppearance appearance;
    NoPanelMaker panels;
    NoForeground foreground;
    NoWindows windows;
    NoTray tray;
    NoSessionStart sessionStart;
    NoLauncherKey launcherKey;
    NoSilentApps silentApps;
    NoSoftwarePages softwarePages;
};

} // namespace quillon
