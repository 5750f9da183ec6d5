#include <quillon/app/platform/fake/fake_background.h>
#include <quillon/app/platform/fake/fake_clock.h>
#include <quillon/app/platform/linux/applications/app_identifier.h>
#include <quillon/app/platform/linux/applications/xdg_app_icons.h>

#include <gtest/gtest.h>

#include <memory>

namespace quillon {
namespace {

struct AppIdentifierTest : testing::Test {
    FakeBackground background;
    FakeClock clock;
    std::vector<DesktopEntry> installed{entry("gimp", "GIMP", "gimp-icon")};
    int readings = 0;
    AppIdentifier identifier{
        background, clock,
        [this] {
            ++readings;
            return DesktopEntries(installed);
        },
        "/nonexistent"};

    static DesktopEntry entry(std::string id, std::string name, std::string icon = "") {
        DesktopEntry result;
        result.id = std::move(id);
        result.name = std::move(name);
        result.icon = std::move(icon);
        return result;
    }
    static WindowFacts window(std::string instance) {
        WindowFacts facts;
        facts.instance = std::move(instance);
        return facts;
    }
};

TEST_F(AppIdentifierTest, KnowsNothingUntilTheEntriesAreRead) {
    bool told = false;
    const Subscription listener = identifier.onRead([&] { told = true; });
    EXPECT_EQ(identifier.identify(window("gimp")), std::nullopt);
    EXPECT_EQ(identifier.entries(), nullptr);
    background.runAll();
    EXPECT_TRUE(told);
    EXPECT_EQ(identifier.identify(window("gimp")), (AppIdentity{"gimp", "GIMP"}));
}

TEST_F(AppIdentifierTest, ReadsAnewForAWindowThatBelongsToNoneButNotAllTheTime) {
    background.runAll();
    clock.advance(Seconds(30));
    EXPECT_EQ(identifier.identify(window("inkscape")), (AppIdentity{"inkscape", "inkscape"}));
    background.runAll();
    EXPECT_EQ(readings, 1);

    installed.push_back(entry("inkscape", "Inkscape"));
    clock.advance(Seconds(60));
    identifier.identify(window("another"));
    background.runAll();
    EXPECT_EQ(readings, 2);
    EXPECT_EQ(identifier.identify(window("inkscape")), (AppIdentity{"inkscape", "Inkscape"}));
}

TEST_F(AppIdentifierTest, AKnownWindowNeverCausesAReading) {
    background.runAll();
    clock.advance(Seconds(600));
    identifier.identify(window("gimp"));
    EXPECT_EQ(background.waiting(), 0U);
}

TEST_F(AppIdentifierTest, AReadingThatEndsAfterItIsGoneDoesNoHarm) {
    auto another = std::make_unique<AppIdentifier>(background, clock, [] { return DesktopEntries(); });
    another.reset();
    background.runAll();
}

struct XdgAppIconsTest : AppIdentifierTest {
    XdgAppIcons icons{identifier};
};

TEST_F(XdgAppIconsTest, TheEntrysIconIsTaken) {
    EXPECT_FALSE(icons.icon("gimp"));
    background.runAll();
    ASSERT_TRUE(icons.icon("gimp"));
    EXPECT_EQ(std::get<IconName>(*icons.icon("gimp")).name, "gimp-icon");
}

TEST_F(XdgAppIconsTest, ElseThePictureThatWasSeen) {
    background.runAll();
    icons.note("homemade", {1, 1, {0xffffffff}});
    ASSERT_TRUE(icons.icon("homemade"));
    EXPECT_EQ(std::get<IconPixels>(*icons.icon("homemade")).argb.size(), 1U);
    EXPECT_FALSE(icons.icon("unknown"));
}

TEST_F(XdgAppIconsTest, RemembersABoundedNumberOfPictures) {
    for (int i = 0; i < 1000; ++i)
        icons.note("app" + std::to_string(i), {1, 1, {0}});
    int remembered = 0;
    for (int i = 0; i < 1000; ++i)
        remembered += icons.icon("app" + std::to_string(i)) ? 1 : 0;
    EXPECT_EQ(remembered, 64);
    EXPECT_TRUE(icons.icon("app999"));
}

TEST(IconOfEntryTest, IsANameOrAFile) {
    EXPECT_EQ(std::get<IconName>(*iconOfEntry("gimp")).name, "gimp");
    EXPECT_EQ(std::get<IconName>(*iconOfEntry("gimp.png")).name, "gimp");
    EXPECT_EQ(std::get<IconName>(*iconOfEntry("org.gnome.gedit")).name, "org.gnome.gedit");
    EXPECT_EQ(std::get<IconFile>(*iconOfEntry("/opt/app/icon.png")).path, "/opt/app/icon.png");
    EXPECT_FALSE(iconOfEntry(""));
}

} // namespace
} // namespace quillon
