#include <quillon/app/core/click_watcher.h>
#include <quillon/app/platform/fake/fake_clock.h>
#include <quillon/app/platform/fake/fake_menu_use.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using namespace menu_use;

class ClickWatcherTest : public testing::Test {
  protected:
    static constexpr std::int64_t ownPid = 1;

    ClickWatcherTest() {
        watcher.onPick = [this](const auto& app, const auto& titles, const auto& shortcut) {
            picks.push_back({app, titles, shortcut});
        };
    }
    void open(const RunningApp& app) {
        menus.tell(Opened{app});
        menus.tell(Pointed{1});
        menus.tell(Told{1, {.path = path, .shortcut = keys, .frame = Rect{0, 0, 100, 20}}});
    }
    void choose() {
        menus.tell(Released{{50, 10}});
        menus.tell(Closed{});
    }

    const RunningApp sketch{10, "org.example.sketch", "Sketch", {}};
    const std::vector<std::string> path{"File", "Save"};
    const Shortcut keys{Modifiers::control, Key::character("S")};
    FakeClock clock;
    FakeMenuUse menus;
    ClickWatcher watcher{menus, clock, ownPid};
    std::vector<MenuPick> picks;
};

TEST_F(ClickWatcherTest, TellsWhatWasChosen) {
    watcher.start();
    open(sketch);
    choose();
    EXPECT_EQ(picks, (std::vector<MenuPick>{{sketch, path, keys}}));
}

TEST_F(ClickWatcherTest, MeasuresByTheClockThatNeverJumps) {
    watcher.start();
    open(sketch);
    menus.tell(Released{{50, 10}});
    clock.setNow(distantPast);
    menus.tell(Closed{});
    EXPECT_EQ(picks.size(), 1U);
    open(sketch);
    menus.tell(Released{{50, 10}});
    clock.advance(Seconds(1.1));
    menus.tell(Closed{});
    EXPECT_EQ(picks.size(), 1U);
}

TEST_F(ClickWatcherTest, LeavesThisProgramsMenusAlone) {
    watcher.start();
    open({ownPid, "app.quillon.Quillon", "Quillon", {}});
    choose();
    EXPECT_TRUE(picks.empty());
}

TEST_F(ClickWatcherTest, ListensOnlyWhileItIsStarted) {
    EXPECT_EQ(menus.monitors(), 0U);
    watcher.start();
    watcher.start();
    EXPECT_EQ(menus.monitors(), 1U);
    EXPECT_TRUE(watcher.isWatching());
    watcher.stop();
    watcher.stop();
    EXPECT_EQ(menus.monitors(), 0U);
    EXPECT_FALSE(watcher.isWatching());
}

TEST_F(ClickWatcherTest, ForgetsAMenuThatWasOpenWhenItWasStopped) {
    watcher.start();
    open(sketch);
    watcher.stop();
    EXPECT_EQ(watcher.detector(), MenuClickDetector());
    watcher.start();
    choose();
    EXPECT_TRUE(picks.empty());
}

TEST_F(ClickWatcherTest, MayBeStoppedByWhatItTells) {
    watcher.onPick = [this](const auto&, const auto&, const auto&) { watcher.stop(); };
    watcher.start();
    open(sketch);
    choose();
    EXPECT_EQ(menus.monitors(), 0U);
}

TEST_F(ClickWatcherTest, NeedsNobodyToTell) {
    watcher.onPick = nullptr;
    watcher.start();
    open(sketch);
    choose();
    EXPECT_TRUE(picks.empty());
}

} // namespace
} // namespace quillon
