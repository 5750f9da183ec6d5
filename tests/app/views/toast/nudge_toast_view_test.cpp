#include <quillon/app/views/toast/nudge_toast_view.h>
#include <quillon/tests/app/views/support/printing.h>
#include <quillon/tests/app/views/support/view_desk.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>

#include <cstdlib>
#include <string>
#include <utility>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
const Modifiers everyModifier{Modifiers::control, Modifiers::option, Modifiers::shift, Modifiers::command};
const std::string longTitle = "Neues Dokument aus Vorlage erstellen und im gleichen Fenster öffnen…";

MenuEntry command(std::string title, Shortcut shortcut = {Modifiers::control, Key::character("S")}) {
    return {{"File", std::move(title)}, std::move(shortcut), true};
}

TEST(ToastFonts, TheCaptionIsInCapitals) {
    EXPECT_EQ(ToastFonts::of(Theme::fromLook({}, QFont())).caption.capitalization(), QFont::AllUppercase);
}

class NudgeToastViewTest : public testing::Test {
  protected:
    NudgeToastViewTest() { view.show(); }

    KeysView& keys() const { return *view.findChild<KeysView*>(); }
    const ToastLayout& shown() const { return view.arrangement(); }

    void expectAllInside() const {
        const QRectF inside = view.rect().adjusted(18, 14, -18, -14);
        for (const QRectF& box :
             {QRectF(shown().symbol), shown().caption, QRectF(shown().keys), shown().title})
            EXPECT_TRUE(box.isEmpty() || inside.contains(box))
                << box.x() << " " << box.y() << " " << box.width() << " x " << box.height();
        EXPECT_EQ(keys().geometry(), shown().keys);
        EXPECT_EQ(keys().size(), keys().sizeHint()) << "the keys are whole";
        EXPECT_EQ(view.size(), QSize(360, 92));
    }

    ViewDesk desk;
    NudgeToastView view{desk.model, desk.themes};
};

TEST_F(NudgeToastViewTest, ShowsTheKeysAndTheCommand) {
    view.setEntry(command("Save As…", {{Modifiers::shift, Modifiers::control}, Key::character("S")}));
    EXPECT_EQ(keys().shortcut()->display(), "⌃⇧S");
    EXPECT_EQ(shown().shownTitle, u"Save As…"_s);
    expectAllInside();
}

TEST_F(NudgeToastViewTest, FollowsTheModelsNudges) {
    desk.clickInMenu(command("Save"));
    EXPECT_EQ(view.entry(), command("Save"));
    desk.clickInMenu(command("Open"));
    EXPECT_EQ(shown().shownTitle, u"Open"_s);
    EXPECT_EQ(NudgeToastView(desk.model, desk.themes).entry(), command("Open")) << "one made later";
}

TEST_F(NudgeToastViewTest, BeforeTheFirstNudgeThereIsNoCommand) {
    EXPECT_FALSE(view.entry());
    EXPECT_EQ(shown().shownTitle, QString());
    EXPECT_EQ(keys().width(), 0);
}

TEST_F(NudgeToastViewTest, ALongTitleIsShortenedAndTheKeysAreNot) {
    view.setEntry(command(longTitle));
    EXPECT_TRUE(shown().shownTitle.startsWith(u"Neues Dokument"_s)) << shown().shownTitle.toStdString();
    EXPECT_TRUE(shown().shownTitle.endsWith(u'…'));
    EXPECT_GT(shown().title.right(), 360 - 18 - 20) << "nearly all of the room is used";
    expectAllInside();
}

TEST_F(NudgeToastViewTest, TheWidestKeysLeaveTheTitleSomeRoom) {
    view.setEntry(command(longTitle, {everyModifier, Key::special(SpecialKey::space)}));
    EXPECT_GT(shown().title.width(), 60);
    expectAllInside();
}

