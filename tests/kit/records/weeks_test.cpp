#include <quillon/kit/records/weeks.h>

#include <quillon/kit/records/json_codec.h>

#include <gmock/gmock.h>

#include <chrono>
#include <string>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono;

constexpr Day monday = local_days{year{2026} / 11 / 16};

TEST(Weeks, BeginOnMonday) {
    for (int day = 0; day < 7; ++day)
        EXPECT_EQ(weekName(monday + days(day)), "2026-11-16") << day;
    EXPECT_EQ(weekName(monday - days(1)), "2026-11-09");
    EXPECT_EQ(weekName(monday + days(7)), "2026-11-23");
}

TEST(Weeks, CrossYearsAndLeapDays) {
    EXPECT_EQ(weekName(local_days{year{2027} / 1 / 1}), "2026-12-28");
    EXPECT_EQ(weekName(local_days{year{2024} / 2 / 29}), "2024-02-26");
    EXPECT_EQ(weekName(local_days{year{1969} / 12 / 31}), "1969-12-29");
}

TEST(Weeks, StayWithinFourDigits) {
    EXPECT_EQ(weekName(local_days{year{-40} / 6 / 1}), "0000-01-03");
    EXPECT_EQ(weekName(local_days{year{12000} / 6 / 1}), "9999-12-27");
    EXPECT_THAT(weeksUntil(local_days{year{0} / 1 / 5}, 2), ElementsAre("0000-01-03", "0000-01-03"));
}

TEST(Weeks, TheLastOnesAreNamedInOrder) {
    EXPECT_THAT(weeksUntil(monday + days(3), 3), ElementsAre("2026-11-02", "2026-11-09", "2026-11-16"));
    EXPECT_THAT(weeksUntil(monday, 0), IsEmpty());
}

TEST(WeeksDeathTest, ANegativeNumberIsAProgramError) {
    EXPECT_DEATH(weeksUntil(monday, -1), "a negative number of weeks");
}

TEST(WeekBook, SumsClicksAndTypedUses) {
    WeekBook book;
    book.click("writer", monday);
    book.typed("writer", monday + days(6));
    book.typed("writer", monday + days(7));
    book.typed("sketch", monday);
    EXPECT_EQ(book.weeks("writer"), (WeekSums{{"2026-11-16", {1, 1}}, {"2026-11-23", {0, 1}}}));
    EXPECT_EQ(book.weeks("sketch"), (WeekSums{{"2026-11-16", {0, 1}}}));
    EXPECT_EQ(book.weeks("unknown"), WeekSums());
    EXPECT_EQ(book.apps.size(), 2U) << "asking creates nothing";
}

TEST(WeekBook, ForgetsTheEarliestWeeks) {
    WeekBook book;
    for (int week = 0; week < 300; ++week)
        book.typed("writer", monday + weeks(week));
    EXPECT_EQ(book.weeks("writer").size(), WeekBook::mostWeeks);
    EXPECT_EQ(book.weeks("writer").rbegin()->first, weekName(monday + weeks(299)));
    EXPECT_EQ(book.weeks("writer").begin()->first, weekName(monday + weeks(300 - 104)));
}

TEST(WeekBook, AClockThatWasSetBackStillCounts) {
    WeekBook book;
    for (int week = 0; week < 104; ++week)
        book.typed("writer", monday + weeks(week));
    book.click("writer", monday - weeks(10));
    EXPECT_EQ(book.weeks("writer").size(), WeekBook::mostWeeks);
    EXPECT_EQ(book.weeks("writer").begin()->second, (WeekSum{1, 0}));
}

TEST(WeekBook, IsStoredAsPlainSums) {
    WeekBook book;
    book.click("writer", monday);
    const auto text = Json::encode(book);
    EXPECT_EQ(text, R"({"apps":{"writer":{"2026-11-16":{"clicked":1,"typed":0}}}})");
    EXPECT_EQ(Json::decode<WeekBook>(*text), book);
    EXPECT_EQ(
        Json::decode<WeekBook>(R"({"apps":{"writer":{"2026-11-16":{"clicked":-1,"typed":0}}}})")
            .value_or(WeekBook()),
        WeekBook());
}

} // namespace
} // namespace quillon
