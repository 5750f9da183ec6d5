#include "iso_date.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace quillon {

namespace {

using namespace std::chrono;

constexpr sys_seconds earliest = sys_days{year{0} / 1 / 1};
constexpr sys_seconds latest = sys_days{year{10'000} / 1 / 1} - seconds{1};

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Whether `text` has a digit wherever `pattern` has a '0', and the pattern's own character elsewhere.
bool hasPattern(std::string_view text, std::string_view pattern) {
    return std::ranges::equal(text, pattern, [](char character, char wanted) {
        return wanted == '0' ? isDigit(character) : character == wanted;
    });
}

int number(std::string_view digits) {
    int value = 0;
    for (const char digit : digits)
        value = value * 10 + (digit - '0');
    return value;
}

/// How far local time is ahead of UTC.
std::optional<minutes> parseOffset(std::string_view text) {
    if (text == "Z")
        return minutes{0};
    if (!hasPattern(text, "+00:00") && !hasPattern(text, "-00:00"))
        return std::nullopt;
    const int hour = number(text.substr(1, 2));
    const int minute = number(text.substr(4, 2));
    if (hour > 23 || minute > 59)
        return std::nullopt;
    const minutes offset = hours{hour} + minutes{minute};
    return text.front() == '-' ? -offset : offset;
}

} // namespace

std::string isoDate(Instant instant) {
    const sys_seconds whole = std::clamp(floor<seconds>(instant), earliest, latest);
    const sys_days day = floor<days>(whole);
    const year_month_day date{day};
    const hh_mm_ss time{whole - day};
    std::array<char, 32> text{};
    const int length = std::snprintf(
        text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
        static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
        static_cast<int>(time.seconds().count()));
    return {text.data(), static_cast<std::size_t>(length)};
}

std::optional<Instant> parseIsoDate(std::string_view text) {
    constexpr std::string_view pattern = "0000-00-00T00:00:00";
    if (!hasPattern(text.substr(0, pattern.size()), pattern))
        return std::nullopt;
    const year_month_day date{
        year{number(text.substr(0, 4))}, month{static_cast<unsigned>(number(text.substr(5, 2)))},
        day{static_cast<unsigned>(number(text.substr(8, 2)))}};
    const int hour = number(text.substr(11, 2));
    const int minute = number(text.substr(14, 2));
    const int second = number(text.substr(17, 2));
    const std::optional<minutes> offset = parseOffset(text.substr(pattern.size()));
    if (!date.ok() || hour > 23 || minute > 59 || second > 59 || !offset)
        return std::nullopt;
    return sys_days{date} + hours{hour} + minutes{minute} + seconds{second} - *offset;
}

} // namespace quillon