TEST_F(NudgeToastViewTest, EverythingFitsWithTheLargestInterfaceFont) {
    desk.desktop.appearance.set({ColourScheme::light, {}, 72});
    view.setEntry(command(longTitle, {everyModifier, Key::special(SpecialKey::space)}));
    EXPECT_GT(shown().title.width(), 40);
    expectAllInside();
}

TEST_F(NudgeToastViewTest, AFontThatGrowsWhileItShowsFitsToo) {
    view.setEntry(command(longTitle, {everyModifier, Key::special(SpecialKey::space)}));
    const QRect before = shown().keys;
    desk.desktop.appearance.set({ColourScheme::light, {}, 11.5});
    EXPECT_GT(shown().keys.width(), before.width());
    expectAllInside();
    NudgeToastView later(desk.model, desk.themes);
    later.setEntry(*view.entry());
    EXPECT_EQ(later.arrangement().title, shown().title);
}

TEST_F(NudgeToastViewTest, ATitleStandsBelowNamesThatLeaveItNoRoom) {
    desk.settings.setKeyLabels(KeyLabels::names);
    view.setEntry(command(longTitle, {everyModifier, Key::special(SpecialKey::pageDown)}));
    EXPECT_GT(shown().title.top(), shown().keys.center().y());
    EXPECT_EQ(shown().title.x(), shown().keys.x());
    EXPECT_GT(shown().title.width(), 200);
    expectAllInside();
    view.setEntry(command("Save", {Modifiers::control, Key::character("S")}));
    EXPECT_LT(shown().keys.right(), shown().title.x()) << "beside short keys";
    expectAllInside();
}

TEST_F(NudgeToastViewTest, EveryKeyFitsByItsNameWithTheLargestInterfaceFont) {
    desk.settings.setKeyLabels(KeyLabels::names);
    for (const double points : {9.0, 72.0}) {
        desk.desktop.appearance.set({ColourScheme::light, {}, points});
        for (const SpecialKey key : allSpecialKeys) {
            view.setEntry(command(longTitle, {everyModifier, Key::special(key)}));
            EXPECT_LE(keys().sizeHint().width(), keys().width());
            expectAllInside();
        }
    }
}

TEST_F(NudgeToastViewTest, ShownKeysBecomeNamesAtOnce) {
    view.setEntry(command("Save", {{Modifiers::shift, Modifiers::control}, Key::character("S")}));
    const int symbols = shown().keys.width();
    desk.settings.setKeyLabels(KeyLabels::names);
    EXPECT_GT(shown().keys.width(), symbols);
    EXPECT_EQ(view.accessibleName(), u"Next time: Ctrl Shift S for Save"_s);
    expectAllInside();
    desk.settings.setKeyLabels(KeyLabels::symbols);
    EXPECT_EQ(shown().keys.width(), symbols);
    EXPECT_EQ(view.accessibleName(), u"Next time: Control Shift S for Save"_s);
}

TEST_F(NudgeToastViewTest, ATitleFromRightToLeftStandsBesideItsKeys) {
    view.setEntry(command("שמירה בשם…"));
    EXPECT_DOUBLE_EQ(shown().title.x(), shown().keys.right() + 1 + 10);
    EXPECT_LT(shown().title.right(), 360 - 18 - 20) << "no wider than its text";
    expectAllInside();
}

TEST_F(NudgeToastViewTest, AnInterfaceFromRightToLeftIsMirrored) {
    view.setEntry(command("שמירה בשם…"));
    const QRect before = shown().keys;
    view.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(shown().keys.right(), 359 - before.left());
    EXPECT_LT(shown().title.right(), shown().keys.x());
    EXPECT_GT(shown().symbol.x(), shown().keys.right());
    expectAllInside();
}

TEST_F(NudgeToastViewTest, ATitleIsShownOnOneLineAsItIs) {
    view.setEntry(command("<b>A\nb & c"));
    EXPECT_EQ(shown().shownTitle, u"<b>A␤b & c"_s);
    expectAllInside();
}

