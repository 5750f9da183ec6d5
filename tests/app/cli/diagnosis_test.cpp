#include <quillon/app/cli/diagnosis.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace quillon {
namespace {

DesktopFacts wellDesktop() {
    return {
        .sessionBus = true,
        .accessibilityBus = true,
        .accessibilityOn = true,
        .display = true,
        .inputExtension = "2.3",
        .keyboardExtension = true,
        .shapeExtension = true,
        .windowManager = "Openbox",
        .compositor = true,
        .trayHost = true,
        .front = RunningApp{10, "geany", "Geany", {}},
        .instanceRunning = true,
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
    const auto checks = diagnose({});
    EXPECT_FALSE(allWell(checks));
    for (const std::string subject : {"Session bus", "Accessibility bus", "Display"}) {
        EXPECT_EQ(checkOf({}, subject).result, Check::Result::missing) << subject;
        EXPECT_NE(checkOf({}, subject).remedy, "") << subject;
    }
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
    facts.windowManager.reset();
    facts.front.reset();
    facts.instanceRunning = false;
    EXPECT_TRUE(allWell(diagnose(facts)));
    for (const std::string subject : {"Compositor", "Tray", "Window manager", "Front application", "Quillon"})
        EXPECT_NE(checkOf(facts, subject).remedy, "") << subject;
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

} // namespace
} // namespace quillon
