#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/keys_view.h>
#include <quillon/tests/app/views/support/printing.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QFontMetricsF>
#include <QImage>
#include <QRawFont>
#include <QTextLayout>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

const Modifiers everyModifier{Modifiers::command, Modifiers::shift, Modifiers::option, Modifiers::control};

class KeyCapsTest : public testing::Test {
  protected:
    FakeAppearance appearance;
    ThemeSource themes{appearance};
    const Shortcut save{Modifiers::command, Key::character("S")};
};

TEST_F(KeyCapsTest, AllModifiersComeInTheirFixedOrderBeforeTheKey) {
    EXPECT_EQ(
        capTexts({everyModifier, Key::character("K")}, nullptr),
        (QStringList{u"⌃"_s, u"⌥"_s, u"⇧"_s, u"⌘"_s, u"K"_s}));
}

TEST_F(KeyCapsTest, AKeyAloneIsOneCap) {
    EXPECT_EQ(capTexts({{}, Key::special(SpecialKey::f5)}, nullptr), QStringList{u"F5"_s});
    EXPECT_EQ(capTexts({{}, Key::special(SpecialKey::delete_)}, nullptr), QStringList{u"⌫"_s});
}

TEST_F(KeyCapsTest, CapsAreThreeApartAndNeverHigherThanWide) {
    constexpr double size = 20;
    const KeyCaps caps(themes.theme(), size);
    EXPECT_EQ(caps.width({{}, Key::character("I")}), 1.7 * size);
    EXPECT_EQ(caps.width({Modifiers::command, Key::character("I")}), 2 * 1.7 * size + 3);
    EXPECT_GE(caps.height(), 1.5 * size);
    EXPECT_LE(caps.height(), 1.7 * size);
}

TEST_F(KeyCapsTest, LongKeysHavePaddingOnBothSides) {
    constexpr double size = 20;
    const KeyCaps caps(themes.theme(), size);
    const QFontMetricsF metrics(semibold(atSize(themes.theme().styles.body, size)));
    EXPECT_NEAR(
        caps.width({{}, Key::special(SpecialKey::space)}),
        metrics.horizontalAdvance(u"Space"_s) + 2 * 0.35 * size, 1);
}

TEST_F(KeyCapsTest, DigitsAreAllOfOneWidth) {
    const KeyCaps caps(themes.theme(), 16);
    EXPECT_EQ(
        caps.width({{}, Key::special(SpecialKey::f11)}), caps.width({{}, Key::special(SpecialKey::f18)}));
}

TEST_F(KeyCapsTest, EveryGlyphThatAKeyCanShowHasAFont) {
    const QFont font = themes.theme().styles.body;
    for (const SpecialKey key : allSpecialKeys) {
        const QString cap = capTexts({everyModifier, Key::special(key)}, nullptr).last();
        QTextLayout layout(cap, font);
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        const QList<QGlyphRun> runs = layout.glyphRuns();
        EXPECT_FALSE(runs.isEmpty()) << cap.toStdString() << " is not drawn";
        for (const QGlyphRun& run : runs)
            EXPECT_FALSE(run.glyphIndexes().contains(0)) << cap.toStdString() << " has no glyph";
    }
}

TEST_F(KeyCapsTest, NothingIsDrawnBeyondTheMeasuredSize) {
    const KeyCaps caps(themes.theme(), 13);
    for (const SpecialKey key : allSpecialKeys) {
        const Shortcut shortcut{everyModifier, Key::special(key)};
        const QSize size = QSizeF(caps.width(shortcut), caps.height()).toSize();
        QImage image(size + QSize(40, 40), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        caps.paint(painter, QPointF(20, 20), shortcut);
        painter.end();
        const QRect inside(QPoint(20, 20), size);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (!inside.contains(x, y)) {
                    ASSERT_EQ(qAlpha(image.pixel(x, y)), 0) << x << ", " << y;
                }
            }
        }
        EXPECT_GT(qAlpha(image.pixel(inside.left() + 4, inside.center().y())), 0);
    }
}

