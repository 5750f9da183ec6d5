#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/keyed_text.h>
#include <quillon/app/views/components/plain_button.h>
#include <quillon/app/views/components/themed_label.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QFontMetricsF>
#include <QImage>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

QFont textFont() {
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(20);
    return font;
}

/// One line on a picture that is empty otherwise.
QImage lineOf(const QString& text, double ratio = 1) {
    QImage image((QSizeF(200, 40) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(Qt::black);
    KeyedText(text, textFont()).paintLine(painter, QRectF(0, 0, 200, 40), Qt::AlignLeft | Qt::AlignVCenter);
    return image;
}

/// The smallest box around what is drawn, in the image's pixels.
QRect inkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 127)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

TEST(KeyedTextTest, IsForSignsOfKeysAndNotForArrows) {
    EXPECT_TRUE(KeyedText::isNeededFor(u"Hold ⌘"_s));
    EXPECT_TRUE(KeyedText::isNeededFor(u"⌃"_s));
    EXPECT_FALSE(KeyedText::isNeededFor(u"File → Save"_s));
    EXPECT_FALSE(KeyedText::isNeededFor(u"Ctrl, Grüße"_s));
    EXPECT_FALSE(KeyedText::isNeededFor({}));
}

TEST(KeyedTextTest, SignsAreAsLargeAsCapitals) {
    for (const double ratio : {1.0, 2.0}) {
        const QRect capital = inkOf(lineOf(u"H"_s, ratio));
        for (const QString& sign : {u"⌘"_s, u"⌥"_s, u"⇧"_s, u"⌃"_s}) {
            const QRect ink = inkOf(lineOf(sign, ratio));
            EXPECT_GE(ink.width(), capital.width()) << sign.toStdString();
            EXPECT_GE(2 * ink.height(), capital.height()) << sign.toStdString();
            EXPECT_LE(ink.height(), 1.3 * capital.height() + ratio) << sign.toStdString();
            EXPECT_NEAR(ink.center().y(), capital.center().y(), 1.5 * ratio) << sign.toStdString();
        }
    }
}

TEST(KeyedTextTest, TextWithoutSignsIsAsWideAsEver) {
    const double width = QFontMetricsF(textFont()).horizontalAdvance(u"Use Ctrl Instead"_s);
    EXPECT_NEAR(KeyedText(u"Use Ctrl Instead"_s, textFont()).width(), width, 1);
    EXPECT_EQ(KeyedText({}, textFont()).width(), 0);
}

TEST(KeyedTextTest, WhatIsDrawnFitsTheWidthThatIsTold) {
    const KeyedText text(u"⌃ and ⌘"_s, textFont());
    const QRect ink = inkOf(lineOf(u"⌃ and ⌘"_s));
    EXPECT_LE(ink.right(), text.width());
    EXPECT_GE(ink.right(), text.width() - 5);
}

TEST(KeyedTextTest, WrapsBetweenWords) {
    const KeyedText text(u"⌘ or ⌃ and again ⌘ or ⌃"_s, textFont());
    const double line = QFontMetricsF(textFont()).height();
    EXPECT_NEAR(text.height(1000), line, 1);
    EXPECT_NEAR(text.height(text.width() * 0.6), 2 * line, 2);
}

class KeyedLabelTest : public testing::Test {
  protected:
    FakeAppearance appearance;
    ThemeSource themes{appearance};
    ThemedLabel label{themes, [](const TextStyles& styles) { return styles.body; }, &Palette::primary};
};

TEST_F(KeyedLabelTest, HasRoomForItsSigns) {
    label.setText(u"⌃⌃⌃⌃⌃⌃⌃⌃ ⌘⌘⌘⌘⌘⌘⌘⌘"_s);
    const double needed = KeyedText(label.text(), label.font()).width();
    EXPECT_GE(label.sizeHint().width(), needed);
    label.resize(label.sizeHint());
    EXPECT_EQ(label.shownText(), label.text());
    label.setWordWrap(true);
    EXPECT_EQ(label.heightForWidth(static_cast<int>(needed / 2) + 20), 2 * label.heightForWidth(1000));
}

TEST_F(KeyedLabelTest, IsReadAsItIsWritten) {
    label.setText(u"Hold ⌃"_s);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), u"Hold ⌃"_s);
}

TEST_F(KeyedLabelTest, ButtonsHaveRoomToo) {
    const PlainButton few(themes, u"Use ⌃"_s);
    const PlainButton more(themes, u"Use ⌃⌃⌃⌃"_s);
    const int three = more.sizeHint().width() - few.sizeHint().width();
    EXPECT_GE(three, 3 * QFontMetricsF(few.font()).capHeight());
}

} // namespace
} // namespace quillon
