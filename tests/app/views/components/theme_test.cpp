#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/theme_source.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class ThemeTest : public testing::Test {
  protected:
    QFont toolkitFont() const {
        QFont font(u"DejaVu Serif"_s);
        font.setPointSizeF(12);
        return font;
    }
};

TEST_F(ThemeTest, FollowsTheDesktopsFont) {
    const Theme theme = Theme::fromLook({ColourScheme::light, "DejaVu Sans Mono", 15}, toolkitFont());
    EXPECT_EQ(theme.styles.body.families().first(), u"DejaVu Sans Mono"_s);
    EXPECT_DOUBLE_EQ(theme.styles.body.pointSizeF(), 15);
}

TEST_F(ThemeTest, WithoutATellingDesktopTheToolkitsFontStays) {
    const Theme theme = Theme::fromLook({}, toolkitFont());
    EXPECT_EQ(theme.styles.body.families().first(), u"DejaVu Serif"_s);
    EXPECT_DOUBLE_EQ(theme.styles.body.pointSizeF(), 12);
}

TEST_F(ThemeTest, NonsensicalSizesAreNotTakenOver) {
    for (const double points : {0.0, -3.0})
        EXPECT_DOUBLE_EQ(
            Theme::fromLook({ColourScheme::light, {}, points}, toolkitFont()).styles.body.pointSizeF(), 12);
    EXPECT_LE(Theme::fromLook({ColourScheme::light, {}, 4000}, toolkitFont()).styles.body.pointSizeF(), 100);
}

TEST_F(ThemeTest, StylesAreOrderedBySize) {
    const TextStyles styles = Theme::fromLook({}, toolkitFont()).styles;
    EXPECT_GT(styles.largeTitle.pointSizeF(), styles.title.pointSizeF());
    EXPECT_GT(styles.title.pointSizeF(), styles.title2.pointSizeF());
    EXPECT_GT(styles.title2.pointSizeF(), styles.body.pointSizeF());
    EXPECT_GT(styles.body.pointSizeF(), styles.callout.pointSizeF());
    EXPECT_GT(styles.callout.pointSizeF(), styles.caption.pointSizeF());
}

TEST_F(ThemeTest, EveryStyleHasTheFontOfTheKeyGlyphsToFallBackOn) {
    const TextStyles styles = Theme::fromLook({ColourScheme::dark, "Nimbus Sans", 11}, toolkitFont()).styles;
    for (const QFont& font : {styles.body, styles.callout, styles.headline, styles.title})
        EXPECT_TRUE(font.families().contains(u"DejaVu Sans"_s));
}

TEST_F(ThemeTest, TheSourceFollowsTheDesktopLive) {
    FakeAppearance desktop;
    ThemeSource source(desktop);
    EXPECT_EQ(source.theme().palette.scheme, ColourScheme::light);
    int changes = 0;
    const Subscription subscription = source.changed.subscribe([&] { ++changes; });

    desktop.set({ColourScheme::dark, "DejaVu Sans", 13});
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(source.theme().palette.scheme, ColourScheme::dark);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), source.theme().palette.window);
    EXPECT_EQ(QApplication::font().families().first(), u"DejaVu Sans"_s);

    desktop.set({});
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), source.theme().palette.window);
}

TEST_F(ThemeTest, AFontThatTheDesktopTakesBackIsTheToolkitsAgain) {
    FakeAppearance desktop;
    ThemeSource source(desktop);
    const QFont before = source.theme().styles.body;
    desktop.set({ColourScheme::light, "DejaVu Sans Mono", 20});
    desktop.set({});
    EXPECT_EQ(source.theme().styles.body, before);
}

TEST_F(ThemeTest, TheToolkitGetsItsFontAndColoursBack) {
    const QFont font = QApplication::font();
    const QColor window = QApplication::palette().color(QPalette::Window);
    {
        FakeAppearance desktop;
        desktop.set({ColourScheme::dark, "DejaVu Sans Mono", 31});
        const ThemeSource source(desktop);
        EXPECT_NE(QApplication::font(), font);
    }
    EXPECT_EQ(QApplication::font(), font);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), window);
}

} // namespace
} // namespace quillon
