#include "fake_app_process.h"
#include "kill_accessibility_bus.h"

#include <quillon/app/platform/linux/atspi/accessibility_bus.h>
#include <quillon/app/platform/linux/atspi/atspi_menu_reader.h>
#include <quillon/app/platform/linux/atspi/bus_values.h>
#include <quillon/app/platform/linux/atspi/running_apps.h>
#include <quillon/kit/menu/menu_parser.h>
#include <quillon/tests/support/system/bus_daemon.h>
#include <quillon/tests/support/system/environment_variable.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <systemd/sd-bus.h>
#include <thread>

namespace quillon {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// Upper bounds for a machine that is busy with other things too. Waiting for every request by itself would
// take minutes; one that waited for the whole reading's limit, five seconds.
constexpr auto oneSilence = 3s; ///< a reading that waits once for something that never comes
/// Limits that no machine is too busy for, and less than it takes to wait for one of them.
constexpr atspi::ReadLimits patient{.call = 10s, .silence = 10s, .whole = 60s};
constexpr auto noSilence = 8s;

struct TimedReading {
    MenuReading reading;
    Clock::duration took;
};

TimedReading
read(const FakeAppProcess& process, std::stop_token stop = {}, const atspi::ReadLimits& limits = {}) {
    RunningApp app;
    app.pid = process.pid();
    AtspiMenuReader reader(limits);
    const auto start = Clock::now();
    MenuReading reading = reader.readMenus(app, stop);
    return {std::move(reading), Clock::now() - start};
}

std::size_t count(const std::vector<RawMenuItem>& items) {
    std::size_t sum = items.size();
    for (const RawMenuItem& item : items)
        sum += count(item.children);
    return sum;
}

/// What every bad day must leave unharmed: the next application is read in full.
void expectNextReadsNormally() {
    const FakeAppProcess next({"--items", "120"});
    ASSERT_TRUE(next.isReady());
    const TimedReading read = quillon::read(next, {}, patient);
    EXPECT_EQ(read.reading.outcome, ReadOutcome::complete);
    EXPECT_EQ(count(read.reading.menuBar), 120U);
    EXPECT_LT(read.took, noSilence);
}

TEST(BadDay, AStoppedApplicationCostsOneSecond) {
    const FakeAppProcess process({"--items", "2000", "--stop-after", "300"});
    const auto [reading, took] = read(process);
    EXPECT_EQ(reading.outcome, ReadOutcome::partial);
    EXPECT_FALSE(reading.menuBar.empty());
    EXPECT_GE(took, 1s);
    EXPECT_LT(took, oneSilence);
    expectNextReadsNormally();
}

TEST(BadDay, AnApplicationThatWasStoppedBeforeCostsOneSecond) {
    const FakeAppProcess process({"--items", "200"});
    kill(process.pid(), SIGSTOP);
    const auto [reading, took] = read(process);
    EXPECT_EQ(reading.outcome, ReadOutcome::partial);
    EXPECT_TRUE(reading.menuBar.empty());
    EXPECT_LT(took, oneSilence);
    expectNextReadsNormally();
    process.resume();
    EXPECT_EQ(count(read(process).reading.menuBar), 200U);
}

TEST(BadDay, AStoppedApplicationDoesNotDelayTheReadingOfAnother) {
    const FakeAppProcess stopped({});
    kill(stopped.pid(), SIGSTOP);
    expectNextReadsNormally();
}

TEST(BadDay, AnApplicationThatExitsLeavesWhatWasRead) {
    const FakeAppProcess process({"--items", "2000", "--exit-after", "300"});
    const auto [reading, took] = read(process);
    EXPECT_EQ(reading.outcome, ReadOutcome::partial);
    EXPECT_FALSE(reading.menuBar.empty());
    EXPECT_LT(took, noSilence);
    expectNextReadsNormally();
}

TEST(BadDay, ErrorsAreMissingFactsAndNothingElse) {
    const FakeAppProcess atOnce({"--items", "200", "--errors-after", "1"});
    EXPECT_TRUE(read(atOnce).reading.menuBar.empty());
    const FakeAppProcess later({"--items", "200", "--errors-after", "100"});
    const auto [reading, took] = read(later);
    EXPECT_FALSE(reading.menuBar.empty());
    EXPECT_LT(count(reading.menuBar), 200U);
    EXPECT_LT(took, noSilence);
    expectNextReadsNormally();
}

TEST(BadDay, AMenuThatHoldsItselfIsReadOnce) {
    for (const char* toolkit : {"gtk", "Gecko"}) {
        const FakeAppProcess process({"--items", "50", "--cycle", "--toolkit", toolkit});
        const auto [reading, took] = read(process);
        EXPECT_EQ(reading.outcome, ReadOutcome::complete) << toolkit;
        EXPECT_EQ(count(reading.menuBar), 50U) << toolkit;
        EXPECT_LT(took, noSilence);
    }
    expectNextReadsNormally();
}

TEST(BadDay, AHundredThousandItemsAreCut) {
    const FakeAppProcess process({"--items", "100000", "--flat"});
    // Their number is to end it and not the time, which a busy machine needs more of.
    const auto [reading, took] = read(process, {}, patient);
    EXPECT_EQ(reading.outcome, ReadOutcome::limited);
    EXPECT_GE(count(reading.menuBar), 4000U);
    EXPECT_LE(count(reading.menuBar), 16000U);
    EXPECT_LT(took, 20s);
    expectNextReadsNormally();
}

TEST(BadDay, ATitleOfAMegabyteIsCut) {
    const FakeAppProcess process({"--items", "50", "--title-bytes", "1000000"});
    const auto [reading, took] = read(process);
    EXPECT_EQ(reading.outcome, ReadOutcome::complete);
    ASSERT_EQ(count(reading.menuBar), 50U);
    EXPECT_EQ(reading.menuBar[0].children[0].title.size(), atspi::ReadLimits().titleBytes);
    EXPECT_LT(took, noSilence);
    expectNextReadsNormally();
}

TEST(BadDay, TheBusThrowsOutWhoSendsBrokenText) {
    const FakeAppProcess process({"--items", "50", "--invalid-utf8"});
    const auto [reading, took] = read(process);
    EXPECT_EQ(reading.outcome, ReadOutcome::partial);
    EXPECT_LT(took, oneSilence);
    expectNextReadsNormally();
}

TEST(BadDay, BrokenTextThatComesThroughReadsAsAReplacementCharacter) {
    sd_bus* bus = nullptr;
    sd_bus_message* message = nullptr;
    char* space = nullptr;
    const std::string broken = "New \xff File";
    ASSERT_GE(sd_bus_open_user(&bus), 0);
    ASSERT_GE(sd_bus_message_new_signal(bus, &message, "/", "org.example.Text", "Broken"), 0);
    ASSERT_GE(sd_bus_message_append_string_space(message, broken.size(), &space), 0);
    broken.copy(space, broken.size());
    ASSERT_GE(sd_bus_message_seal(message, 1, 0), 0);
    EXPECT_EQ(atspi::readText(message, 100), "\ufffd");
    sd_bus_message_unref(message);
    sd_bus_flush_close_unref(bus);
}

TEST(BadDay, AnObjectThatNeverAnswersCostsOneSecondAndItself) {
    const FakeAppProcess usual({"--items", "400"});
    // The fourth object is the menu bar, the fifth its first menu, the sixth that menu's first item.
    const FakeAppProcess process({"--items", "400", "--mute-path", "/org/a11y/atspi/accessible/6"});
    const auto [reading, took] = read(process);
    EXPECT_EQ(reading.outcome, ReadOutcome::partial);
    EXPECT_EQ(count(reading.menuBar), 399U);
    EXPECT_LT(took, oneSilence);
    expectNextReadsNormally();
}

TEST(BadDay, ACallThatIsNeverAnsweredLeavesTheRestOfTheItem) {
    const FakeAppProcess process(
        {"--items", "400", "--mute-path", "/org/a11y/atspi/accessible/6", "--mute-member", "GetKeyBinding"});
    const auto [reading, took] = read(process);
    EXPECT_EQ(reading.outcome, ReadOutcome::partial);
    EXPECT_EQ(count(reading.menuBar), 400U);
    EXPECT_EQ(reading.menuBar[0].children[0].title, "Item 1");
    EXPECT_EQ(reading.menuBar[0].children[0].shortcut(), std::nullopt);
    EXPECT_LT(took, oneSilence);
}

TEST(BadDay, ASlowApplicationIsReadInFull) {
    const FakeAppProcess process({"--items", "40", "--delay", "20"});
    const auto [reading, took] = read(process, {}, {.whole = 60s});
    EXPECT_EQ(reading.outcome, ReadOutcome::complete);
    EXPECT_EQ(count(reading.menuBar), 40U);
}

TEST(BadDay, AVerySlowApplicationEndsAtTheWholeLimit) {
    const FakeAppProcess process({"--items", "400", "--delay", "50"});
    const auto [reading, took] = read(process);
    EXPECT_EQ(reading.outcome, ReadOutcome::partial);
    EXPECT_FALSE(reading.menuBar.empty());
    EXPECT_LT(took, 7s);
}

TEST(BadDay, StoppingAReadingTakesEffectAtOnce) {
    const FakeAppProcess process({"--items", "100"});
    kill(process.pid(), SIGSTOP);
    std::stop_source stop;
    std::jthread stopper([&stop] {
        std::this_thread::sleep_for(200ms);
        stop.request_stop();
    });
    const auto [reading, took] = read(process, stop.get_token(), patient);
    EXPECT_EQ(reading.outcome, ReadOutcome::partial);
    EXPECT_LT(took, noSilence);
}

TEST(BadDay, WithoutASessionBusNothingIsRead) {
    const FakeAppProcess process({});
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    const auto [reading, took] = read(process);
    EXPECT_EQ(reading.outcome, ReadOutcome::unavailable);
    EXPECT_TRUE(reading.menuBar.empty());
    EXPECT_LT(took, noSilence);
    EXPECT_EQ(atspi::sharingApps(), std::nullopt);
    const atspi::AccessibilityBusState state = atspi::probeAccessibilityBus();
    EXPECT_FALSE(state.hasSessionBus);
    EXPECT_FALSE(state.hasAccessibilityBus);
    EXPECT_EQ(state.isEnabled, std::nullopt);
}

TEST(BadDay, WithoutAnAccessibilityBusNothingIsRead) {
    const FakeAppProcess process({});
    const BusDaemon bare;
    ASSERT_TRUE(bare.isRunning());
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", bare.address());
    EXPECT_EQ(read(process).reading.outcome, ReadOutcome::unavailable);
    const atspi::AccessibilityBusState state = atspi::probeAccessibilityBus();
    EXPECT_TRUE(state.hasSessionBus);
    EXPECT_FALSE(state.hasAccessibilityBus);
    EXPECT_EQ(state.isEnabled, std::nullopt);
}

/// Waits until the session has started another accessibility bus.
bool accessibilityBusComesBack() {
    const auto until = Clock::now() + 10s;
    while (Clock::now() < until) {
        if (atspi::probeAccessibilityBus().hasAccessibilityBus && FakeAppProcess({}).isReady())
            return true;
        std::this_thread::sleep_for(50ms);
    }
    return false;
}

TEST(BadDay, TheAccessibilityBusMayGoAwayAndComeBack) {
    {
        const FakeAppProcess process({"--items", "200", "--delay", "10"});
        std::jthread murderer([] {
            std::this_thread::sleep_for(300ms);
            killAccessibilityBus();
        });
        const auto [reading, took] = read(process);
        EXPECT_EQ(reading.outcome, ReadOutcome::partial);
        EXPECT_LT(took, oneSilence);
    }
    ASSERT_TRUE(accessibilityBusComesBack());
    expectNextReadsNormally();
}

TEST(AccessibilityBus, IsFoundWhereItRuns) {
    const FakeAppProcess process({});
    const atspi::AccessibilityBusState state = atspi::probeAccessibilityBus();
    EXPECT_TRUE(state.hasSessionBus);
    EXPECT_TRUE(state.hasAccessibilityBus);
    EXPECT_TRUE(state.isEnabled.has_value());
}

TEST(SharingApps, TellTheirNameProcessAndToolkit) {
    const FakeAppProcess process({"--name", "Sketchpad", "--toolkit", "Qt"});
    const auto apps = atspi::sharingApps();
    ASSERT_TRUE(apps);
    ASSERT_EQ(apps->size(), 1U);
    const atspi::SharingApp& app = apps->front();
    EXPECT_EQ(app.pid, process.pid());
    EXPECT_EQ(app.name, "Sketchpad");
    EXPECT_EQ(app.toolkit, "Qt");
    EXPECT_EQ(app.toolkitVersion, "3.24.38");
    EXPECT_EQ(app.busName.front(), ':');
}

TEST(SharingApps, AStoppedOneIsListedWithoutItsName) {
    const FakeAppProcess process({"--name", "Sketchpad"});
    kill(process.pid(), SIGSTOP);
    const auto start = Clock::now();
    const auto apps = atspi::sharingApps();
    EXPECT_LT(Clock::now() - start, oneSilence);
    ASSERT_TRUE(apps);
    ASSERT_EQ(apps->size(), 1U);
    EXPECT_EQ(apps->front().pid, process.pid());
    EXPECT_EQ(apps->front().name, "");
}

TEST(SharingApps, StoppedOnesCostOthersNothing) {
    std::deque<FakeAppProcess> hung;
    for (int i = 0; i < 6; ++i)
        hung.emplace_back(std::vector<std::string>{});
    const FakeAppProcess healthy({"--name", "Sketchpad", "--toolkit", "Qt"});
    for (const FakeAppProcess& process : hung)
        kill(process.pid(), SIGSTOP);
    const auto start = Clock::now();
    const auto apps = atspi::sharingApps();
    EXPECT_LT(Clock::now() - start, oneSilence);
    ASSERT_TRUE(apps);
    ASSERT_EQ(apps->size(), 7U);
    EXPECT_EQ(apps->back().pid, healthy.pid());
    EXPECT_EQ(apps->back().name, "Sketchpad");
    EXPECT_EQ(apps->back().toolkit, "Qt");
    EXPECT_EQ(apps->back().toolkitVersion, "3.24.38");
}

} // namespace
} // namespace quillon
