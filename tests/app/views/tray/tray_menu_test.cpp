#include <quillon/app/views/tray/tray_icon.h>
#include <quillon/app/views/tray/tray_menu.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/tests/app/views/support/many_entries.h>
#include <quillon/tests/app/views/support/printing.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

class TrayMenuTest : public testing::Test {
  protected:
    /// What the open menu reads; separators as "-", items that cannot be chosen in brackets.
    QStringList items() {
        QStringList read;
        for (const QAction* action : tray.menu().actions()) {
            if (!action->isVisible())
                continue;
            if (action->isSeparator())
                read.append(u"-"_s);
            else
                read.append(action->isEnabled() ? action->text() : u"["_s + action->text() + u"]"_s);
        }
        return read;
    }
    void choose(const QString& item) {
        for (QAction* action : tray.menu().actions()) {
            if (action->text() == item && action->isVisible()) {
                action->trigger();
                return;
            }
        }
        FAIL() << "no item " << item.toStdString();
    }

    ViewDesk desk;
    int quits = 0;
    TrayMenu tray{desk.model, desk.themes, [this] { ++quits; }};
};

TEST_F(TrayMenuTest, WithoutPermissionItBeginsWithAskingForIt) {
    EXPECT_THAT(
        items(), ElementsAre(
                     u"Allow Accessibility…"_s, u"-"_s, u"Show Shortcuts"_s, u"[Or hold ⌘ in any app]"_s,
                     u"-"_s, u"Quit Quillon"_s));
    choose(u"Allow Accessibility…"_s);
    EXPECT_THAT(desk.desktop.windows.opened(), ElementsAre(WindowName::welcome));
}

TEST_F(TrayMenuTest, NamesTheApplicationInFront) {
    desk.trust();
    EXPECT_THAT(
        items(), ElementsAre(u"Show Shortcuts"_s, u"[Or hold ⌘ in any app]"_s, u"-"_s, u"Quit Quillon"_s));
    desk.showSample();
    EXPECT_EQ(items().first(), u"Show Shortcuts for Sketchpad"_s);
    desk.show(emptySheet("Drag & Drop"));
    EXPECT_EQ(items().first(), u"Show Shortcuts for Drag && Drop"_s) << "drawn with one ampersand";
}

TEST_F(TrayMenuTest, TheHintFollowsTheTriggerKey) {
    desk.model.setTrigger(TriggerKey::option);
    EXPECT_THAT(items(), testing::Contains(u"[Or hold ⌥ in any app]"_s));
}

TEST_F(TrayMenuTest, ShowsTheOverlayToStay) {
    desk.trust();
    desk.showSample();
    choose(u"Show Shortcuts for Sketchpad"_s);
    EXPECT_TRUE(desk.model.overlayVisible());
    EXPECT_TRUE(desk.model.overlaySticky());
}

TEST_F(TrayMenuTest, QuitsOnlyOnRequest) {
    tray.show();
    QApplication::processEvents();
    EXPECT_EQ(quits, 0) << "even without a tray";
    choose(u"Quit Quillon"_s);
    EXPECT_EQ(quits, 1);
}

TEST_F(TrayMenuTest, TheIconStandsOutInBothSchemes) {
    const auto lightest = [](ColourScheme scheme) {
        const QImage image = trayIcon(scheme).pixmap(22, 22).toImage();
        int most = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > 200)
                    most = std::max(most, qGray(image.pixel(x, y)));
            }
        }
        return most;
    };
    EXPECT_GT(lightest(ColourScheme::dark), 200);
    EXPECT_LT(lightest(ColourScheme::light), 80);
}

TEST_F(TrayMenuTest, AClickOpensTheMenu) {
    tray.item().clicked(QSystemTrayIcon::Trigger);
    EXPECT_TRUE(tray.menu().isVisible());
    tray.menu().close();
    tray.item().clicked(QSystemTrayIcon::Context);
    EXPECT_FALSE(tray.menu().isVisible()) << "the tray does it";
}

TEST_F(TrayMenuTest, AClickWithTheMiddleButtonShowsTheOverlayToStay) {
    desk.trust();
    desk.showSample();
    tray.item().clicked(QSystemTrayIcon::MiddleClick);
    EXPECT_TRUE(desk.model.overlayVisible());
    EXPECT_TRUE(desk.model.overlaySticky());
    EXPECT_FALSE(tray.menu().isVisible());
}

} // namespace
} // namespace quillon
