#include <quillon/tests/support/fake_portal.h>
#include <quillon/tests/support/private_bus.h>
#include <quillon/tests/support/wait_for.h>

#include <quillon/app/platform/linux/look/xdg_appearance.h>

#include <gtest/gtest.h>

#include <map>
#include <memory>

namespace quillon {
namespace {

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnomeInterface = QStringLiteral("org.gnome.desktop.interface");
const QString colorScheme = QStringLiteral("color-scheme");

struct XdgAppearanceTest : testing::Test {
    static void SetUpTestSuite() { s_bus = std::make_unique<PrivateBus>(); }
    static void TearDownTestSuite() { s_bus.reset(); }

    void SetUp() override { ASSERT_TRUE(s_bus->isRunning()); }

    void start() {
        look = std::make_unique<XdgAppearance>(s_bus->connect(), [this](const char* name) {
            const auto found = variables.find(name);
            return found == variables.end() ? std::string() : found->second;
        });
        listener = look->onChanged([this] { ++changes; });
    }
    void writeGtkSettings(const std::string& keys) {
        folder.write("gtk-3.0/settings.ini", "[Settings]\n" + keys + "\n");
    }
    bool becomes(ColourScheme scheme) {
        return waitFor([&] { return look->look().scheme == scheme; });
    }

    static inline std::unique_ptr<PrivateBus> s_bus;
    TemporaryFolder folder;
    std::map<std::string, std::string> variables{{"XDG_CONFIG_HOME", folder.path().string()}};
    std::unique_ptr<XdgAppearance> look;
    int changes = 0;
    Subscription listener;
};

TEST_F(XdgAppearanceTest, IsLightWhenNobodyTells) {
    start();
    EXPECT_EQ(look->look(), Look());
}

TEST_F(XdgAppearanceTest, FollowsThePortal) {
    FakePortal portal(s_bus->connect());
    portal.settings[appearance][colorScheme] = 1U;
    portal.settings[gnomeInterface][QStringLiteral("font-name")] = QStringLiteral("Cantarell 11");
    portal.settings[gnomeInterface][QStringLiteral("text-scaling-factor")] = 2.0;
    start();
    ASSERT_TRUE(becomes(ColourScheme::dark));
    EXPECT_EQ(look->look().fontFamily, "Cantarell");
    EXPECT_EQ(look->look().fontPoints, 22);
    EXPECT_EQ(changes, 1);
    portal.set(appearance, colorScheme, 2U);
    ASSERT_TRUE(becomes(ColourScheme::light));
    portal.set(gnomeInterface, QStringLiteral("font-name"), QStringLiteral("Inter 10"));
    EXPECT_TRUE(waitFor([&] { return look->look().fontFamily == "Inter"; }));
    EXPECT_EQ(changes, 3);
}

TEST_F(XdgAppearanceTest, ValuesThatArriveWrappedTwiceAreRead) {
    FakePortal portal(s_bus->connect());
    portal.settings[appearance][colorScheme] = QVariant::fromValue(QDBusVariant(QVariant(1U)));
    start();
    EXPECT_TRUE(becomes(ColourScheme::dark));
}

TEST_F(XdgAppearanceTest, ValuesOfTheWrongKindAreIgnored) {
    FakePortal portal(s_bus->connect());
    portal.settings[appearance][colorScheme] = QStringLiteral("dark please");
    portal.settings[gnomeInterface][QStringLiteral("font-name")] = 12;
    portal.settings[gnomeInterface][QStringLiteral("gtk-theme")] = QStringLiteral("Adwaita-dark");
    start();
    ASSERT_TRUE(becomes(ColourScheme::dark));
    EXPECT_EQ(look->look().fontFamily, std::nullopt);
}

TEST_F(XdgAppearanceTest, TheSettingsFilesTellWhatThePortalDoesNot) {
    writeGtkSettings("gtk-theme-name=Arc-Dark\ngtk-font-name=Noto Sans 10");
    start();
    EXPECT_EQ(look->look().scheme, ColourScheme::dark);
    EXPECT_EQ(look->look().fontFamily, "Noto Sans");
}

TEST_F(XdgAppearanceTest, ASettingsFileThatChangesIsReadAnew) {
    writeGtkSettings("gtk-theme-name=Arc");
    start();
    writeGtkSettings("gtk-theme-name=Arc-Dark");
    EXPECT_TRUE(becomes(ColourScheme::dark));
    const auto replacement = folder.write("gtk-3.0/new.ini", "[Settings]\ngtk-theme-name=Arc\n");
    std::filesystem::rename(replacement, folder.path() / "gtk-3.0/settings.ini");
    EXPECT_TRUE(becomes(ColourScheme::light));
    writeGtkSettings("gtk-theme-name=Arc-Dark");
    EXPECT_TRUE(becomes(ColourScheme::dark));
}

TEST_F(XdgAppearanceTest, ASettingsFileThatAppearsIsNoticed) {
    std::filesystem::create_directories(folder.path() / "gtk-3.0");
    start();
    writeGtkSettings("gtk-application-prefer-dark-theme=true");
    EXPECT_TRUE(becomes(ColourScheme::dark));
}

TEST_F(XdgAppearanceTest, TheEnvironmentsDarkThemeIsHonoured) {
    variables["GTK_THEME"] = "Adwaita:dark";
    start();
    EXPECT_EQ(look->look().scheme, ColourScheme::dark);
}

TEST(XdgAppearanceWithoutSessionTest, IsLight) {
    const XdgAppearance look(
        QDBusConnection(QStringLiteral("no such connection")), [](const char*) { return std::string(); });
    EXPECT_EQ(look.look(), Look());
}

} // namespace
} // namespace quillon
