#pragma once

#include <quillon/kit/base/checked.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// A day of the user's own calendar.
using Day = std::chrono::local_days;

/// What a week is called in files: the date of its Monday, "2026-11-16". Later weeks have larger names. Years
/// have four digits; a day outside of 0000 to 9999 counts for the nearest week inside.
std::string weekName(Day day);

/// The names of so many weeks, the earliest first, that of `day` the last. A negative `count` is a program
/// error.
std::vector<std::string> weeksUntil(Day day, int count);

/// How the commands of one application that have a shortcut were reached in one week.
struct WeekSum {
    Count clicked = 0; ///< by clicking their menu items
    Count typed = 0;   ///< by their shortcuts

    bool operator==(const WeekSum&) const = default;
};

/// The weeks of one application in which something was counted, by name.
using WeekSums = std::map<std::string, WeekSum, std::less<>>;

/// The weekly sums of all applications, by bundle identifier. They tell of no single command and of no time
/// of a day. Counters are checked: one that would overflow stops the program.
class WeekBook {
  public:
    /// No more weeks are kept of one application; the earliest go.
    static constexpr std::size_t mostWeeks = 104;

    std::map<std::string, WeekSums, std::less<>> apps;

    void click(std::string_view app, Day day);
    void typed(std::string_view app, Day day);

    /// Those of an application; empty for an unknown one. Valid until the book changes.
    const WeekSums& weeks(std::string_view app) const;

    bool operator==(const WeekBook&) const = default;

  private:
    WeekSum& week(std::string_view app, Day day);
};

} // namespace quillon
