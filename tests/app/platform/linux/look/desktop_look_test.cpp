#include <quillon/tests/support/system/lonely_pipe.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <quillon/app/platform/linux/look/desktop_look.h>
#include <quillon/app/platform/linux/look/gtk_settings.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

ColourScheme schemeOf(const DesktopSettings& settings, std::string_view variable = "") {
    return lookOf(settings, variable).scheme;
}

DesktopSettings withScheme(std::uint32_t scheme) {
    DesktopSettings settings;
    settings.colourScheme = scheme;
    return settings;
}

DesktopSettings withTheme(std::string theme) {
    DesktopSettings settings;
    settings.gtkTheme = std::move(theme);
    return settings;
}

TEST(DesktopLookTest, ThePreferenceCounts) {
    EXPECT_EQ(schemeOf(withScheme(1)), ColourScheme::dark);
    EXPECT_EQ(schemeOf(withScheme(2)), ColourScheme::light);
    EXPECT_EQ(schemeOf(withScheme(0)), ColourScheme::light);
    EXPECT_EQ(schemeOf(withScheme(77)), ColourScheme::light);
    EXPECT_EQ(schemeOf({}), ColourScheme::light);
}

TEST(DesktopLookTest, ADarkThemeIsKnownByItsName) {
    for (const char* theme :
         {"Adwaita-dark", "Arc-Dark", "Adwaita:dark", "Yaru-purple-dark", "Mint-Y-Dark-Aqua"})
        EXPECT_EQ(schemeOf(withTheme(theme)), ColourScheme::dark) << theme;
    for (const char* theme : {"Adwaita", "Darkness", "Breeze", ""})
        EXPECT_EQ(schemeOf(withTheme(theme)), ColourScheme::light) << theme;
}

TEST(DesktopLookTest, APreferenceCountsMoreThanTheThemesName) {
    DesktopSettings settings = withTheme("Adwaita-dark");
    settings.colourScheme = 2;
    EXPECT_EQ(schemeOf(settings), ColourScheme::light);
    settings.colourScheme = 0;
    EXPECT_EQ(schemeOf(settings), ColourScheme::dark);
}

TEST(DesktopLookTest, TheDarkVariantOfAThemeMayBePreferred) {
    DesktopSettings settings = withTheme("Adwaita");
    settings.preferDarkTheme = true;
    EXPECT_EQ(schemeOf(settings), ColourScheme::dark);
}

TEST(DesktopLookTest, TheEnvironmentsDarkThemeWins) {
    EXPECT_EQ(schemeOf(withScheme(2), "Adwaita:dark"), ColourScheme::dark);
    EXPECT_EQ(schemeOf({}, "Adwaita"), ColourScheme::light);
}

TEST(DesktopLookTest, TheFontIsScaled) {
    DesktopSettings settings;
    settings.font = "Cantarell 11";
    EXPECT_EQ(lookOf(settings, "").fontFamily, "Cantarell");
    EXPECT_EQ(lookOf(settings, "").fontPoints, 11);
    settings.textScale = 1.5;
    EXPECT_EQ(lookOf(settings, "").fontPoints, 16.5);
    settings.textScale = 1000;
    EXPECT_EQ(lookOf(settings, "").fontPoints, 11);
    EXPECT_EQ(lookOf({}, "").fontFamily, std::nullopt);
}

TEST(FontDescriptionTest, FamilyStyleAndSize) {
    const auto font = [](std::string family, std::optional<double> points) {
        return FontDescription{std::move(family), points};
    };
    EXPECT_EQ(parseFont("Cantarell 11"), font("Cantarell", 11));
    EXPECT_EQ(parseFont("Noto Sans 10.5"), font("Noto Sans", 10.5));
    EXPECT_EQ(parseFont("Noto Sans,  10"), font("Noto Sans", 10));
    EXPECT_EQ(parseFont("Ubuntu Bold Italic 12"), font("Ubuntu", 12));
    EXPECT_EQ(parseFont("Inter, Sans 9"), font("Inter", 9));
    EXPECT_EQ(parseFont("Sans 16px"), font("Sans", 12));
    EXPECT_EQ(parseFont("Sans"), font("Sans", std::nullopt));
    EXPECT_EQ(parseFont("Source Sans 3 11"), font("Source Sans 3", 11));
    EXPECT_EQ(parseFont("Bold"), font("Bold", std::nullopt));
    EXPECT_EQ(parseFont(""), font("", std::nullopt));
}

TEST(FontDescriptionTest, ASizeThatMakesNoSenseIsAbsent) {
    EXPECT_EQ(parseFont("Sans 0").points, std::nullopt);
    EXPECT_EQ(parseFont("Sans 99999").points, std::nullopt);
    EXPECT_EQ(parseFont("Sans 1.2.3").points, std::nullopt);
}

TEST(MergedSettingsTest, TheFirstCountsWhereItSpeaks) {
    DesktopSettings first = withScheme(1);
    DesktopSettings second = withTheme("Breeze");
    second.colourScheme = 2;
    second.font = "Sans 10";
    const DesktopSettings both = merged(first, second);
    EXPECT_EQ(both.colourScheme, 1U);
    EXPECT_EQ(both.gtkTheme, "Breeze");
    EXPECT_EQ(both.font, "Sans 10");
}

TEST(GtkSettingsTest, TheFileIsRead) {
    const TemporaryFolder folder;
    const auto file = folder.write(
        "settings.ini", "[Settings]\ngtk-theme-name=Arc-Dark\ngtk-application-prefer-dark-theme=1\n"
                        "gtk-font-name=Noto Sans,  10\n");
    const DesktopSettings settings = readGtkSettings(file);
    EXPECT_EQ(settings.gtkTheme, "Arc-Dark");
    EXPECT_EQ(settings.preferDarkTheme, true);
    EXPECT_EQ(settings.font, "Noto Sans,  10");
}

TEST(GtkSettingsTest, AMissingOrBrokenFileTellsNothing) {
    const TemporaryFolder folder;
    EXPECT_EQ(readGtkSettings(folder.path() / "missing.ini"), DesktopSettings());
    EXPECT_EQ(readGtkSettings(folder.write("a.ini", "gtk-theme-name=Arc-Dark\n")), DesktopSettings());
    EXPECT_EQ(readGtkSettings(folder.write("b.ini", "\xff\xfe[[[")), DesktopSettings());
    EXPECT_EQ(readGtkSettings(folder.path()), DesktopSettings());
}

TEST(GtkSettingsTest, AFileThatIsFarTooLongTellsNothing) {
    const TemporaryFolder folder;
    const std::string text = "[Settings]\ngtk-theme-name=Arc-Dark\n#";
    EXPECT_EQ(readGtkSettings(folder.write("long.ini", text)).gtkTheme, "Arc-Dark");
    EXPECT_EQ(
        readGtkSettings(folder.write("long.ini", text + std::string(1'000'000, 'x'))), DesktopSettings());
}

TEST(GtkSettingsTest, APipeIsNotWaitedFor) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "settings.ini";
    const LonelyPipe pipe(file);
    ASSERT_TRUE(pipe.exists());
    EXPECT_TRUE(pipe.resultOf([&file] { return readGtkSettings(file); }) == DesktopSettings());
}

} // namespace
} // namespace quillon
