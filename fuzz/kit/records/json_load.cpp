#include <quillon/fuzz/support/law.h>

#include <quillon/kit/base/unicode.h>
#include <quillon/kit/records/json_codec.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <string_view>

namespace quillon {
namespace {

/// What loads can be saved, as valid text, and then loads as itself. (The first saving may move a date that
/// no four digits name.)
template <class Value>
void check(std::string_view text) {
    const Outcome<Value, Json::Fault> value = Json::tryDecode<Value>(text);
    if (const Json::Fault* const fault = value.failure()) {
        QUILLON_LAW(fault->offset <= text.size() && !fault->reason.empty());
        QUILLON_LAW(unicode::isValid(fault->reason));
        return;
    }
    QUILLON_LAW(unicode::isValid(text));
    QUILLON_LAW(text.find('\0') == std::string_view::npos);
    const std::optional<std::string> written = Json::encode(*value);
    QUILLON_LAW(written.has_value());
    QUILLON_LAW(written->find('\n') == std::string::npos);
    const std::optional<Value> again = Json::decode<Value>(*written);
    QUILLON_LAW(again.has_value());
    QUILLON_LAW(Json::encode(*again) == written);
    QUILLON_LAW(Json::decode<Value>(*Json::encode(*again)) == again);
    QUILLON_LAW(*again != *value || std::hash<Value>{}(*again) == std::hash<Value>{}(*value));
}

/// What loads can be counted on: none of this ends the program.
void checkCounting(std::string_view text) {
    std::optional<UsageBook> book = Json::decode<UsageBook>(text);
    if (!book)
        return;
    const UsageBook loaded = *book;
    for (const auto& [app, records] : loaded.apps) {
        for (const auto& [id, record] : records) {
            QUILLON_LAW(record.clicked >= 0 && record.clicked <= largestStoredCount);
            book->click(app, id, Instant());
            book->typed(app, id);
            book->practiced(app, id, true);
            book->practiced(app, id, false);
        }
        const UsageBook::Totals before = loaded.totals(app);
        QUILLON_LAW(before.clicked >= 0 && before.typed >= 0);
        QUILLON_LAW(book->totals(app).clicked == before.clicked + std::ssize(records));
        QUILLON_LAW(book->mostClicked(app, std::ssize(records)).size() == records.size());
    }
}

void checkWeeks(std::string_view text) {
    std::optional<WeekBook> book = Json::decode<WeekBook>(text);
    if (!book)
        return;
    const std::optional<std::string> written = Json::encode(*book);
    QUILLON_LAW(written.has_value());
    QUILLON_LAW(Json::decode<WeekBook>(*written) == book);
    const WeekBook loaded = *book;
    for (const auto& [app, weeks] : loaded.apps) {
        book->click(app, Day());
        book->typed(app, Day());
        QUILLON_LAW(book->weeks(app).size() <= WeekBook::mostWeeks);
        QUILLON_LAW(book->weeks(app).at(weekName(Day())).typed >= 1);
    }
}

void checkMap(std::string_view text) {
    const std::optional<SheetMap> sheets = Json::decode<SheetMap>(text);
    if (!sheets)
        return;
    const std::optional<std::string> written = Json::encode(*sheets);
    QUILLON_LAW(written.has_value());
    const std::optional<SheetMap> again = Json::decode<SheetMap>(*written);
    QUILLON_LAW(again.has_value() && Json::encode(*again) == written);
    for (const auto& [bundleID, sheet] : *sheets) {
        for (const MenuEntry& entry : sheet.entries)
            QUILLON_LAW(sheet.entry(entry.id())->id() == entry.id());
    }
}

} // namespace
} // namespace quillon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    quillon::check<quillon::AppSheet>(text);
    quillon::check<quillon::UsageBook>(text);
    quillon::check<quillon::AnnotationBook>(text);
    quillon::checkCounting(text);
    quillon::checkWeeks(text);
    quillon::checkMap(text);
    return 0;
}
