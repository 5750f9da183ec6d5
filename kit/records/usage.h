#pragma once

#include <quillon/kit/base/checked.h>
#include <quillon/kit/base/instant.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// No larger counter is read from a file, and none below 0: nobody clicks so often, and the counters of the
/// largest file that is read (DataFile::largestSize) can still be added up and counted on.
inline constexpr Count largestStoredCount = 100'000'000'000;

/// How one command of one application was reached so far.
struct UsageRecord {
    Count clicked = 0;       ///< chosen by clicking its menu item
    Count typed = 0;         ///< its shortcut was typed
    Count practiceRight = 0; ///< practice answers that were right
    Count practiceWrong = 0; ///< practice answers that were wrong or revealed
    std::optional<Instant> lastClicked = {};
    std::optional<Instant> lastNudged = {};

    bool operator==(const UsageRecord&) const = default;
};

/// The records of one application, by entry id.
using UsageRecords = std::map<std::string, UsageRecord, std::less<>>;

/// All records of all applications, keyed by bundle identifier and then by entry id. Counters are checked:
/// one that would overflow stops the program.
class UsageBook {
  public:
    std::map<std::string, UsageRecords, std::less<>> apps;

    /// One more click, at `time`.
    void click(std::string_view app, std::string_view id, Instant time);
    /// One more typed use.
    void typed(std::string_view app, std::string_view id);
    /// A nudge was shown at `time`; no counter changes.
    void nudged(std::string_view app, std::string_view id, Instant time);
    /// One more practice answer.
    void practiced(std::string_view app, std::string_view id, bool correct);

    /// The stored record; absent for an unknown application or id.
    std::optional<UsageRecord> record(std::string_view app, std::string_view id) const;
    /// The application's records; empty for an unknown application. Valid until the book changes.
    const UsageRecords& records(std::string_view app) const;

    struct Totals {
        Count clicked = 0;
        Count typed = 0;
        bool operator==(const Totals&) const = default;
    };
    /// The sums over all records of the application.
    Totals totals(std::string_view app) const;

    struct Ranked {
        std::string id;
        UsageRecord record;
        bool operator==(const Ranked&) const = default;
    };
    /// The clicked commands, those first that clicking leads typing by most; among equals the larger id (by
    /// code points) first. At most `limit` of them; a negative limit is a program error.
    std::vector<Ranked> mostClicked(std::string_view app, Count limit) const;

    bool operator==(const UsageBook&) const = default;
};

} // namespace quillon

template <>
struct std::hash<quillon::UsageRecord> {
    std::size_t operator()(const quillon::UsageRecord& record) const noexcept;
};
template <>
struct std::hash<quillon::UsageBook> {
    std::size_t operator()(const quillon::UsageBook& book) const noexcept;
};
