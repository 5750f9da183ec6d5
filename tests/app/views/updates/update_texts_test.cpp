#include <quillon/app/views/updates/update_texts.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;

TEST(UpdateTextsTest, UpToDate) {
    const auto message = UpdateTexts::notice(UpdateNotice::upToDate, u"1.2"_s);
    EXPECT_EQ(message.title, u"You’re up to date"_s);
    EXPECT_EQ(
        message.text,
        u"Quillon 1.2 is the newest version. Quillon checks for updates on its own and will let you "
        "know when there’s a new one."_s);
}

TEST(UpdateTextsTest, Unreachable) {
    const auto message = UpdateTexts::notice(UpdateNotice::unreachable, u"1.2"_s);
    EXPECT_EQ(message.title, u"Couldn’t check for updates"_s);
    EXPECT_EQ(
        message.text,
        u"Check your internet connection and try again. Quillon also checks on its own about once a "
        "day."_s);
}

TEST(UpdateTextsTest, WithoutAListItDoesNotSayThatItLooks) {
    const auto message = UpdateTexts::notice(UpdateNotice::withSystem, u"1.2"_s);
    EXPECT_EQ(message.title, u"Updates come with your system’s software"_s);
    EXPECT_FALSE(message.text.contains(u"on its own"_s));
}

TEST(UpdateTextsTest, AVersionIsNoPattern) {
    EXPECT_EQ(UpdateTexts::newer(u"%2"_s, u"1.2"_s).title, u"Quillon %2 is available"_s);
}

} // namespace
} // namespace quillon