TEST_F(KeyCapsTest, TheTextOfCapsIsAsLargeAsTheTextBesideThem) {
    EXPECT_EQ(themes.theme().keySize(), pixelSize(themes.theme().styles.body));
}

TEST_F(KeyCapsTest, ProminentCapsAreFilledMoreStrongly) {
    const auto fill = [&](CapEmphasis emphasis) {
        KeysView view(themes, save, 20, emphasis);
        QImage image(view.sizeHint(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        view.resize(view.sizeHint());
        view.render(&image, {}, {}, QWidget::RenderFlags());
        return qAlpha(image.pixel(4, image.height() / 2));
    };
    EXPECT_GT(fill(CapEmphasis::prominent), fill(CapEmphasis::plain));
}

TEST_F(KeyCapsTest, TheViewIsOneTextToScreenReaders) {
    KeysView view(themes, Shortcut{everyModifier, Key::character("S")}, 13);
    const QAccessibleInterface* element = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->text(QAccessible::Name), u"⌃⌥⇧⌘S"_s);
    EXPECT_EQ(element->childCount(), 0);
    view.setShortcut(save);
    EXPECT_EQ(element->text(QAccessible::Name), u"⌘S"_s);
}

TEST_F(KeyCapsTest, TheViewShowsAndReadsNamesAsSoonAsTheyAreChosen) {
    KeysView view(themes, Shortcut{Modifiers::control | Modifiers::shift, Key::character(",")}, 13);
    const int symbols = view.sizeHint().width();
    themes.setKeyLabels(KeyLabels::names);
    EXPECT_GT(view.sizeHint().width(), symbols);
    EXPECT_EQ(view.accessibleName(), u"Ctrl Shift Comma"_s);
    view.setShortcut(save);
    EXPECT_EQ(view.accessibleName(), u"Super S"_s);
    themes.setKeyLabels(KeyLabels::symbols);
    EXPECT_EQ(view.accessibleName(), u"⌘S"_s);
}

TEST_F(KeyCapsTest, NamesAreWrittenAndArrowsAreDrawn) {
    const KeyNames& names = KeyNames::english();
    EXPECT_EQ(
        capTexts({everyModifier, Key::special(SpecialKey::left)}, &names),
        (QStringList{u"Ctrl"_s, u"Alt"_s, u"Shift"_s, u"Super"_s, u"←"_s}));
    EXPECT_EQ(
        capTexts({Modifiers::control, Key::special(SpecialKey::backTab)}, &names),
        (QStringList{u"Ctrl"_s, u"Shift"_s, u"Tab"_s}));
}

TEST_F(KeyCapsTest, NamesAreAsHighAsSymbolsAndStandOnTheSameLine) {
    const KeyCaps symbols(themes.theme(), 13);
    themes.setKeyLabels(KeyLabels::names);
    const KeyCaps names(themes.theme(), 13);
    EXPECT_EQ(names.height(), symbols.height());
    EXPECT_EQ(names.baseline(), symbols.baseline());
}

TEST_F(KeyCapsTest, AnotherLookKeepsTheNames) {
    themes.setKeyLabels(KeyLabels::names);
    appearance.set({ColourScheme::dark, {}, 14});
    ASSERT_TRUE(themes.theme().keyNames);
    EXPECT_EQ(themes.theme().keyNames->nameOf(Modifiers::control).shown, "Ctrl");
}

TEST_F(KeyCapsTest, TheViewGrowsWithAnotherThemesFont) {
    KeysView view(themes, Shortcut{{}, Key::special(SpecialKey::space)}, 13);
    const QSize before = view.sizeHint();
    view.setSize(26);
    EXPECT_GT(view.sizeHint().width(), before.width());
    EXPECT_GT(view.sizeHint().height(), before.height());
}

} // namespace
} // namespace quillon
