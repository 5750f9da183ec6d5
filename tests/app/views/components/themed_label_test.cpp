#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/themed_label.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

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

class LabelOfTwoLinesTest : public ThemedLabelTest {
  protected:
    LabelOfTwoLinesTest() {
        label.setMostLines(2);
        label.setText(QStringLiteral("Find & replace ").repeated(20).trimmed());
        resize(200);
    }
    void resize(int width) { label.resize(width, label.heightForWidth(width)); }
    int lineHeight() const { return QFontMetrics(label.font()).height(); }
};

TEST_F(LabelOfTwoLinesTest, LongTextEndsInAnEllipsis) {
    EXPECT_TRUE(label.shownText().endsWith(u'…')) << label.shownText().toStdString();
    EXPECT_TRUE(label.text().startsWith(label.shownText().chopped(1)));
    EXPECT_GT(label.heightForWidth(200), lineHeight());
    EXPECT_LE(label.heightForWidth(200), 2 * lineHeight() + 2);
    EXPECT_LT(label.minimumSizeHint().width(), 200);
    label.setText(QString(300, u'W'));
    EXPECT_TRUE(label.shownText().endsWith(u'…')) << "without a place between words too";
    EXPECT_GT(label.shownText().size(), 10);
    EXPECT_LT(label.sizeHint().width(), 600);
    label.setText(QStringLiteral("Press ⌃⌘S ").repeated(30));
    EXPECT_TRUE(label.shownText().endsWith(u'…')) << "with signs of keys";
    EXPECT_LE(label.heightForWidth(200), 2 * lineHeight() + 2);
}

TEST_F(LabelOfTwoLinesTest, ShortTextIsWhole) {
    label.setText(u"Save"_s);
    EXPECT_EQ(label.shownText(), u"Save"_s);
    EXPECT_LT(label.heightForWidth(200), 2 * lineHeight());
    label.setText(u"Save the Whole Document"_s);
    EXPECT_EQ(label.shownText(), label.text());
}

TEST_F(LabelOfTwoLinesTest, FollowsItsWidthAndItsFont) {
    const QString narrow = label.shownText();
    resize(400);
    const QString wide = label.shownText();
    EXPECT_GT(wide.size(), narrow.size());
    appearance.set({ColourScheme::light, {}, 30});
    EXPECT_LT(label.shownText().size(), wide.size());
    resize(4000);
    EXPECT_EQ(label.shownText(), label.text());
}

TEST_F(LabelOfTwoLinesTest, TellsTheWholeTextInATooltip) {
    QHelpEvent help(QEvent::ToolTip, {}, {});
    QApplication::sendEvent(&label, &help);
    EXPECT_TRUE(Qt::mightBeRichText(QToolTip::text())) << "else it is one endless line";
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), label.text());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), label.text());
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
