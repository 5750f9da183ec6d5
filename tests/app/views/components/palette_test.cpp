#include <quillon/app/views/components/colours.h>
#include <quillon/app/views/components/destructive_button.h>
#include <quillon/app/views/components/palette.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

class PaletteTest : public testing::TestWithParam<ColourScheme> {
  protected:
    const Palette palette = Palette::forScheme(GetParam());
    const QColor hoveredRow = Colours::over(palette.hover, palette.card);
    const QColor keyCap = Colours::over(palette.primaryAt(0.07), palette.card);
    const QColor prominentCap = Colours::over(palette.primaryAt(0.16), palette.window);
    const QColor searchField = Colours::over(palette.primaryAt(0.06), palette.window);
};

TEST_P(PaletteTest, EveryTextColourIsReadableOnEveryGround) {
    for (const QColor& text : {palette.primary, palette.secondary, palette.dimmed}) {
        for (const QColor& ground : {palette.window, palette.card, hoveredRow, searchField}) {
            EXPECT_GE(Colours::contrast(text, ground), 4.5)
                << text.name().toStdString() << " on " << ground.name().toStdString();
        }
    }
}

TEST_P(PaletteTest, GlyphsOnKeyCapsAreReadable) {
    EXPECT_GE(Colours::contrast(palette.primary, keyCap), 4.5);
    EXPECT_GE(Colours::contrast(palette.primary, prominentCap), 4.5);
}

TEST_P(PaletteTest, BadgesAndButtonsAreReadable) {
    for (const QColor& ground : {palette.card, hoveredRow})
        EXPECT_GE(Colours::contrast(palette.badgeText, Colours::over(palette.badge, ground)), 4.5);
    EXPECT_GE(Colours::contrast(palette.onAccent, palette.accent), 4.5);
}

TEST_P(PaletteTest, WhatDestroysIsReadable) {
    EXPECT_GE(Colours::contrast(DestructiveButton::textColour(GetParam()), palette.card), 4.5);
}

TEST_P(PaletteTest, TheFocusRingAndThePinStandOut) {
    for (const QColor& ground : {palette.window, palette.card, searchField})
        EXPECT_GE(Colours::contrast(palette.focusRing, ground), 3.0);
    EXPECT_GE(Colours::contrast(palette.pin, palette.card), 3.0);
}

TEST_P(PaletteTest, ToolkitWidgetsAreReadableToo) {
    const QPalette toolkit = palette.forToolkit();
    const auto contrast = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
        return Colours::contrast(toolkit.color(text), toolkit.color(ground));
    };
    EXPECT_GE(contrast(QPalette::WindowText, QPalette::Window), 4.5);
    EXPECT_GE(contrast(QPalette::Text, QPalette::Base), 4.5);
    EXPECT_GE(contrast(QPalette::ButtonText, QPalette::Button), 4.5);
    EXPECT_GE(contrast(QPalette::HighlightedText, QPalette::Highlight), 4.5);
    EXPECT_GE(contrast(QPalette::ToolTipText, QPalette::ToolTipBase), 4.5);
    EXPECT_GE(contrast(QPalette::PlaceholderText, QPalette::Base), 4.5);
    EXPECT_GE(contrast(QPalette::Link, QPalette::Base), 4.5);
    EXPECT_GE(contrast(QPalette::Link, QPalette::Window), 4.5);
}

INSTANTIATE_TEST_SUITE_P(
    Schemes, PaletteTest, testing::Values(ColourScheme::light, ColourScheme::dark),
    [](const auto& scheme) { return scheme.param == ColourScheme::light ? "light" : "dark"; });

TEST(Colours, ContrastGoesFromOneToTwentyOne) {
    EXPECT_NEAR(Colours::contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(Colours::contrast(Qt::white, Qt::black), 21, 0.01);
    EXPECT_NEAR(Colours::contrast(Qt::red, Qt::red), 1, 0.01);
}

TEST(Colours, WhatShinesThroughIsMixed) {
    EXPECT_EQ(Colours::over(QColor(0, 0, 0, 0), Qt::white), QColor(Qt::white));
    EXPECT_EQ(Colours::over(Qt::black, Qt::white), QColor(Qt::black));
    EXPECT_NEAR(Colours::over(QColor::fromRgbF(0, 0, 0, 0.5F), Qt::white).redF(), 0.5, 0.01);
}

TEST(Palette, TheAccentIsTheProgramsColour) {
    EXPECT_NEAR(accentColour.redF(), 0.957, 0.002);
    EXPECT_NEAR(accentColour.greenF(), 0.553, 0.002);
    EXPECT_NEAR(accentColour.blueF(), 0.157, 0.002);
}

} // namespace
} // namespace quillon
