#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/updates/release_notes_view.h>
#include <quillon/tests/support/widgets/active_window.h>

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextCursor>

#include <string>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

class ReleaseNotesViewTest : public testing::Test {
  protected:
    FakeAppearance appearance;
    ThemeSource themes{appearance};
};

TEST_F(ReleaseNotesViewTest, ShowsTheNotes) {
    const ReleaseNotesView view(themes, "<h4>New</h4><ul><li>One</li><li><b>Two</b></li></ul>");
    EXPECT_EQ(view.toPlainText(), u"New\nOne\nTwo"_s);
    EXPECT_TRUE(view.isReadOnly());
}

TEST_F(ReleaseNotesViewTest, LongNotesScroll) {
    std::string notes;
    for (int line = 0; line < 200; ++line)
        notes += "<p>A line of the notes</p>";
    ReleaseNotesView view(themes, notes);
    view.resize(300, 200);
    view.show();
    EXPECT_GT(view.verticalScrollBar()->maximum(), 0);
    QTest::keyClick(&view, Qt::Key_PageDown);
    EXPECT_GT(view.verticalScrollBar()->value(), 0) << "with the keyboard too";
}

TEST_F(ReleaseNotesViewTest, AWordWithoutEndStaysInside) {
    ReleaseNotesView view(themes, std::string(5000, 'x'));
    view.resize(300, 200);
    view.show();
    EXPECT_LE(view.document()->size().width(), 300);
}

TEST_F(ReleaseNotesViewTest, ALinkIsReachedAndFollowedWithTheKeyboard) {
    ReleaseNotesView view(themes, "<p><a href=\"https://example.org/a\">more</a></p>");
    const QSignalSpy followed(&view, &QTextBrowser::anchorClicked);
    view.show();
    ASSERT_TRUE(makeActive(view));
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Tab);
    QTest::keyClick(&view, Qt::Key_Return);
    ASSERT_EQ(followed.size(), 1);
    EXPECT_EQ(followed[0][0].toUrl().toString(), u"https://example.org/a"_s);
    EXPECT_EQ(view.toPlainText(), u"more"_s) << "and nothing else is shown";
}

TEST_F(ReleaseNotesViewTest, LoadsNothing) {
    ReleaseNotesView view(themes, "<img src=\"file:///etc/passwd\">");
    EXPECT_FALSE(view.loadResource(QTextDocument::ImageResource, QUrl(u"file:///etc/passwd"_s)).isValid());
}

/// Of the only link in the notes.
QColor linkColour(const ReleaseNotesView& view) {
    QTextCursor cursor(view.document());
    cursor.movePosition(QTextCursor::NextCharacter);
    return cursor.charFormat().foreground().color();
}

TEST_F(ReleaseNotesViewTest, LinksStandOutAndCanBeReadInBothSchemes) {
    const ReleaseNotesView view(themes, "<p><a href=\"https://example.org/a\">more</a></p>");
    for (const ColourScheme scheme : {ColourScheme::light, ColourScheme::dark}) {
        appearance.set({scheme, {}, {}});
        EXPECT_EQ(linkColour(view), themes.theme().palette.badgeText);
    }
}

TEST_F(ReleaseNotesViewTest, FollowsTheTheme) {
    const ReleaseNotesView view(themes, "<p>One</p>");
    appearance.set({ColourScheme::dark, {}, {}});
    EXPECT_EQ(view.palette().color(QPalette::Base), themes.theme().palette.card);
    EXPECT_EQ(
        view.palette().color(QPalette::Text), themes.theme().palette.forToolkit().color(QPalette::Text));
}

} // namespace
} // namespace quillon
