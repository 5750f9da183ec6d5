#include "desktop_facts.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillon {

namespace {

using Result = Check::Result;

/// Where the tools for translators find its sentences.
struct Doctor {
    Q_DECLARE_TR_FUNCTIONS(Doctor)
};

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

Check checked(const QString& subject, Result result, const QString& finding, const QString& remedy) {
    return {subject.toStdString(), result, finding.toStdString(), remedy.toStdString()};
}

Check sessionBus(const DesktopFacts& facts) {
    switch (facts.sessionBus) {
    case BusState::answers:
        return checked(Doctor::tr("Session bus"), Result::good, Doctor::tr("answers"), QString());
    case BusState::silent:
        return checked(
            Doctor::tr("Session bus"), Result::missing, Doctor::tr("takes connections and does not answer"),
            Doctor::tr("Log out and in again; every program of this session waits for it."));
    case BusState::absent: break;
    }
    return checked(
        Doctor::tr("Session bus"), Result::missing, Doctor::tr("cannot be reached"),
        Doctor::tr("Start Quillon from a desktop session, or with dbus-run-session."));
}

Check accessibilityBus(const DesktopFacts& facts) {
    if (facts.accessibilityBus)
        return checked(Doctor::tr("Accessibility bus"), Result::good, Doctor::tr("answers"), QString());
    return checked(
        Doctor::tr("Accessibility bus"), Result::missing, Doctor::tr("cannot be reached"),
        Doctor::tr("Install the package at-spi2-core and log in again."));
}

Check accessibilitySwitch(const DesktopFacts& facts) {
    if (!facts.accessibilityBus)
        return checked(
            Doctor::tr("Accessibility"), Result::missing, Doctor::tr("unknown without its bus"), QString());
    if (!facts.accessibilityOn)
        return checked(
            Doctor::tr("Accessibility"), Result::good, Doctor::tr("has no switch on this desktop"),
            QString());
    if (*facts.accessibilityOn)
        return checked(Doctor::tr("Accessibility"), Result::good, Doctor::tr("is on"), QString());
    return checked(
        Doctor::tr("Accessibility"), Result::missing, Doctor::tr("is off"),
        Doctor::tr("Choose “Allow Accessibility…” in Quillon’s menu, or turn it on in the desktop’s "
                   "settings; applications already running may have to be restarted."));
}

Check display(const DesktopFacts& facts) {
    if (facts.display && facts.waylandSession)
        return checked(
            Doctor::tr("Display"), Result::limited,
            Doctor::tr("Wayland, with an X server for older applications"),
            Doctor::tr("Holding a key works over X applications only; `quillon show` works everywhere. Log "
                       "in to an X11 session for the rest."));
    if (facts.display)
        return checked(Doctor::tr("Display"), Result::good, Doctor::tr("X11"), QString());
    if (facts.waylandSession)
        return checked(
            Doctor::tr("Display"), Result::limited, Doctor::tr("Wayland without an X server"),
            Doctor::tr("Holding a key cannot be noticed; use `quillon show` and `quillon sheet`."));
    return checked(
        Doctor::tr("Display"), Result::missing, Doctor::tr("cannot be reached"),
        Doctor::tr("Start Quillon in a graphical session, or set DISPLAY."));
}

Check inputExtension(const DesktopFacts& facts) {
    if (facts.inputExtension)
        return checked(
            Doctor::tr("XInput"), Result::good, Doctor::tr("version %1").arg(text(*facts.inputExtension)),
            QString());
    return checked(
        Doctor::tr("XInput"), Result::missing, Doctor::tr("is older than version 2.2 or absent"),
        Doctor::tr(
            "Use an X server that offers XInput 2.2; without it a click or a key does not spoil a hold."));
}

Check keyboardExtension(const DesktopFacts& facts) {
    if (facts.keyboardExtension)
        return checked(Doctor::tr("XKB"), Result::good, Doctor::tr("is there"), QString());
    return checked(
        Doctor::tr("XKB"), Result::missing, Doctor::tr("is absent"),
        Doctor::tr("Use an X server that offers XKB; without it a held key cannot be noticed."));
}

Check shapeExtension(const DesktopFacts& facts) {
    if (facts.shapeExtension)
        return checked(Doctor::tr("SHAPE"), Result::good, Doctor::tr("is there"), QString());
    return checked(
        Doctor::tr("SHAPE"), Result::limited, Doctor::tr("is absent"),
        Doctor::tr("Panels have square corners without a compositor."));
}

Check windowManager(const DesktopFacts& facts) {
    if (facts.windowManager)
        return checked(Doctor::tr("Window manager"), Result::good, text(*facts.windowManager), QString());
    return checked(
        Doctor::tr("Window manager"), Result::limited, Doctor::tr("none that tells the active window"),
        Doctor::tr("Quillon takes the application that has the keyboard; start a window manager for more."));
}

Check compositor(const DesktopFacts& facts) {
    if (facts.compositor)
        return checked(Doctor::tr("Compositor"), Result::good, Doctor::tr("runs"), QString());
    return checked(
        Doctor::tr("Compositor"), Result::limited, Doctor::tr("none runs"),
        Doctor::tr("Panels are cut out without shadows; nothing is lost."));
}

Check trayHost(const DesktopFacts& facts) {
    if (facts.inTray == true)
        return checked(Doctor::tr("Tray"), Result::good, Doctor::tr("shows Quillon’s icon"), QString());
    if (facts.trayHost && !facts.inTray)
        return checked(Doctor::tr("Tray"), Result::good, Doctor::tr("can show Quillon’s icon"), QString());
    return checked(
        Doctor::tr("Tray"), Result::limited,
        facts.trayHost ? Doctor::tr("there is one, which does not show Quillon’s icon")
                       : Doctor::tr("there is none"),
        Doctor::tr("Start quillon again to reach its menu, or use `quillon show` and `quillon quit`."));
}

Check gtk2Programs(const DesktopFacts& facts) {
    QStringList names;
    for (const std::string& name : facts.silentGtk2Programs)
        names.append(text(name));
    return checked(
        Doctor::tr("GTK 2"), Result::limited,
        Doctor::tr("%1 cannot be read").arg(names.join(QStringLiteral(", "))),
        Doctor::tr("Install the package libatk-adaptor, set GTK_MODULES=gail:atk-bridge for the whole "
                   "session, and start the programs again."));
}

Check frontApplication(const DesktopFacts& facts) {
    if (!facts.front)
        return checked(
            Doctor::tr("Front application"), Result::limited, Doctor::tr("none"),
            Doctor::tr("Bring an application's window to the front."));
    const RunningApp& app = *facts.front;
    return checked(
        Doctor::tr("Front application"), Result::good,
        Doctor::tr("%1 (%2, process %3)").arg(text(app.name), text(app.bundleID), QString::number(app.pid)),
        QString());
}

/// The sentences about one kind of use that is noticed.
struct WatcherTexts {
    QString subject;
    QString notices;   ///< the program notices it
    QString noticesX;  ///< in X applications only
    QString canNotice; ///< the program does not run, but could
    QString canNoticeX;
    QString isOff;        ///< the running program does not notice it
    QString switchedOnBy; ///< against that
};

/// What of the desktop it would need, and the remedy.
struct Lack {
    QString finding;
    QString remedy;
};

Check watcherCheck(
    const WatcherTexts& texts, const std::optional<Lack>& lack, bool Watching::*isOn,
    const DesktopFacts& facts) {
    if (lack)
        return checked(texts.subject, Result::limited, lack->finding, lack->remedy);
    if (facts.watching && !((*facts.watching).*isOn))
        return checked(texts.subject, Result::limited, texts.isOff, texts.switchedOnBy);
    if (facts.waylandSession)
        return checked(
            texts.subject, Result::limited, facts.watching ? texts.noticesX : texts.canNoticeX,
            Doctor::tr("Log in to an X11 session for the rest."));
    return checked(texts.subject, Result::good, facts.watching ? texts.notices : texts.canNotice, QString());
}

Check holdWatcher(const DesktopFacts& facts) {
    const bool can = facts.display && facts.keyboardExtension;
    const WatcherTexts texts{
        .subject = Doctor::tr("Hold watcher"),
        .notices = Doctor::tr("notices held keys"),
        .noticesX = Doctor::tr("notices held keys in X applications only"),
        .canNotice = Doctor::tr("can notice held keys"),
        .canNoticeX = Doctor::tr("can notice held keys in X applications only"),
        .isOff = Doctor::tr("does not notice held keys now"),
        .switchedOnBy = Doctor::tr("Start Quillon again.")};
    const Lack noServer{
        Doctor::tr("held keys are not noticed: there is no X server that tells them"),
        Doctor::tr("Use `quillon show`, or log in to an X11 session.")};
    return watcherCheck(texts, can ? std::nullopt : std::optional(noServer), &Watching::holds, facts);
}

bool menusAreReadable(const DesktopFacts& facts) {
    return facts.accessibilityBus && facts.accessibilityOn.value_or(true);
}

std::optional<Lack> lackForClicks(const DesktopFacts& facts) {
    if (!facts.display || !facts.inputExtension)
        return Lack{
            Doctor::tr("clicks on menu commands are not noticed: there is no X server with XInput 2.2"),
            Doctor::tr("Log in to an X11 session.")};
    if (!menusAreReadable(facts))
        return Lack{
            Doctor::tr("clicks on menu commands are not noticed: menus cannot be read"),
            Doctor::tr("See Accessibility above.")};
    return std::nullopt;
}

Check clickWatcher(const DesktopFacts& facts) {
    const WatcherTexts texts{
        .subject = Doctor::tr("Click watcher"),
        .notices = Doctor::tr("notices clicks on menu commands"),
        .noticesX = Doctor::tr("notices clicks on menu commands in X applications only"),
        .canNotice = Doctor::tr("can notice clicks on menu commands"),
        .canNoticeX = Doctor::tr("can notice clicks on menu commands in X applications only"),
        .isOff = Doctor::tr("does not notice clicks on menu commands now"),
        .switchedOnBy =
            Doctor::tr("Allow accessibility in Quillon’s menu, and have nudgesOn be true in its settings.")};
    return watcherCheck(texts, lackForClicks(facts), &Watching::clicks, facts);
}

std::optional<Lack> lackForTyping(const DesktopFacts& facts) {
    if (!facts.display || !facts.inputExtension || !facts.keyboardExtension)
        return Lack{
            Doctor::tr("typed shortcuts are not noticed: there is no X server with XInput 2.2 and XKB"),
            Doctor::tr("Log in to an X11 session.")};
    if (!facts.keymap)
        return Lack{
            Doctor::tr("typed shortcuts are not noticed: the keyboard’s map cannot be read"),
            Doctor::tr("Choose a keyboard layout, such as with `setxkbmap us`.")};
    if (!menusAreReadable(facts))
        return Lack{
            Doctor::tr("typed shortcuts are not noticed: menus cannot be read"),
            Doctor::tr("See Accessibility above.")};
    return std::nullopt;
}

Check typedWatcher(const DesktopFacts& facts) {
    const WatcherTexts texts{
        .subject = Doctor::tr("Typed watcher"),
        .notices = Doctor::tr("notices typed shortcuts"),
        .noticesX = Doctor::tr("notices typed shortcuts in X applications only"),
        .canNotice = Doctor::tr("can notice typed shortcuts"),
        .canNoticeX = Doctor::tr("can notice typed shortcuts in X applications only"),
        .isOff = Doctor::tr("does not notice typed shortcuts now"),
        .switchedOnBy = Doctor::tr(
            "Allow accessibility in Quillon’s menu, and have countTyped be true in its settings.")};
    return watcherCheck(texts, lackForTyping(facts), &Watching::typing, facts);
}

Check instance(const DesktopFacts& facts) {
    if (facts.instanceRunning)
        return checked(Doctor::tr("Quillon"), Result::good, Doctor::tr("runs"), QString());
    return checked(
        Doctor::tr("Quillon"), Result::limited, Doctor::tr("does not run"),
        Doctor::tr("Start it with `quillon`."));
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
