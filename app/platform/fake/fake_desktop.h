#pragma once

#include "fake_accessibility_access.h"
#include "fake_app_icons.h"
#include "fake_appearance.h"
#include "fake_background.h"
#include "fake_clock.h"
#include "fake_foreground.h"
#include "fake_front_application.h"
#include "fake_key_reading.h"
#include "fake_keyboard.h"
#include "fake_keyboard_grab.h"
#include "fake_launcher_key.h"
#include "fake_menu_reader.h"
#include "fake_menu_use.h"
#include "fake_panel_maker.h"
#include "fake_session_start.h"
#include "fake_silent_apps.h"
#include "fake_software_pages.h"
#include "fake_timers.h"
#include "fake_tray.h"
#include "fake_typed_keys.h"
#include "fake_windows.h"

namespace quillon {

/// Every fake that there is, of one clock.
struct FakeDesktop {
    FakeClock clock;
    FakeTimers timers{clock};
    FakeBackground background;
    FakeFrontApplication front;
    FakeMenuReader menus;
    FakeAccessibilityAccess access;
    FakeKeyboard keyboard{clock};
    FakeKeyReading keyReading;
    FakeKeyboardGrab keyboardGrab;
    FakeMenuUse menuUse;
    FakeTypedKeys typedKeys;
    FakeAppIcons icons;
    FakeAppearance appearance;
    FakePanelMaker panels;
    FakeForeground foreground;
    FakeWindows windows;
    FakeTray tray;
    FakeSessionStart sessionStart;
    FakeLauncherKey launcherKey;
    FakeSilentApps silentApps;
    FakeSoftwarePages softwarePages;
};

} // namespace quillon
