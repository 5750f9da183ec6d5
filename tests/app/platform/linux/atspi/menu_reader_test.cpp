#include "fake_app_process.h"

#include <quillon/app/platform/linux/atspi/atspi_menu_reader.h>
#include <quillon/kit/menu/menu_parser.h>
#include <quillon/tests/support/recordings/recordings.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <set>
#include <thread>
#include <unistd.h>

namespace quillon {
namespace {

using nlohmann::json;

RunningApp appOf(const FakeAppProcess& process, std::vector<std::string> windowTitles = {}) {
    RunningApp app;
    app.pid = process.pid();
    for (std::string& title : windowTitles)
        app.windows.push_back({0, std::move(title)});
    return app;
}

MenuReading read(const RunningApp& app, atspi::ReadLimits limits = {}) {
    return AtspiMenuReader(limits).readMenus(app, {});
}

std::size_t count(const std::vector<RawMenuItem>& items) {
    std::size_t sum = items.size();
    for (const RawMenuItem& item : items)
        sum += count(item.children);
    return sum;
}

/// An item of a recording.
json item(const std::string& name, const std::vector<json>& children = {}, const std::string& binding = "") {
    return {
        {"role", children.empty() ? "menu item" : "menu"},
        {"name", name},
        {"actions", 1},
        {"keyBinding", binding},
        {"enabled", true},
        {"sensitive", true},
        {"visible", true},
        {"size", {1, 1}},
        {"children", children}};
}

/// The same, told as the toolkit tells that nobody can see it.
json hidden(const std::string& toolkit, json item) {
    if (toolkit == "Qt")
        item["size"] = {0, 0};
    else
        item["visible"] = false;
    return item;
}

json popup(const std::vector<json>& children) {
    json layer = item("", children);
    layer["role"] = "popup menu";
    return layer;
}

TemporaryFile recording(const std::string& toolkit, const std::vector<json>& menus) {
    return TemporaryFile(
        json{{"app", "test"}, {"toolkit", toolkit}, {"toolkitVersion", "1"}, {"menuBar", menus}}.dump());
}

class RecordedMenus : public testing::TestWithParam<std::string> {};

TEST_P(RecordedMenus, AreReadAsAPlainReadingReadsThem) {
    const FakeAppProcess process({"--recording", GetParam()});
    ASSERT_TRUE(process.isReady());
    const MenuReading reading = read(appOf(process));
    EXPECT_EQ(reading.outcome, ReadOutcome::complete);
    EXPECT_EQ(outlineOf(reading.menuBar), outlineOf(plainReading(GetParam())));
    EXPECT_TRUE(reading.menuBar == plainReading(GetParam()));
    EXPECT_FALSE(MenuParser::entries(reading.menuBar, MenuParser::defaultMaxDepth).empty());
}

INSTANTIATE_TEST_SUITE_P(All, RecordedMenus, testing::ValuesIn(recordingFiles()), [](const auto& parameter) {
    std::string name = parameter.param.substr(parameter.param.rfind('/') + 1);
    std::erase_if(name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); });
    return name;
});

TEST(MenuReader, OnlyAsksAndNeverForAllPropertiesAtOnce) {
    for (const char* toolkit : {"gtk", "Qt", "Gecko"}) {
        const FakeAppProcess process({"--items", "60", "--toolkit", toolkit});
        ASSERT_TRUE(process.isReady());
        EXPECT_EQ(read(appOf(process)).outcome, ReadOutcome::complete);
        auto calls = process.calls();
        std::erase(calls, "Set"); // by the registry, which gives every application a number
        EXPECT_FALSE(calls.empty());
        EXPECT_THAT(
            std::set(calls.begin(), calls.end()),
            testing::IsSubsetOf(
                {"Get", "GetChildren", "GetRole", "GetState", "GetKeyBinding", "GetMatches", "GetExtents"}));
    }
}

TEST(MenuReader, EveryToolkitGivesTheSameItems) {
    const FakeAppProcess gtk({"--items", "300"});
    const FakeAppProcess other({"--items", "300", "--toolkit", "Gecko"});
    EXPECT_EQ(count(read(appOf(gtk)).menuBar), 300U);
    EXPECT_TRUE(read(appOf(gtk)) == read(appOf(other)));
}

TEST(MenuReader, DisabledItemsKeepTheirShortcuts) {
    json cut = item("Cut", {}, "t;<Alt>e:t;<Primary>x");
    cut["sensitive"] = false;
    cut["actions"] = 0;
    const TemporaryFile file = recording("gtk", {item("Edit", {cut})});
    const FakeAppProcess process({"--recording", file.path()});
    const auto entries = MenuParser::entries(read(appOf(process)).menuBar, 4);
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].shortcut.display(), "⌃X");
    EXPECT_FALSE(entries[0].enabled);
}

