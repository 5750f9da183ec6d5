#include "fake_app_process.h"
#include "kill_accessibility_bus.h"

#include <quillon/app/platform/linux/atspi/accessibility_bus.h>
#include <quillon/app/platform/linux/atspi/atspi_menu_reader.h>
#include <quillon/app/platform/linux/atspi/menu_bar_memory.h>
#include <quillon/app/platform/linux/atspi/open_menus.h>
#include <quillon/kit/menu/menu_parser.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include <unistd.h>

namespace quillon {
namespace {

using atspi::MenuPlace;
using atspi::OpenMenus;
using testing::ElementsAre;

RunningApp appOf(const FakeAppProcess& process) {
    RunningApp app;
    app.pid = process.pid();
    app.windows = {{7, "Fake"}};
    return app;
}

/// A place in a menu of the fake application, which lays out its menus side by side, each item 20 pixels
/// high.
MenuPlace place(std::size_t level, int item, int items, double scale = 1) {
    const double left = 10 + 200 * static_cast<double>(level);
    return {
        level + 1, level, Rect{left * scale, 20 * scale, 200 * scale, 20 * items * scale},
        Point{(left + 30) * scale, (20 + 20 * item + 7) * scale}};
}

class OpenMenusTest : public testing::TestWithParam<const char*> {
  protected:
    /// Menus of 200 items: "Item 1" is the first one's first, "Submenu 10" its tenth, which holds nine.
    FakeAppProcess start(std::vector<std::string> pointedAt, std::vector<std::string> more = {}) {
        std::vector<std::string> arguments{"--items", "40", "--toolkit", GetParam()};
        for (std::string& name : pointedAt) {
            arguments.emplace_back("--point-at");
            arguments.push_back(std::move(name));
        }
        arguments.insert(arguments.end(), more.begin(), more.end());
        return FakeAppProcess(arguments);
    }
    std::optional<MenuItemFacts> itemAt(const FakeAppProcess& process, const MenuPlace& at) {
        return OpenMenus(appOf(process), m_memory).itemAt(at, {});
    }

