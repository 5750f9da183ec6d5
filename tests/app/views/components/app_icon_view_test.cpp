#include <quillon/app/platform/fake/fake_app_icons.h>
#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/app_icon_view.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QTemporaryDir>

namespace quillon {
namespace {

class AppIconViewTest : public testing::Test {
  protected:
    QImage drawn() {
        AppIconView view(themes, cache, 40);
        view.setBundleID("org.example.App");
        return drawnOf(view);
    }
    static QImage drawnOf(AppIconView& view) {
        QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        view.resize(40, 40);
        view.render(&image, {}, {}, QWidget::RenderFlags());
        return image;
    }
    static IconPixels square(int edge, std::uint32_t colour) {
        return {
            edge, edge,
            std::vector<std::uint32_t>(
                static_cast<std::size_t>(edge) * static_cast<std::size_t>(edge), colour)};
    }

    FakeAppearance appearance;
    ThemeSource themes{appearance};
    FakeAppIcons icons;
    AppIconCache cache{icons};
};

TEST_F(AppIconViewTest, AnUnknownApplicationHasAPlaceholder) {
    const QImage image = drawn();
    const QColor fill = image.pixelColor(20, 20);
    EXPECT_NEAR(fill.alphaF(), 0.06, 0.01);
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0) << "its corners are round";
}

TEST_F(AppIconViewTest, PixelsAreScaledToTheSize) {
    icons.set("org.example.App", square(128, 0xff3366cc));
    const QImage image = drawn();
    EXPECT_EQ(image.pixelColor(20, 20), QColor(0x33, 0x66, 0xcc));
    EXPECT_EQ(image.pixelColor(1, 1), QColor(0x33, 0x66, 0xcc));
}

TEST_F(AppIconViewTest, FilesAreLoaded) {
    QTemporaryDir folder;
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(Qt::green);
    const QString path = folder.filePath(QStringLiteral("icon.png"));
    ASSERT_TRUE(picture.save(path));
    icons.set("org.example.App", IconFile{path.toStdString()});
    EXPECT_EQ(drawn().pixelColor(20, 20), QColor(Qt::green));
}

TEST_F(AppIconViewTest, BrokenIconsAreThePlaceholder) {
    const std::vector<AppIcon> broken{
        IconFile{"/nowhere/icon.png"},
        IconName{"no-such-icon-anywhere"},
        IconPixels{},
        IconPixels{16, 16, {0xffffffff}},
        IconPixels{-4, 4, {}},
        IconPixels{1 << 20, 1 << 20, {}}};
    for (const AppIcon& icon : broken) {
        icons.set("org.example.App", icon);
        AppIconCache fresh(icons);
        EXPECT_TRUE(fresh.pixmap("org.example.App", 40, 1).isNull());
    }
}

TEST_F(AppIconViewTest, AnIconThatAppearsLaterIsShown) {
    AppIconView view(themes, cache, 40);
    view.setBundleID("org.example.App");
    drawnOf(view);
    icons.set("org.example.App", square(8, 0xff3366cc));
    EXPECT_EQ(drawnOf(view).pixelColor(20, 20), QColor(0x33, 0x66, 0xcc));
}

TEST_F(AppIconViewTest, OneApplicationsIconIsLookedUpOnce) {
    icons.set("org.example.App", square(8, 0xff112233));
    const QPixmap first = cache.pixmap("org.example.App", 40, 1);
    icons.set("org.example.App", square(8, 0xff445566));
    EXPECT_EQ(cache.pixmap("org.example.App", 40, 1).cacheKey(), first.cacheKey());
}

TEST_F(AppIconViewTest, TheProgramsOwnMarkReplacesTheIconUntilTheNextApplication) {
    AppIconView view(themes, cache, 40);
    const QImage placeholder = drawnOf(view);
    view.showProductMark();
    EXPECT_EQ(drawnOf(view).pixelColor(20, 4).alpha(), 255);
    view.setBundleID("");
    EXPECT_EQ(drawnOf(view), placeholder);
}

TEST_F(AppIconViewTest, IsNotReadAloud) {
    AppIconView view(themes, cache, 40);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&view)->state().invisible);
}

} // namespace
} // namespace quillon