TEST(MenuReader, ASubmenuWithTheRoleOfAnItemIsReadAllTheSame) {
    const FakeAppProcess process({"--items", "200", "--stale-role"});
    const FakeAppProcess usual({"--items", "200"});
    const MenuReading reading = read(appOf(process));
    EXPECT_EQ(count(reading.menuBar), 200U);
    EXPECT_TRUE(reading == read(appOf(usual)));
}

/// What a window's menu bar is read as when its first menu is hidden, and items and a submenu of the second.
std::vector<json> menusWithHiddenOnes(const std::string& toolkit) {
    const std::string shortcut = toolkit == "Qt" ? "Ctrl+E" : ";;<Primary>e";
    const auto menu = [&toolkit](const std::string& name, const std::vector<json>& items) {
        return item(name, toolkit == "Qt" ? std::vector{popup(items)} : items);
    };
    return {
        hidden(toolkit, menu("Hidden menu", {item("Below a hidden menu", {}, shortcut)})),
        menu(
            "Menu", {hidden(toolkit, item("Hidden", {}, shortcut)), item("Seen", {}, shortcut),
                     hidden(toolkit, menu("Hidden submenu", {item("Below a hidden submenu", {}, shortcut)})),
                     item("Also seen", {}, shortcut)})};
}

TEST(MenuReader, LeavesOutWhatIsHiddenAndAllBelowIt) {
    for (const char* toolkit : {"gtk", "GAIL", "Qt"})
        for (const int others : {0, 500}) { // so many that the application's outline is worth asking for
            std::vector<json> menus = menusWithHiddenOnes(toolkit);
            if (others > 0)
                menus.push_back(
                    item("Long", std::vector<json>(static_cast<std::size_t>(others), item("Leaf"))));
            const TemporaryFile file = recording(toolkit, menus);
            const FakeAppProcess process({"--recording", file.path()});
            const MenuReading reading = read(appOf(process));
            EXPECT_EQ(reading.outcome, ReadOutcome::complete);
            ASSERT_EQ(reading.menuBar.size(), others > 0 ? 2U : 1U) << toolkit;
            EXPECT_EQ(
                outlineOf({reading.menuBar[0]}), "Menu\n"
                                                 "  Seen ⌃E\n"
                                                 "  Also seen ⌃E\n")
                << toolkit;
        }
}

TEST(MenuReader, AToolkitThatIsNotKnownHidesNothing) {
    const TemporaryFile file =
        recording("Gecko", {hidden("gtk", item("Menu", {hidden("Qt", item("Item"))}))});
    const FakeAppProcess process({"--recording", file.path()});
    EXPECT_EQ(count(read(appOf(process)).menuBar), 2U);
}

TEST(MenuReader, AHiddenMenuDoesNotMakeItReadTwice) {
    const json menu = hidden("gtk", item("Hidden", {item("Below"), item("Deeper", {item("Deepest")})}));
    const TemporaryFile file = recording("gtk", {menu, item("Long", std::vector<json>(500, item("Leaf")))});
    const FakeAppProcess process({"--recording", file.path()});
    EXPECT_EQ(count(read(appOf(process)).menuBar), 1U + 500);
    const auto calls = process.calls();
    EXPECT_EQ(std::ranges::count(calls, "GetKeyBinding"), 500) << "nothing hidden is asked for";
}

TEST(MenuReader, ABarThatSomethingElseDrawsHidesNoneOfItsMenus) {
    const TemporaryFile file = recording(
        "Qt", {hidden("Qt", item("File", {popup({item("New")})})),
               hidden("Qt", item("Edit", {popup({item("Cut")})}))});
    const FakeAppProcess process({"--recording", file.path()});
    EXPECT_EQ(count(read(appOf(process)).menuBar), 4U);
}

TEST(MenuReader, TakesTheBarThatTakesRoomOnTheScreen) {
    for (const char* toolkit : {"gtk", "Qt"}) {
        const FakeAppProcess process({"--items", "60", "--imagined-bar", "--toolkit", toolkit});
        const MenuReading reading = read(appOf(process));
        ASSERT_FALSE(reading.menuBar.empty());
        EXPECT_EQ(reading.menuBar.front().title, "Menu of Fake") << toolkit;
    }
}