    static constexpr int itemsOfMenu = 9 + 3; ///< nine items and three submenus
    std::shared_ptr<atspi::MenuBarMemory> m_memory = atspi::makeMenuBarMemory();
};

INSTANTIATE_TEST_SUITE_P(Toolkits, OpenMenusTest, testing::Values("gtk", "GAIL", "Qt"));

TEST_P(OpenMenusTest, TellsTheItemThatIsPointedAt) {
    const FakeAppProcess process = start({"Menu of Fake", "Item 1"});
    ASSERT_TRUE(process.isReady());
    const auto facts = itemAt(process, place(0, 0, itemsOfMenu));
    ASSERT_TRUE(facts);
    EXPECT_THAT(facts->path, ElementsAre("Menu of Fake", "Item 1"));
    EXPECT_EQ(facts->frame, (Rect{10, 20, 200, 20}));
    EXPECT_TRUE(facts->enabled);
}

TEST_P(OpenMenusTest, PathAndShortcutAreThoseOfTheReader) {
    const FakeAppProcess process = start({"Menu of Fake", "Submenu 10", "Item 13"});
    const auto facts = itemAt(process, place(1, 2, 9));
    ASSERT_TRUE(facts);
    const MenuReading reading = AtspiMenuReader().readMenus(appOf(process), {});
    const auto entries = MenuParser::entries(reading.menuBar, MenuParser::defaultMaxDepth);
    const auto same = std::ranges::find(entries, facts->path, &MenuEntry::path);
    ASSERT_NE(same, entries.end());
    EXPECT_EQ(facts->shortcut, same->shortcut);
}

TEST_P(OpenMenusTest, TellsWhatCannotBeUsed) {
    const FakeAppProcess process = start({"Menu of Fake", "Item 4"});
    const auto facts = itemAt(process, place(0, 3, itemsOfMenu));
    ASSERT_TRUE(facts);
    EXPECT_FALSE(facts->enabled);
}

TEST_P(OpenMenusTest, TellsItInTheDisplaysPixels) {
    const FakeAppProcess process = start({"Menu of Fake", "Item 3"});
    const auto facts = itemAt(process, place(0, 2, itemsOfMenu, 2));
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts->frame, (Rect{20, 120, 400, 40}));
}

TEST_P(OpenMenusTest, ItemsOfSubmenusHaveTheWholePath) {
    const FakeAppProcess process = start({"Menu of Fake", "Submenu 10", "Item 13"});
    const auto facts = itemAt(process, place(1, 2, 9));
    ASSERT_TRUE(facts);
    EXPECT_THAT(facts->path, ElementsAre("Menu of Fake", "Submenu 10", "Item 13"));
    EXPECT_EQ(facts->frame, (Rect{210, 60, 200, 20}));
}

TEST_P(OpenMenusTest, ATitleOfASubmenuIsNoCommandWithAShortcut) {
    const FakeAppProcess process = start({"Menu of Fake", "Submenu 10"});
    const auto facts = itemAt(process, place(0, 9, itemsOfMenu));
    ASSERT_TRUE(facts);
    EXPECT_THAT(facts->path, ElementsAre("Menu of Fake", "Submenu 10"));
    EXPECT_FALSE(facts->shortcut);
}

TEST_P(OpenMenusTest, NoMenuThatIsOpenNoItem) {
    const FakeAppProcess process = start({});
    EXPECT_FALSE(itemAt(process, place(0, 0, itemsOfMenu)));
}

TEST_P(OpenMenusTest, AWindowThatIsNoMenuOfTheBarHasNoItems) {
    const FakeAppProcess process = start({"Menu of Fake", "Item 1"});
    EXPECT_FALSE(itemAt(process, {1, 0, Rect{10, 20, 320, 99}, Point{40, 27}}));
}

TEST_P(OpenMenusTest, OneMoreItemOfAKnownMenuCostsFewQuestions) {
    const FakeAppProcess process = start({"Menu of Fake", "Item 1"}, {});
    OpenMenus menus(appOf(process), m_memory);
    ASSERT_TRUE(menus.itemAt(place(0, 0, itemsOfMenu), {}));
    const std::size_t before = process.calls().size();
    ASSERT_TRUE(menus.itemAt(place(0, 0, itemsOfMenu), {}));
    EXPECT_LE(process.calls().size() - before, 6U);
}

TEST_P(OpenMenusTest, TheMenuBarIsLookedForOnce) {
    const FakeAppProcess process = start({"Menu of Fake", "Item 1"});
    ASSERT_TRUE(itemAt(process, place(0, 0, itemsOfMenu)));
    const std::size_t first = process.calls().size();
    ASSERT_TRUE(itemAt(process, place(0, 0, itemsOfMenu)));
    const std::size_t second = process.calls().size() - first;
    EXPECT_LT(second, first);
    EXPECT_THAT(m_memory->recall(appOf(process)), testing::Ne(std::nullopt));
}

TEST_P(OpenMenusTest, TheMenuBarInASandboxIsLookedForOnceToo) {
    // The bus knows the process of the sandbox's proxy only.
    const auto folder =
        std::filesystem::temp_directory_path() / ("quillon-menus-proxy-" + std::to_string(getpid()));
    std::filesystem::create_directory(folder);
    std::filesystem::create_symlink(QUILLON_FAKE_APP, folder / "xdg-dbus-proxy");
    {
        const FakeAppProcess process(
            {"--window", "Sketch", "--items", "40", "--toolkit", GetParam(), "--point-at", "Menu of Sketch",
             "--point-at", "Item 1"},
            folder / "xdg-dbus-proxy");
        RunningApp app;
        app.pid = getpid();
        app.windows = {{7, "Sketch"}};
        ASSERT_TRUE(OpenMenus(app, m_memory).itemAt(place(0, 0, itemsOfMenu), {}));
        const std::size_t first = process.calls().size();
        ASSERT_TRUE(OpenMenus(app, m_memory).itemAt(place(0, 0, itemsOfMenu), {}));
        EXPECT_LT(process.calls().size() - first, first);
    }
    std::filesystem::remove_all(folder);
}

TEST_P(OpenMenusTest, AHungApplicationIsGivenUpUntilItIsAskedForAnItemAgain) {
    using namespace std::chrono_literals;
    const FakeAppProcess process = start({"Menu of Fake", "Item 1"}, {"--stop-after", "12"});
    atspi::ReadLimits limits = OpenMenus::patience();
    limits.call = limits.silence = 200ms;
    OpenMenus menus(appOf(process), m_memory, limits);
    for (int i = 0; i < 4; ++i)
        menus.itemAt(place(0, 0, itemsOfMenu), {});
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(menus.prepare(place(1, 0, 9), {}));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 150ms) << "given up before";
    process.resume();
    EXPECT_TRUE(menus.itemAt(place(0, 0, itemsOfMenu), {}));
}

TEST_P(OpenMenusTest, WithABusThatWasStartedAnewTheNextMenuIsTold) {
    {
        const FakeAppProcess process = start({"Menu of Fake", "Item 1"});
        OpenMenus menus(appOf(process), m_memory);
        ASSERT_TRUE(menus.itemAt(place(0, 0, itemsOfMenu), {}));
        killAccessibilityBus();
        EXPECT_FALSE(menus.itemAt(place(0, 0, itemsOfMenu), {}));
    }
    const auto isBack = [] { return atspi::probeAccessibilityBus().hasAccessibilityBus; };
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!isBack() && std::chrono::steady_clock::now() < deadline)
        std::this_thread::yield();
    const FakeAppProcess next = start({"Menu of Fake", "Item 1"});
    ASSERT_TRUE(next.isReady());
    EXPECT_TRUE(itemAt(next, place(0, 0, itemsOfMenu)));
}

TEST_P(OpenMenusTest, OfAMenuWith500ItemsOnlyTheOneIsAsked) {
    std::vector<std::string> arguments{"--items",    "500",          "--flat",     "--toolkit", GetParam(),
                                       "--point-at", "Menu of Fake", "--point-at", "Item 450"};
    const FakeAppProcess process(arguments);
    const auto facts = itemAt(process, place(0, 449, 499));
    ASSERT_TRUE(facts);
    EXPECT_THAT(facts->path, ElementsAre("Menu of Fake", "Item 450"));
    EXPECT_LT(process.calls().size(), 60U);
}

} // namespace
} // namespace quillon
