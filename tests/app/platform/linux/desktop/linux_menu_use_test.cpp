#include <quillon/tests/app/platform/linux/x11/support/x11_fixture.h>

#include <quillon/app/platform/fake/fake_background.h>
#include <quillon/app/platform/fake/fake_front_application.h>
#include <quillon/app/platform/linux/desktop/linux_menu_use.h>

#include <gmock/gmock.h>

#include <map>
#include <string>
#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Items 20 pixels high, of which some are known; writes down what it is asked.
struct FakeLookup final : atspi::MenuLookup {
    void begin(const std::stop_token&) override { asked.emplace_back("begin"); }
    std::optional<Rect> prepare(const atspi::MenuPlace& place, const std::stop_token&) override {
        asked.push_back("prepare " + std::to_string(row(place)));
        return items.contains(row(place)) ? std::optional(frame(place)) : std::nullopt;
    }
    std::optional<MenuItemFacts> itemAt(const atspi::MenuPlace& place, const std::stop_token&) override {
        asked.push_back("item " + std::to_string(row(place)));
        const auto item = items.find(row(place));
        if (item == items.end())
            return std::nullopt;
        return MenuItemFacts{{"File", item->second}, {}, true, frame(place)};
    }

    static int row(const atspi::MenuPlace& place) {
        return static_cast<int>(place.at.y - place.window.y) / 20;
    }
    static Rect frame(const atspi::MenuPlace& place) {
        return {place.window.x, place.window.y + 20 * row(place), place.window.width, 20};
    }
    std::map<int, std::string> items{{0, "New"}, {1, "Open"}};
    std::vector<std::string> asked;
};

std::string text(const menu_use::Opened& opened) {
    return "opened " + opened.app.bundleID;
}
std::string text(const menu_use::Pointed& pointed) {
    return "pointed " + std::to_string(pointed.item);
}
std::string text(const menu_use::Told& told) {
    return "told " + std::to_string(told.item) + " " + told.facts.path.back();
}
std::string text(const menu_use::Released&) {
    return "released";
}
std::string text(const menu_use::Closed&) {
    return "closed";
}

struct LinuxMenuUseTest : X11Fixture {
    void SetUp() override {
        X11Fixture::SetUp();
        application = std::make_unique<TestClient>(x11Display());
        front.setCurrent(RunningApp{1, "editor", "Editor", {{application->makeWindow({.y = 400}), ""}}});
        use = std::make_unique<LinuxMenuUse>(
            x11, std::make_shared<RawInput>(x11), LinuxMenuUse::Needs{front, background, [this](const auto&) {
                                                                          ++lookups;
                                                                          return lookup;
                                                                      }});
        listen();
        client->movePointer(0, 0);
        settle();
        menu = application->makeWindow(
            {.overrideRedirect = true, .mapped = false, .x = 100, .y = 100, .size = 100});
    }

    void listen() {
        evidence = use->onEvidence([this](const MenuEvidence& one) {
            lines.push_back(std::visit([](const auto& each) { return text(each); }, one));
        });
        settle();
    }
    void openMenu() {
        client->buttonDown(1);
        settle();
        application->map(menu);
        settle();
        settle();
        client->buttonUp(1);
        settle();
        background.runAll();
        lines.clear();
        lookup->asked.clear();
    }
    void press(std::int16_t x, std::int16_t y) {
        client->movePointer(x, y);
        client->buttonDown(1);
        settle();
    }
    void letGo() {
        client->buttonUp(1);
        settle();
    }
    /// Until the pointer's place was asked for so many times more: nothing else makes requests meanwhile.
    void waitForGlances(unsigned count) {
        const unsigned before = requestsSoFar();
        unsigned looks = 0;
        EXPECT_TRUE(waitFor([&] { return requestsSoFar() - before >= count + ++looks; }));
    }
    void closeMenu() {
        application->unmap(menu);
        settle();
    }

    FakeFrontApplication front;
    FakeBackground background;
    std::shared_ptr<FakeLookup> lookup = std::make_shared<FakeLookup>();
    int lookups = 0;
    std::unique_ptr<TestClient> application;
    std::unique_ptr<LinuxMenuUse> use;
    xcb_window_t menu = XCB_NONE;
    std::vector<std::string> lines;
    Subscription evidence;
};

TEST_F(LinuxMenuUseTest, AClickIsToldInOrder) {
    openMenu();
    press(120, 125);
    background.runAll();
    letGo();
    closeMenu();
    EXPECT_THAT(lines, ElementsAre("pointed 1", "told 1 Open", "released", "closed"));
    EXPECT_THAT(lookup->asked, ElementsAre("item 1"));
}