/// A menu in a menu in a menu; the innermost item is at the given depth.
json nested(int depth, const std::string& toolkit) {
    json inner = item("Depth " + std::to_string(depth));
    for (int at = depth - 1; at >= 0; --at) {
        std::vector<json> children{inner};
        if (toolkit == "Qt")
            children = {popup({inner})};
        inner = item("Depth " + std::to_string(at), children);
    }
    return inner;
}

TEST(MenuReader, ReadsChildrenDownToDepthFour) {
    for (const char* toolkit : {"gtk", "Qt"}) {
        const TemporaryFile file = recording(toolkit, {nested(8, toolkit)});
        const FakeAppProcess process({"--recording", file.path()});
        const MenuReading reading = read(appOf(process));
        EXPECT_EQ(outlineOf(reading.menuBar), outlineOf(plainReading(file.path()))) << toolkit;
        const std::vector<RawMenuItem>* items = &reading.menuBar;
        for (int depth = 0; depth <= 5; ++depth) {
            ASSERT_EQ(items->size(), 1U) << toolkit << depth;
            EXPECT_EQ(items->front().title, "Depth " + std::to_string(depth));
            items = &items->front().children;
        }
        EXPECT_TRUE(items->empty());
    }
}

TEST(MenuReader, OpensNoListOnceTheBudgetIsSpent) {
    std::vector<json> menus;
    for (int menu = 0; menu < 4; ++menu) {
        std::vector<json> items;
        for (int i = 0; i < 10; ++i)
            items.push_back(item("Submenu", {item("Leaf")}));
        menus.push_back(item("Menu", items));
    }
    const TemporaryFile file = recording("gtk", menus);
    const FakeAppProcess process({"--recording", file.path()});
    atspi::ReadLimits limits;
    limits.items = 20;
    const MenuReading reading = read(appOf(process), limits);
    EXPECT_EQ(reading.outcome, ReadOutcome::limited);
    ASSERT_EQ(reading.menuBar.size(), 4U);
    for (const RawMenuItem& menu : reading.menuBar)
        EXPECT_EQ(menu.children.size(), 10U); // these lists were open already
    EXPECT_EQ(reading.menuBar[0].children[0].children.size(), 1U);
    EXPECT_TRUE(reading.menuBar[3].children[9].children.empty());
    EXPECT_LT(count(reading.menuBar), 4U + 40U + 20U);
}

std::vector<json> leaves(int number) {
    return std::vector<json>(static_cast<std::size_t>(number), item("Leaf"));
}

/// Two branches in depth three: what stands in a layer of its own below the first is deeper than any list
/// that is opened, what stands below the second uses up the budget before the layer is known to be one.
json deepLayerBesideLongList(int longList) {
    json inner =
        item("Depth 3", {item("In a layer", {popup({item("Hidden")})}), item("Long", leaves(longList))});
    for (int depth = 2; depth >= 0; --depth)
        inner = item("Depth " + std::to_string(depth), {inner});
    return inner;
}

TEST(MenuReader, ADeepLayerThatIsLeftShutForTheBudgetIsMissing) {
    for (const int longList : {2, 20}) {
        const TemporaryFile file = recording("Qt", {deepLayerBesideLongList(longList)});
        const FakeAppProcess process({"--recording", file.path()});
        atspi::ReadLimits limits;
        limits.items = 12;
        const MenuReading reading = read(appOf(process), limits);
        const bool isAllRead = longList == 2;
        EXPECT_EQ(reading.outcome, isAllRead ? ReadOutcome::complete : ReadOutcome::limited) << longList;
        EXPECT_EQ(count(reading.menuBar), 6U + static_cast<std::size_t>(longList) + (isAllRead ? 1 : 0));
    }
}

TEST(MenuReader, ItemsThatRefuseTheirNameUseNothingOfTheBudget) {
    const std::vector<json> submenus(3, item("Submenu", leaves(5)));
    const TemporaryFile file =
        recording("Qt", {item("Nameless", std::vector<json>(30, item("Refused"))), item("Menu", submenus)});
    const FakeAppProcess process({"--recording", file.path(), "--refuse-name", "Refused"});
    atspi::ReadLimits limits;
    limits.items = 40;
    const MenuReading reading = read(appOf(process), limits);
    EXPECT_EQ(reading.outcome, ReadOutcome::complete);
    EXPECT_EQ(count(reading.menuBar), 2U + 3 + 3 * 5);
}

