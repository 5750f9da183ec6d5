#include <quillon/kit/records/json_codec.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace quillon {
namespace {

using namespace std::chrono;

std::string written(Instant instant) {
    const std::string json = Json::encode(AppSheet{"", "", {}, instant}).value_or("absent");
    const std::string before = R"({"appName":"","bundleID":"","entries":[],"readAt":")";
    EXPECT_TRUE(json.starts_with(before) && json.ends_with(R"("})"));
    return json.substr(before.size(), json.size() - before.size() - 2);
}

std::optional<Instant> read(const std::string& date) {
    const auto sheet =
        Json::decode<AppSheet>(R"({"appName":"","bundleID":"","entries":[],"readAt":")" + date + R"("})");
    return sheet ? std::optional(sheet->readAt) : std::nullopt;
}

TEST(JsonDates, AreIsoDatesInUtc) {
    EXPECT_EQ(written(sys_days{2024y / 5 / 1} + 9h + 30min), "2024-05-01T09:30:00Z");
    EXPECT_EQ(written(Instant()), "1970-01-01T00:00:00Z");
    EXPECT_EQ(written(sys_days{2024y / 2 / 29} + 23h + 59min + 59s), "2024-02-29T23:59:59Z");
    EXPECT_EQ(written(Instant(1'791'600'000s)), "2026-10-10T02:40:00Z");
}

TEST(JsonDates, DropWhatLiesWithinASecond) {
    EXPECT_EQ(written(Instant(999'999us)), "1970-01-01T00:00:00Z");
    EXPECT_EQ(written(Instant(1'500ms)), "1970-01-01T00:00:01Z");
    EXPECT_EQ(written(Instant(-1us)), "1969-12-31T23:59:59Z");
}

TEST(JsonDates, ReachFromTheYearZeroToTheYear9999) {
    EXPECT_EQ(written(distantPast), "0001-01-01T00:00:00Z");
    EXPECT_EQ(read("0001-01-01T00:00:00Z"), distantPast);
    EXPECT_EQ(written(sys_days{year{0} / 1 / 1}), "0000-01-01T00:00:00Z");
    EXPECT_EQ(read("0000-02-29T12:00:00Z"), Instant(sys_days{year{0} / 2 / 29} + 12h));
    EXPECT_EQ(read("9999-12-31T23:59:59Z"), Instant(sys_days{year{10'000} / 1 / 1} - 1s));
}

TEST(JsonDates, StayReadableForInstantsThatNoFourDigitsName) {
    EXPECT_EQ(written(Instant::min()), "0000-01-01T00:00:00Z");
    EXPECT_EQ(written(sys_days{year{-1} / 12 / 31}), "0000-01-01T00:00:00Z");
    EXPECT_EQ(written(Instant::max()), "9999-12-31T23:59:59Z");
    EXPECT_EQ(written(sys_days{year{10'000} / 1 / 1}), "9999-12-31T23:59:59Z");
    EXPECT_TRUE(read(written(Instant::min())));
    EXPECT_TRUE(read(written(Instant::max())));
}

TEST(JsonDates, ReadBackAsTheSameInstantEveryDay) {
    for (sys_days day = sys_days{1899y / 12 / 1}; day < sys_days{2101y / 1 / 1}; day += days{1}) {
        const Instant instant =
            day + seconds{(day.time_since_epoch().count() * 7919) % 86'400 + 86'400} % 86'400;
        ASSERT_EQ(read(written(instant)), instant) << written(instant);
    }
}

TEST(JsonDates, MayNameAnOffset) {
    const Instant noon = sys_days{2024y / 5 / 1} + 12h;
    EXPECT_EQ(read("2024-05-01T12:00:00+00:00"), noon);
    EXPECT_EQ(read("2024-05-01T14:00:00+02:00"), noon);
    EXPECT_EQ(read("2024-05-01T06:30:00-05:30"), noon);
    EXPECT_EQ(read("2024-05-02T11:59:00+23:59"), noon);
    EXPECT_TRUE(read("9999-12-31T23:59:59-23:59"));
    EXPECT_TRUE(read("0000-01-01T00:00:00+23:59"));
}

TEST(JsonDates, AreNothingElse) {
    for (const char* text :
         {"",
          "Z",
          "2024-05-01",
          "2024-05-01T09:30:00",
          "2024-05-01 09:30:00Z",
          "2024-05-01T09:30Z",
          "2024-05-01T09:30:00.5Z",
          "2024-05-01t09:30:00z",
          "2024-05-01T09:30:00ZZ",
          "2024-05-01T09:30:00+2:00",
          "2024-05-01T09:30:00+0200",
          "2024-05-01T09:30:00+24:00",
          "2024-05-01T09:30:00+02:60",
          "2024-05-01T09:30:00*02:00",
          "2024-05-01T24:00:00Z",
          "2024-05-01T23:60:00Z",
          "2024-05-01T23:59:60Z",
          "2024-00-01T00:00:00Z",
          "2024-13-01T00:00:00Z",
          "2024-04-31T00:00:00Z",
          "2023-02-29T00:00:00Z",
          "2024-05-00T00:00:00Z",
          "+2024-05-01T09:30:00Z",
          "-001-05-01T09:30:00Z",
          "20240-5-01T09:30:00Z",
          "２０２４-05-01T09:30:00Z",
          " 2024-05-01T09:30:00Z",
          "2024-05-01T09:30:00Z ",
          "1714555800"})
        EXPECT_EQ(read(text), std::nullopt) << text;
}

} // namespace
} // namespace quillon