TEST_F(LinuxMenuUseTest, WhatABusyApplicationTellsAfterTheClickIsToldThen) {
    openMenu();
    press(120, 125);
    letGo();
    closeMenu();
    background.runAll();
    EXPECT_THAT(lines, ElementsAre("pointed 1", "released", "closed", "told 1 Open"));
}

TEST_F(LinuxMenuUseTest, WhatIsDraggedToIsAskedAboutWhenItIsLetGo) {
    openMenu();
    press(0, 0);
    lines.clear();
    client->movePointer(120, 105);
    letGo();
    background.runAll();
    EXPECT_THAT(lines, ElementsAre("pointed 1", "released", "told 1 New"));
}

TEST_F(LinuxMenuUseTest, ADifferentPlaceOnTheSameItemIsTheSameAnswer) {
    openMenu();
    press(120, 105);
    client->movePointer(150, 115);
    letGo();
    background.runAll();
    EXPECT_THAT(lines, ElementsAre("pointed 1", "pointed 2", "released", "told 1 New", "told 2 New"));
    EXPECT_THAT(lookup->asked, ElementsAre("item 0"));
}

TEST_F(LinuxMenuUseTest, APressOutsidePointsAtNothing) {
    openMenu();
    press(120, 105);
    letGo();
    background.runAll();
    lines.clear();
    press(300, 300);
    EXPECT_THAT(lines, ElementsAre("pointed 0"));
    letGo();
}

TEST_F(LinuxMenuUseTest, APointerThatRestsIsPreparedForOnce) {
    openMenu();
    client->movePointer(120, 105);
    EXPECT_TRUE(waitFor([&] { return background.waiting() > 0; }));
    background.runAll();
    EXPECT_THAT(lookup->asked, ElementsAre("prepare 0"));
    client->movePointer(140, 115);
    waitForGlances(8);
    EXPECT_FALSE(background.waiting());
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(LinuxMenuUseTest, ABusyApplicationIsAskedAgainWhileThePointerRests) {
    lookup->items.clear();
    openMenu();
    client->movePointer(120, 125);
    for (int attempt = 0; attempt < 3; ++attempt) {
        waitForGlances(5);
        background.runAll();
    }
    EXPECT_THAT(lookup->asked, ElementsAre("prepare 1", "prepare 1"));
    waitForGlances(20);
    background.runAll();
    EXPECT_EQ(lookup->asked.size(), 3U);
}

TEST_F(LinuxMenuUseTest, AMenuIsPreparedForAsSoonAsThePointerIsInIt) {
    openMenu();
    std::int16_t x = 100;
    EXPECT_TRUE(waitFor([&] {
        x = static_cast<std::int16_t>(x < 190 ? x + 7 : 100);
        client->movePointer(x, 105); // never rests
        return background.waiting() > 0;
    }));
    background.runAll();
    EXPECT_THAT(lookup->asked, ElementsAre("prepare 0"));
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(LinuxMenuUseTest, WithoutAnAnswerWhatWasKnownOfThePlaceStands) {
    openMenu();
    press(120, 105);
    letGo();
    background.runAll();
    lookup->items.clear();
    lines.clear();
    press(120, 105);
    background.runAll();
    EXPECT_THAT(lines, ElementsAre("pointed 2", "told 2 New"));
    letGo();
}

TEST_F(LinuxMenuUseTest, TheNextMenuSoonAfterSharesTheConnection) {
    openMenu();
    closeMenu();
    openMenu();
    EXPECT_EQ(lookups, 1);
}

TEST_F(LinuxMenuUseTest, WithNobodyListeningNothingIsSelected) {
    evidence.reset();
    client->buttonDown(1);
    settle();
    application->map(menu);
    settle();
    letGo();
    EXPECT_THAT(lines, IsEmpty());
    EXPECT_EQ(lookups, 0);
    EXPECT_EQ(front.listeners(), 0U);
}

TEST_F(LinuxMenuUseTest, WhoListensMayEndThatWhileToldAndBeginAnew) {
    evidence = use->onEvidence([this](const MenuEvidence&) { evidence.reset(); });
    settle();
    client->buttonDown(1);
    settle();
    application->map(menu);
    settle();
    letGo();
    EXPECT_FALSE(evidence);
    closeMenu();
    listen();
    openMenu();
    press(120, 105);
    background.runAll();
    EXPECT_THAT(lines, ElementsAre("pointed 1", "told 1 New"));
    letGo();
}

TEST_F(LinuxMenuUseTest, MayEndBeforeTheAnswerComes) {
    openMenu();
    press(120, 105);
    background.workNext();
    use.reset();
    background.runAll();
    letGo();
    EXPECT_THAT(lines, ElementsAre("pointed 1"));
}

} // namespace
} // namespace quillon
