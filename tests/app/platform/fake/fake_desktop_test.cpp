#include <quillon/app/platform/fake/fake_desktop.h>

#include <gmock/gmock.h>

#include <vector>

namespace quillon {
namespace {

using testing::ElementsAre;

RunningApp app(std::int64_t pid, std::string bundleID) {
    return {pid, std::move(bundleID), "", {}};
}

MenuReading fileMenu() {
    RawMenuItem file;
    file.title = "File";
    return {{file}, ReadOutcome::complete};
}

TEST(FakeFrontApplicationTest, TellsWhatIsBroughtToTheFront) {
    FakeFrontApplication front;
    std::vector<RunningApp> told;
    const Subscription listener = front.onActivated([&](const RunningApp& a) { told.push_back(a); });
    EXPECT_FALSE(front.current());
    front.activate(app(1, "a"));
    front.activate(app(1, "a"));
    front.setCurrent(std::nullopt);
    EXPECT_THAT(told, ElementsAre(app(1, "a"), app(1, "a")));
    EXPECT_FALSE(front.current());
    EXPECT_EQ(front.listeners(), 1U);
}

TEST(FakeMenuReaderTest, AnswersByProcessThenByIdentifierAndNotesWhatWasAsked) {
    FakeMenuReader reader;
    reader.answer(7, {{}, ReadOutcome::noMenuBar});
    reader.answer("a", fileMenu());
    EXPECT_EQ(reader.readMenus(app(7, "a"), {}).outcome, ReadOutcome::noMenuBar);
    EXPECT_EQ(reader.readMenus(app(8, "a"), {}).outcome, ReadOutcome::complete);
    EXPECT_EQ(reader.readMenus(app(8, "b"), {}).outcome, ReadOutcome::noSuchApp);
    EXPECT_THAT(reader.asked(), ElementsAre(app(7, "a"), app(8, "a"), app(8, "b")));
}

TEST(FakeMenuReaderTest, GivesUpWhenToldToStop) {
    FakeMenuReader reader;
    reader.answer("a", fileMenu());
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(reader.readMenus(app(1, "a"), stop.get_token()), (MenuReading{{}, ReadOutcome::partial}));
}

TEST(FakeAccessibilityAccessTest, TellsOnlyChanges) {
    FakeAccessibilityAccess access;
    int told = 0;
    const Subscription listener = access.onChanged([&] { ++told; });
    access.setTrusted(false);
    access.setTrusted(true);
    access.setTrusted(true);
    access.setTrustedSilently(false);
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(access.isTrusted());
}

TEST(FakeAccessibilityAccessTest, MayGrantWhenAsked) {
    FakeAccessibilityAccess access;
    access.ask();
    EXPECT_FALSE(access.isTrusted());
    access.setGrantsWhenAsked(true);
    access.ask();
    EXPECT_TRUE(access.isTrusted());
    EXPECT_EQ(access.asked(), 2);
}

TEST(FakePanelMakerTest, KeepsWhatItsPanelsShowAndWhatIsDoneWithThem) {
    FakePanelMaker maker;
    PanelContent content;
    content.traits.input = PanelInput::passes;
    const auto panel = maker.makePanel(std::move(content));
    panel->setFrame({1, 2, 3, 4});
    panel->orderFront();
    ASSERT_EQ(maker.made.size(), 1U);
    EXPECT_EQ(maker.made[0].content.traits.input, PanelInput::passes);
    EXPECT_EQ(maker.made[0].record->frame, (Rect{1, 2, 3, 4}));
    EXPECT_TRUE(maker.made[0].record->visible);
}

TEST(FakeTrayTest, ShowsTheIconWhileATrayIsThere) {
    FakeTray tray;
    int told = 0;
    const Subscription listener = tray.onShownChanged([&] { ++told; });
    tray.show({});
    EXPECT_FALSE(tray.isShown());
    tray.setThere(true);
    tray.setThere(true);
    EXPECT_TRUE(tray.isShown());
    EXPECT_EQ(told, 1);
}

TEST(FakeSilentAppsTest, AnswersWhoStillWaits) {
    FakeSilentApps apps;
    std::vector<std::string> told;
    {
        const Subscription look = apps.look([&](auto names) { told = std::move(names); });
        apps.answer({"Designer"});
    }
    apps.answer({});
    EXPECT_THAT(told, ElementsAre("Designer"));
    EXPECT_EQ(apps.looks(), 1);
}

TEST(FakeSessionStartTest, StaysAsItWasWhenItRefuses) {
    FakeSessionStart start;
    EXPECT_TRUE(start.setOn(true));
    start.refuses = true;
    EXPECT_FALSE(start.setOn(false));
    EXPECT_TRUE(start.isOn());
}

TEST(FakePanelMakerTest, TellsOfItsScreens) {
    FakePanelMaker maker;
    int told = 0;
    const Subscription listener = maker.onScreensChanged([&] { ++told; });
    maker.changeScreens({});
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(maker.screens().empty());
}

TEST(FakeAppIconsTest, KnowsWhatItWasTold) {
    FakeAppIcons icons;
    icons.set("a", IconName{"a-icon"});
    EXPECT_TRUE(icons.icon("a"));
    EXPECT_FALSE(icons.icon("b"));
}

TEST(FakeAppearanceTest, TellsOnlyChanges) {
    FakeAppearance appearance;
    int told = 0;
    const Subscription listener = appearance.onChanged([&] { ++told; });
    appearance.set({});
    appearance.set({.scheme = ColourScheme::dark, .fontFamily = "Sans", .fontPoints = 11});
    EXPECT_EQ(told, 1);
    EXPECT_EQ(appearance.look().scheme, ColourScheme::dark);
}

TEST(FakeDesktopTest, ItsFakesShareOneClock) {
    FakeDesktop desktop;
    const auto ages = desktop.keyboard.observeInput();
    desktop.keyboard.input(InputKind::keyDown);
    desktop.timers.advance(Seconds(2));
    EXPECT_DOUBLE_EQ(ages->sinceLast(InputKind::keyDown).count(), 2);
}

} // namespace
} // namespace quillon