TEST(MenuReader, MenusDeeperThanTheLimitDoNotMakeItReadTwice) {
    // So long that the application's outline is worth asking for.
    const TemporaryFile file = recording("gtk", {nested(8, "gtk"), item("Long", leaves(500))});
    const FakeAppProcess process({"--recording", file.path()});
    const MenuReading reading = read(appOf(process));
    EXPECT_EQ(reading.outcome, ReadOutcome::complete);
    EXPECT_EQ(count(reading.menuBar), 6U + 1 + 500);
    const auto calls = process.calls();
    EXPECT_EQ(std::ranges::count(calls, "GetKeyBinding"), 1 + 500) << "one for each item without children";
}

TEST(MenuReader, ASubmenuWithTheRoleOfAnItemIsReadBesideMenusDeeperThanTheLimit) {
    const std::vector<json> menus{
        item("Menu", {item("Stale", leaves(3))}), nested(8, "gtk"), item("Long", leaves(500))};
    const TemporaryFile file = recording("gtk", menus);
    const FakeAppProcess process({"--recording", file.path(), "--stale-role"});
    const MenuReading reading = read(appOf(process));
    ASSERT_EQ(reading.menuBar.size(), 3U);
    ASSERT_EQ(reading.menuBar[0].children.size(), 1U);
    EXPECT_EQ(reading.menuBar[0].children[0].children.size(), 3U);
}

TEST(MenuReader, TakesTheWindowThatIsNamedFirst) {
    // Each window's first menu is called after the window.
    const FakeAppProcess process(
        {"--window", "One", "--window", "Two", "--window", "Three", "--dialog", "Question"});
    const auto firstMenu = [&process](std::vector<std::string> titles) {
        const MenuReading reading = read(appOf(process, std::move(titles)));
        return reading.menuBar.empty() ? "" : reading.menuBar.front().title;
    };
    EXPECT_EQ(firstMenu({"Two"}), "Menu of Two");
    EXPECT_EQ(firstMenu({"Two", "One"}), "Menu of Two");
    EXPECT_EQ(firstMenu({"Unknown", "One"}), "Menu of One");
    EXPECT_EQ(firstMenu({"Question", "One"}), "Menu of One") << "a dialog has no menu bar";
    EXPECT_EQ(firstMenu({}), "Menu of Three") << "the active window";
    EXPECT_EQ(firstMenu({"", "Unknown"}), "Menu of Three");
}

TEST(MenuReader, KnowsWhenThereIsNoMenuBar) {
    const FakeAppProcess none({"--no-menu-bar"});
    EXPECT_EQ(read(appOf(none)).outcome, ReadOutcome::noMenuBar);
    EXPECT_TRUE(read(appOf(none, {"Fake"})).menuBar.empty());
}

TEST(MenuReader, KnowsWhenAProcessIsNotOnTheBus) {
    const FakeAppProcess other({});
    RunningApp app;
    app.pid = getpid();
    EXPECT_EQ(read(app).outcome, ReadOutcome::noSuchApp);
}

TEST(MenuReader, KnowsASandboxedApplicationByItsWindows) {
    // The bus knows the process of the sandbox's proxy only.
    const auto folder =
        std::filesystem::temp_directory_path() / ("quillon-proxy-" + std::to_string(getpid()));
    std::filesystem::create_directory(folder);
    std::filesystem::create_symlink(QUILLON_FAKE_APP, folder / "xdg-dbus-proxy");
    const FakeAppProcess other({"--window", "Sketch"});
    const FakeAppProcess proxied({"--window", "Sketch", "--items", "30"}, folder / "xdg-dbus-proxy");
    RunningApp app;
    app.pid = getpid();
    app.windows = {{0, "Sketch"}};
    EXPECT_EQ(count(read(app).menuBar), 30U);
    app.windows = {{0, "Another"}};
    EXPECT_EQ(read(app).outcome, ReadOutcome::noSuchApp);
    app.windows = {};
    EXPECT_EQ(read(app).outcome, ReadOutcome::noSuchApp);
    std::filesystem::remove_all(folder);
}

TEST(MenuReader, ReadsSeveralApplicationsAtTheSameTime) {
    const FakeAppProcess first({"--items", "400"});
    const FakeAppProcess second({"--items", "300", "--toolkit", "Gecko"});
    AtspiMenuReader reader;
    std::size_t items = 0;
    std::jthread thread([&] { items = count(reader.readMenus(appOf(second), {}).menuBar); });
    EXPECT_EQ(count(reader.readMenus(appOf(first), {}).menuBar), 400U);
    thread.join();
    EXPECT_EQ(items, 300U);
}

} // namespace
} // namespace quillon