/// The lowest drawn line of a part of a picture.
int lowestInk(const QImage& image, const QRect& part) {
    const int background = qGray(image.pixel(part.topLeft()));
    for (int y = part.bottom(); y >= part.top(); --y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (std::abs(qGray(image.pixel(x, y)) - background) > 100)
                return y;
        }
    }
    return -1;
}

TEST_F(NudgeToastViewTest, TitleAndKeysStandOnOneLine) {
    view.setEntry(command("HHH", {Modifiers::control, Key::character("H")}));
    const QImage image = view.grab().toImage();
    const QRect keys = shown().keys;
    const QRect lastCap(keys.right() - 20, keys.y() + 2, 18, keys.height() - 4);
    const QRect title(keys.right() + 5, keys.y() + 2, 30, keys.height() - 4);
    EXPECT_EQ(lowestInk(image, title), lowestInk(image, lastCap));
}

TEST_F(NudgeToastViewTest, AShortenedTitleFromRightToLeftEndsOnTheLeft) {
    view.setEntry(command("העתקת העיצוב של הטקסט המסומן אל כל הפסקאות הבאות במסמך"));
    const QImage image = view.grab().toImage();
    const QRect title = shown().title.toAlignedRect();
    const auto highestFrom = [&](int x) {
        for (int y = title.y(); y <= title.bottom(); ++y) {
            for (int at = x; at < x + 5; ++at) {
                if (qGray(image.pixel(at, y)) < 120)
                    return y;
            }
        }
        return title.bottom() + 1;
    };
    const int letter = highestFrom(title.right() - 6);
    EXPECT_LT(letter, title.bottom() - 5);
    EXPECT_GT(highestFrom(title.x()), letter + 3) << "low dots";
}

TEST_F(NudgeToastViewTest, IsDrawnOnTheWindowsBackgroundOfTheThemeInForce) {
    view.setEntry(command("Save"));
    const auto background = [this] { return view.grab().toImage().pixelColor(180, 86); };
    EXPECT_EQ(background(), desk.themes.theme().palette.window);
    desk.desktop.appearance.set({ColourScheme::dark, {}, {}});
    EXPECT_EQ(background(), Palette::forScheme(ColourScheme::dark).window);
}

class NudgeToastAccessibleTest : public NudgeToastViewTest {
  protected:
    QAccessibleInterface& read() { return *QAccessible::queryAccessibleInterface(&view); }
};

TEST_F(NudgeToastAccessibleTest, IsOneNoticeThatTellsKeysAndCommand) {
    view.setEntry(command("Save As…", {{Modifiers::shift, Modifiers::control}, Key::character("S")}));
    EXPECT_EQ(read().role(), QAccessible::Notification);
    EXPECT_EQ(read().text(QAccessible::Name), u"Next time: Control Shift S for Save As…"_s);
    EXPECT_EQ(read().childCount(), 0);
    EXPECT_FALSE(read().state().focusable);
}

TEST_F(NudgeToastAccessibleTest, ALongTitleIsReadWhole) {
    view.setEntry(command(longTitle));
    EXPECT_EQ(
        read().text(QAccessible::Name), u"Next time: Control S for "_s + QString::fromStdString(longTitle));
}

TEST_F(NudgeToastAccessibleTest, ACommandWithoutAPathIsReadToo) {
    view.setEntry({{}, {Modifiers::control, Key::character("S")}, true});
    EXPECT_EQ(read().text(QAccessible::Name), u"Next time: Control S for "_s);
}

TEST_F(NudgeToastAccessibleTest, ItsPartsAreNotReadByThemselves) {
    view.setEntry(command("Save"));
    for (QWidget* part : view.findChildren<QWidget*>()) {
        const QAccessibleInterface* element = QAccessible::queryAccessibleInterface(part);
        EXPECT_TRUE(element->state().invisible) << part->metaObject()->className();
        EXPECT_EQ(element->text(QAccessible::Name), QString());
    }
}

} // namespace
} // namespace quillon
