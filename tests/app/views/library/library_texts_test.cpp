#include <quillon/app/views/library/library_texts.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

std::string ago(double seconds) {
    return LibraryTexts::ago(Seconds(seconds)).toStdString();
}

TEST(LibraryTextsTest, ATimeIsToldInItsLargestUnit) {
    EXPECT_EQ(ago(0), "now");
    EXPECT_EQ(ago(0.9), "now");
    EXPECT_EQ(ago(-100), "now") << "on a clock that was set";
    EXPECT_EQ(ago(1), "1 second ago");
    EXPECT_EQ(ago(59.9), "59 seconds ago");
    EXPECT_EQ(ago(60), "1 minute ago");
    EXPECT_EQ(ago(3599), "59 minutes ago");
    EXPECT_EQ(ago(3600), "1 hour ago");
    EXPECT_EQ(ago(3 * 3600 + 10), "3 hours ago");
    EXPECT_EQ(ago(86400), "yesterday");
    EXPECT_EQ(ago(2 * 86400), "2 days ago");
    EXPECT_EQ(ago(7 * 86400), "last week");
    EXPECT_EQ(ago(21 * 86400), "3 weeks ago");
    EXPECT_EQ(ago(30 * 86400), "last month");
    EXPECT_EQ(ago(100 * 86400), "3 months ago");
    EXPECT_EQ(ago(365 * 86400), "last year");
    EXPECT_EQ(ago(3 * 365 * 86400.0), "3 years ago");
}

TEST(LibraryTextsTest, Sentences) {
    EXPECT_EQ(LibraryTexts::statistics(59, u"yesterday"_s), u"59 shortcuts · menus read yesterday"_s);
    EXPECT_EQ(LibraryTexts::menuClicks(14), u"14 menu clicks"_s);
    EXPECT_EQ(LibraryTexts::shortcutsTyped(3), u"3 shortcuts typed"_s);
    EXPECT_EQ(LibraryTexts::counts(14, 3), u"14 clicked · 3 typed"_s);
    EXPECT_EQ(LibraryTexts::noAppsText(u"⌘"_s), u"Hold ⌘ in any app; its shortcuts show up here."_s);
}

} // namespace
} // namespace quillon
