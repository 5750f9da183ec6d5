#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/themed_label.h>

#include <gtest/gtest.h>

#include <QAccessible>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class ThemedLabelTest : public testing::Test {
  protected:
    FakeAppearance appearance;
    ThemeSource themes{appearance};
    ThemedLabel label{themes, [](const TextStyles& styles) { return styles.body; }, &Palette::secondary};
};

TEST_F(ThemedLabelTest, FollowsColourAndFont) {
    appearance.set({ColourScheme::dark, {}, 30});
    EXPECT_EQ(label.palette().color(QPalette::WindowText), Palette::forScheme(ColourScheme::dark).secondary);
    EXPECT_DOUBLE_EQ(label.font().pointSizeF(), 30);
}

TEST_F(ThemedLabelTest, TextOfOtherApplicationsIsNeverMarkup) {
    label.setText(u"<b>Bold</b> & more"_s);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), u"<b>Bold</b> & more"_s);
}

TEST_F(ThemedLabelTest, LongTextDoesNotMakeItsWindowWide) {
    label.setText(QString(500, u'w'));
    EXPECT_LT(label.minimumSizeHint().width(), 200);
    EXPECT_EQ(label.text().size(), 500) << "the text itself stays whole";
}

TEST_F(ThemedLabelTest, ShortenedTextStaysInside) {
    label.setText(QString(80, u'W'));
    label.resize(120, 30);
    QImage image(200, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    label.render(&image, {}, {}, QWidget::RenderFlags());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 121; x < image.width(); ++x)
            ASSERT_EQ(qAlpha(image.pixel(x, y)), 0);
    }
}

/// The topmost drawn line among columns of a picture.
int highestInk(const QImage& image, int from, int to) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = from; x < to; ++x) {
            if (qAlpha(image.pixel(x, y)) > 127)
                return y;
        }
    }
    return image.height();
}

TEST_F(ThemedLabelTest, ShortenedTextFromRightToLeftEndsOnTheLeft) {
    label.setText(u"העתקת העיצוב של הטקסט המסומן אל כל הפסקאות הבאות במסמך"_s);
    label.resize(120, 30);
    QImage image(120, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    label.render(&image, {}, {}, QWidget::RenderFlags());
    const int letters = highestInk(image, 40, 120);
    EXPECT_EQ(highestInk(image, 112, 120), letters) << "it begins with letters on the right";
    EXPECT_GT(highestInk(image, 0, 6), letters + 3) << "and ends with low dots";
}

} // namespace
} // namespace quillon
