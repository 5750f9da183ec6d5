#include "weeks.h"

#include <quillon/kit/base/program_error.h>

#include <algorithm>
#include <cstdio>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr Day firstMonday = Day(std::chrono::local_days{std::chrono::year{0} / 1 / 3});
constexpr Day lastMonday = Day(std::chrono::local_days{std::chrono::year{9999} / 12 / 27});
static_assert(std::chrono::weekday(firstMonday) == std::chrono::Monday);
static_assert(std::chrono::weekday(lastMonday) == std::chrono::Monday);

Day mondayOf(Day day) {
    const Day within = std::clamp(day, firstMonday, lastMonday);
    return within - (std::chrono::weekday(within) - std::chrono::Monday);
}

std::string nameOf(Day monday) {
    const std::chrono::year_month_day date(monday);
    char text[sizeof "2026-11-16"];
    std::snprintf(
        text, sizeof text, "%04u-%02u-%02u", static_cast<unsigned>(static_cast<int>(date.year())) % 10000U,
        static_cast<unsigned>(date.month()) % 100U, static_cast<unsigned>(date.day()) % 100U);
    return text;
}

} // namespace

std::string weekName(Day day) {
    return nameOf(mondayOf(day));
}

std::vector<std::string> weeksUntil(Day day, int count) {
    if (count < 0)
        programError("a negative number of weeks");
    std::vector<std::string> names;
    for (int back = count - 1; back >= 0; --back)
        names.push_back(nameOf(std::max(mondayOf(day) - back * std::chrono::weeks(1), firstMonday)));
    return names;
}

void WeekBook::click(std::string_view app, Day day) {
    WeekSum& sum = week(app, day);
    sum.clicked = checkedAdd(sum.clicked, 1);
}

void WeekBook::typed(std::string_view app, Day day) {
    WeekSum& sum = week(app, day);
    sum.typed = checkedAdd(sum.typed, 1);
}

const WeekSums& WeekBook::weeks(std::string_view app) const {
    static const WeekSums none;
    const auto found = apps.find(app);
    return found == apps.end() ? none : found->second;
}

/// It stays even when it is the earliest: a clock may have been set back.
WeekSum& WeekBook::week(std::string_view app, Day day) {
    auto known = apps.find(app);
    if (known == apps.end())
        known = apps.emplace(app, WeekSums{}).first;
    WeekSums& weeks = known->second;
    const auto week = weeks.try_emplace(weekName(day)).first;
    while (weeks.size() > mostWeeks)
        weeks.erase(weeks.begin() == week ? std::next(week) : weeks.begin());
    return week->second;
}

} // namespace quillon
