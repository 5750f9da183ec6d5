#include <quillon/app/platform/linux/desktop/desktop_facts.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace quillon {
namespace {

DesktopFacts wellDesktop() {
    return {
        .sessionBus = BusState::answers,
        .accessibilityBus = true,
        .accessibilityOn = true,
        .display = true,
        .inputExtension = "2.3",
        .keyboardExtension = true,
        .keymap = true,
        .shapeExtension = true,
        .windowManager = "Openbox",
        .compositor = true,
        .trayHost = true,
        .inTray = true,
        .front = RunningApp{10, "geany", "Geany", {}},
        .instanceRunning = true,
        .watching = Watching{.holds = true, .clicks = true, .typing = true},
    };
}

Check checkOf(const DesktopFacts& facts, const std::string& subject) {
    const auto checks = diagnose(facts);
    const auto found =
        std::ranges::find_if(checks, [&](const Check& check) { return check.subject == subject; });
    return found == checks.end() ? Check{} : *found;
}

TEST(Diagnosis, OfAWellDesktopNeedsNoRemedy) {
    for (const Check& check : diagnose(wellDesktop())) {
        EXPECT_EQ(check.result, Check::Result::good) << check.subject;
        EXPECT_EQ(check.remedy, "") << check.subject;
    }
}

TEST(Diagnosis, OfABareMachineNamesARemedyForWhatIsMissing) {
    for (const std::string subject : {"Session bus", "Accessibility bus", "Display"}) {
        EXPECT_EQ(checkOf({}, subject).result, Check::Result::missing) << subject;
        EXPECT_NE(checkOf({}, subject).remedy, "") << subject;
    }
}

TEST(Diagnosis, TellsASilentSessionBusFromNone) {
    DesktopFacts facts = wellDesktop();
    facts.sessionBus = BusState::silent;
    EXPECT_EQ(checkOf(facts, "Session bus").result, Check::Result::missing);
    EXPECT_EQ(checkOf(facts, "Session bus").finding, "takes connections and does not answer");
    EXPECT_NE(checkOf({}, "Session bus").finding, checkOf(facts, "Session bus").finding);
}

TEST(Diagnosis, NamesGtk2ProgramsThatAreNotOnTheBus) {
    DesktopFacts facts = wellDesktop();
    EXPECT_EQ(checkOf(facts, "GTK 2").subject, "") << "nothing to say";
    facts.silentGtk2Programs = {"gimp-2.10", "hexchat"};
    const Check check = checkOf(facts, "GTK 2");
    EXPECT_EQ(check.result, Check::Result::limited);
    EXPECT_EQ(check.finding, "gimp-2.10, hexchat cannot be read");
    EXPECT_NE(check.remedy.find("libatk-adaptor"), std::string::npos);
    EXPECT_NE(check.remedy.find("GTK_MODULES=gail:atk-bridge"), std::string::npos);
}

TEST(Diagnosis, NamesTheFrontApplication) {
    EXPECT_EQ(checkOf(wellDesktop(), "Front application").finding, "Geany (geany, process 10)");
}

TEST(Diagnosis, AccessibilitySwitchedOffIsMissing) {
    DesktopFacts facts = wellDesktop();
    facts.accessibilityOn = false;
    EXPECT_EQ(checkOf(facts, "Accessibility").result, Check::Result::missing);
    facts.accessibilityOn.reset();
    EXPECT_EQ(checkOf(facts, "Accessibility").result, Check::Result::good);
}

TEST(Diagnosis, ADesktopWithoutExtrasIsStillWell) {
    DesktopFacts facts = wellDesktop();
    facts.compositor = false;
    facts.trayHost = false;
    facts.inTray.reset();
    facts.windowManager.reset();
    facts.front.reset();
    facts.instanceRunning = false;
    for (const Check& check : diagnose(facts))
        EXPECT_NE(check.result, Check::Result::missing) << check.subject;
    for (const std::string subject : {"Compositor", "Tray", "Window manager", "Front application", "Quillon"})
        EXPECT_NE(checkOf(facts, subject).remedy, "") << subject;
}

TEST(Diagnosis, OfTheTrayTellsWhatItShowsAndNotWhatItCould) {
    DesktopFacts facts = wellDesktop();
    EXPECT_EQ(checkOf(facts, "Tray"), (Check{"Tray", Check::Result::good, "shows Quillon’s icon", ""}));
    facts.inTray = false;
    EXPECT_EQ(checkOf(facts, "Tray").result, Check::Result::limited);
    EXPECT_EQ(checkOf(facts, "Tray").finding, "there is one, which does not show Quillon’s icon");
    facts.trayHost = false;
    EXPECT_EQ(checkOf(facts, "Tray").finding, "there is none");
    facts.inTray.reset();
    EXPECT_EQ(checkOf(facts, "Tray").finding, "there is none");
    facts.trayHost = true;
    EXPECT_EQ(checkOf(facts, "Tray"), (Check{"Tray", Check::Result::good, "can show Quillon’s icon", ""}));
}

TEST(Diagnosis, AnOldInputExtensionIsMissing) {
    DesktopFacts facts = wellDesktop();
    facts.inputExtension.reset();
    EXPECT_EQ(checkOf(facts, "XInput").result, Check::Result::missing);
}

TEST(Diagnosis, WaylandIsLimited) {
    DesktopFacts facts = wellDesktop();
    facts.waylandSession = true;
    EXPECT_EQ(checkOf(facts, "Display").result, Check::Result::limited);
    facts.display = false;
    EXPECT_EQ(checkOf(facts, "Display").result, Check::Result::limited);
}

constexpr const char* watchers[] = {"Hold watcher", "Click watcher", "Typed watcher"};

TEST(Diagnosis, TellsWhatTheRunningProgramNotices) {
    EXPECT_EQ(checkOf(wellDesktop(), "Hold watcher").finding, "notices held keys");
    EXPECT_EQ(checkOf(wellDesktop(), "Click watcher").finding, "notices clicks on menu commands");
    EXPECT_EQ(checkOf(wellDesktop(), "Typed watcher").finding, "notices typed shortcuts");
}

TEST(Diagnosis, WhatIsSwitchedOffSaysWhatSwitchesItOn) {
    DesktopFacts facts = wellDesktop();
    facts.watching = Watching{.holds = true, .clicks = false, .typing = true};
    EXPECT_EQ(checkOf(facts, "Click watcher").result, Check::Result::limited);
    EXPECT_NE(checkOf(facts, "Click watcher").remedy.find("nudgesOn"), std::string::npos);
    EXPECT_EQ(checkOf(facts, "Typed watcher").result, Check::Result::good);
    facts.watching->typing = false;
    EXPECT_NE(checkOf(facts, "Typed watcher").remedy.find("countTyped"), std::string::npos);
}

TEST(Diagnosis, TellsWhatCouldBeNoticedWhileTheProgramDoesNotRun) {
    DesktopFacts facts = wellDesktop();
    facts.watching.reset();
    EXPECT_EQ(checkOf(facts, "Typed watcher").finding, "can notice typed shortcuts");
    EXPECT_EQ(checkOf(facts, "Typed watcher").result, Check::Result::good);
}

TEST(Diagnosis, UnderWaylandTheWatchersSeeXApplicationsAlone) {
    DesktopFacts facts = wellDesktop();
    facts.waylandSession = true;
    EXPECT_EQ(checkOf(facts, "Typed watcher").finding, "notices typed shortcuts in X applications only");
    for (const bool isRunning : {true, false}) {
        if (!isRunning)
            facts.watching.reset();
        for (const char* const watcher : watchers) {
            EXPECT_EQ(checkOf(facts, watcher).result, Check::Result::limited) << watcher;
            EXPECT_FALSE(checkOf(facts, watcher).remedy.empty()) << watcher;
        }
    }
}

/// What a desktop lacks, and whether clicks and typing are noticed all the same.
struct Lack {
    const char* what;
    void (*takeAway)(DesktopFacts& facts);
    bool holds;
    bool clicks;
    bool typing;
};

TEST(Diagnosis, SaysWhatTheDesktopLacksForEachWatcher) {
    const Lack lacks[] = {
        {"a display", [](DesktopFacts& facts) { facts.display = false; }, false, false, false},
        {"raw input", [](DesktopFacts& facts) { facts.inputExtension.reset(); }, true, false, false},
        {"XKB", [](DesktopFacts& facts) { facts.keyboardExtension = false; }, false, true, false},
        {"a keymap", [](DesktopFacts& facts) { facts.keymap = false; }, true, true, false},
        {"accessibility", [](DesktopFacts& facts) { facts.accessibilityOn = false; }, true, false, false},
        {"its bus", [](DesktopFacts& facts) { facts.accessibilityBus = false; }, true, false, false},
    };
    for (const Lack& lack : lacks) {
        DesktopFacts facts = wellDesktop();
        lack.takeAway(facts);
        const bool works[] = {lack.holds, lack.clicks, lack.typing};
        for (std::size_t i = 0; i < std::size(watchers); ++i) {
            const Check check = checkOf(facts, watchers[i]);
            EXPECT_EQ(check.result == Check::Result::good, works[i]) << watchers[i] << ", " << lack.what;
            EXPECT_EQ(check.remedy.empty(), works[i]) << watchers[i] << ", " << lack.what;
        }
    }
}

} // namespace
} // namespace quillon
