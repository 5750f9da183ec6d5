#include "desktop_facts.h"

namespace quillon {

namespace {

using Result = Check::Result;

Check sessionBus(const DesktopFacts& facts) {
    switch (facts.sessionBus) {
    case BusState::answers: return {"Session bus", Result::good, "answers", ""};
    case BusState::silent:
        return {
            "Session bus", Result::missing, "takes connections and does not answer",
            "Log out and in again; every program of this session waits for it."};
    case BusState::absent: break;
    }
    return {
        "Session bus", Result::missing, "cannot be reached",
        "Start Quillon from a desktop session, or with dbus-run-session."};
}

Check accessibilityBus(const DesktopFacts& facts) {
    if (facts.accessibilityBus)
        return {"Accessibility bus", Result::good, "answers", ""};
    return {
        "Accessibility bus", Result::missing, "cannot be reached",
        "Install the package at-spi2-core and log in again."};
}

Check accessibilitySwitch(const DesktopFacts& facts) {
    if (!facts.accessibilityBus)
        return {"Accessibility", Result::missing, "unknown without its bus", ""};
    if (!facts.accessibilityOn)
        return {"Accessibility", Result::good, "has no switch on this desktop", ""};
    if (*facts.accessibilityOn)
        return {"Accessibility", Result::good, "is on", ""};
    return {
        "Accessibility", Result::missing, "is off",
        "Choose “Allow Accessibility…” in Quillon’s menu, or turn it on in the desktop’s settings; "
        "applications already running may have to be restarted."};
}

Check display(const DesktopFacts& facts) {
    if (facts.display && facts.waylandSession)
        return {
            "Display", Result::limited, "Wayland, with an X server for older applications",
            "Holding a key works over X applications only; `quillon show` works everywhere. Log in to an X11 "
            "session for the rest."};
    if (facts.display)
        return {"Display", Result::good, "X11", ""};
    if (facts.waylandSession)
        return {
            "Display", Result::limited, "Wayland without an X server",
            "Holding a key cannot be noticed; use `quillon show` and `quillon sheet`."};
    return {
        "Display", Result::missing, "cannot be reached",
        "Start Quillon in a graphical session, or set DISPLAY."};
}

Check inputExtension(const DesktopFacts& facts) {
    if (facts.inputExtension)
        return {"XInput", Result::good, "version " + *facts.inputExtension, ""};
    return {
        "XInput", Result::missing, "is older than version 2.2 or absent",
        "Use an X server that offers XInput 2.2; without it a click or a key does not spoil a hold."};
}

Check keyboardExtension(const DesktopFacts& facts) {
    if (facts.keyboardExtension)
        return {"XKB", Result::good, "is there", ""};
    return {
        "XKB", Result::missing, "is absent",
        "Use an X server that offers XKB; without it a held key cannot be noticed."};
}

Check shapeExtension(const DesktopFacts& facts) {
    if (facts.shapeExtension)
        return {"SHAPE", Result::good, "is there", ""};
    return {"SHAPE", Result::limited, "is absent", "Panels have square corners without a compositor."};
}

Check windowManager(const DesktopFacts& facts) {
    if (facts.windowManager)
        return {"Window manager", Result::good, *facts.windowManager, ""};
    return {
        "Window manager", Result::limited, "none that tells the active window",
        "Quillon takes the application that has the keyboard; start a window manager for more."};
}

Check compositor(const DesktopFacts& facts) {
    if (facts.compositor)
        return {"Compositor", Result::good, "runs", ""};
    return {
        "Compositor", Result::limited, "none runs", "Panels are cut out without shadows; nothing is lost."};
}

Check trayHost(const DesktopFacts& facts) {
    if (facts.inTray == true)
        return {"Tray", Result::good, "shows Quillon’s icon", ""};
    if (facts.trayHost && !facts.inTray)
        return {"Tray", Result::good, "can show Quillon’s icon", ""};
    return {
        "Tray", Result::limited,
        facts.trayHost ? "there is one, which does not show Quillon’s icon" : "there is none",
        "Start quillon again to reach its menu, or use `quillon show` and `quillon quit`."};
}

Check gtk2Programs(const DesktopFacts& facts) {
    std::string names;
    for (const std::string& name : facts.silentGtk2Programs)
        names += (names.empty() ? "" : ", ") + name;
    return {
        "GTK 2", Result::limited, names + " cannot be read",
        "Install the package libatk-adaptor, set GTK_MODULES=gail:atk-bridge for the whole session, and "
        "start "
        "the programs again."};
}

Check frontApplication(const DesktopFacts& facts) {
    if (!facts.front)
        return {"Front application", Result::limited, "none", "Bring an application's window to the front."};
    const RunningApp& app = *facts.front;
    return {
        "Front application", Result::good,
        app.name + " (" + app.bundleID + ", process " + std::to_string(app.pid) + ")", ""};
}

/// What is noticed of one kind of use.
struct Watcher {
    std::string subject;
    std::string object;  ///< what it notices
    std::string lacking; ///< what of the desktop it would need; "" when all is there
    std::string remedy;  ///< against that
    bool Watching::*isOn;
    std::string switchedOnBy; ///< where it is not on although it could be
};

Check watcherCheck(const Watcher& watcher, const DesktopFacts& facts) {
    if (!watcher.lacking.empty())
        return {
            watcher.subject, Result::limited, watcher.object + " are not noticed: " + watcher.lacking,
            watcher.remedy};
    if (facts.watching && !((*facts.watching).*watcher.isOn))
        return {
            watcher.subject, Result::limited, "does not notice " + watcher.object + " now",
            watcher.switchedOnBy};
    const std::string finding = (facts.watching ? "notices " : "can notice ") + watcher.object;
    if (facts.waylandSession)
        return {
            watcher.subject, Result::limited, finding + " in X applications only",
            "Log in to an X11 session for the rest."};
    return {watcher.subject, Result::good, finding, ""};
}

Check holdWatcher(const DesktopFacts& facts) {
    const bool can = facts.display && facts.keyboardExtension;
    return watcherCheck(
        {.subject = "Hold watcher",
         .object = "held keys",
         .lacking = can ? "" : "there is no X server that tells them",
         .remedy = "Use `quillon show`, or log in to an X11 session.",
         .isOn = &Watching::holds,
         .switchedOnBy = "Start Quillon again."},
        facts);
}

bool menusAreReadable(const DesktopFacts& facts) {
    return facts.accessibilityBus && facts.accessibilityOn.value_or(true);
}

Check clickWatcher(const DesktopFacts& facts) {
    const bool input = facts.display && facts.inputExtension;
    return watcherCheck(
        {.subject = "Click watcher",
         .object = "clicks on menu commands",
         .lacking = !input                     ? "there is no X server with XInput 2.2"
                    : !menusAreReadable(facts) ? "menus cannot be read"
                                               : "",
         .remedy = input ? "See Accessibility above." : "Log in to an X11 session.",
         .isOn = &Watching::clicks,
         .switchedOnBy = "Allow accessibility in Quillon’s menu, and have nudgesOn be true in its settings."},
        facts);
}

Check typedWatcher(const DesktopFacts& facts) {
    const bool input = facts.display && facts.inputExtension && facts.keyboardExtension;
    return watcherCheck(
        {.subject = "Typed watcher",
         .object = "typed shortcuts",
         .lacking = !input                     ? "there is no X server with XInput 2.2 and XKB"
                    : !facts.keymap            ? "the keyboard’s map cannot be read"
                    : !menusAreReadable(facts) ? "menus cannot be read"
                                               : "",
         .remedy = !input          ? "Log in to an X11 session."
                   : !facts.keymap ? "Choose a keyboard layout, such as with `setxkbmap us`."
                                   : "See Accessibility above.",
         .isOn = &Watching::typing,
         .switchedOnBy =
             "Allow accessibility in Quillon’s menu, and have countTyped be true in its settings."},
        facts);
}

Check instance(const DesktopFacts& facts) {
    if (facts.instanceRunning)
        return {"Quillon", Result::good, "runs", ""};
    return {"Quillon", Result::limited, "does not run", "Start it with `quillon`."};
}

} // namespace

std::vector<Check> diagnose(const DesktopFacts& facts) {
    std::vector<Check> checks{
        sessionBus(facts), accessibilityBus(facts), accessibilitySwitch(facts), display(facts)};
    if (facts.display) {
        for (const auto& check :
             {inputExtension, keyboardExtension, shapeExtension, windowManager, compositor})
            checks.push_back(check(facts));
    }
    if (!facts.silentGtk2Programs.empty())
        checks.push_back(gtk2Programs(facts));
    checks.push_back(trayHost(facts));
    if (facts.display)
        checks.push_back(frontApplication(facts));
    checks.push_back(instance(facts));
    for (const auto& check : {holdWatcher, clickWatcher, typedWatcher})
        checks.push_back(check(facts));
    return checks;
}

} // namespace quillon
