#include <quillon/kit/records/json_codec.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>

namespace quillon {
namespace {

using namespace std::chrono;
using namespace std::string_literals;
using M = Modifiers;

const Instant spring = sys_days{2024y / 5 / 1} + 9h + 30min;

AppSheet sheetWith(MenuEntry entry) {
    return {"com.example.app", "App", {std::move(entry)}, spring};
}

/// A book whose only note is `note`, cut down to the note as it was written.
std::string writtenNote(const std::string& note) {
    AnnotationBook book;
    book.apps["a"]["b"].note = note;
    const std::string json = Json::encode(book).value_or("absent");
    const std::string before = R"({"apps":{"a":{"b":{"muted":false,"note":")";
    const std::string behind = R"(","pinned":false}}}})";
    EXPECT_TRUE(json.starts_with(before) && json.ends_with(behind)) << json;
    return json.substr(before.size(), json.size() - before.size() - behind.size());
}

TEST(JsonEncode, WritesASheet) {
    const AppSheet sheet = sheetWith({{"File", "Save"}, {M::shift | M::command, Key::character("S")}, true});
    EXPECT_EQ(
        Json::encode(sheet),
        R"({"appName":"App","bundleID":"com.example.app","entries":[{"enabled":true,"path":["File","Save"],)"
        R"("shortcut":{"key":{"char":{"_0":"S"}},"modifiers":12}}],"readAt":"2024-05-01T09:30:00Z"})");
}

TEST(JsonEncode, WritesEverySpecialKeyByItsRawValue) {
    for (const SpecialKey key : allSpecialKeys) {
        const std::string json =
            Json::encode(sheetWith({{"File", "X"}, {M::command, Key::special(key)}, false})).value_or("");
        const std::string expected =
            R"("shortcut":{"key":{"special":{"_0":")" + std::string(rawValue(key)) + R"("}},"modifiers":8})";
        EXPECT_NE(json.find(expected), std::string::npos) << json;
    }
}

TEST(JsonEncode, WritesAMapOfSheets) {
    EXPECT_EQ(Json::encode(SheetMap{}), "{}");
    EXPECT_EQ(
        Json::encode(SheetMap{{"b", {"b", "B", {}, spring}}, {"a", {"a", "A", {}, spring}}}),
        R"({"a":{"appName":"A","bundleID":"a","entries":[],"readAt":"2024-05-01T09:30:00Z"},)"
        R"("b":{"appName":"B","bundleID":"b","entries":[],"readAt":"2024-05-01T09:30:00Z"}})");
}

TEST(JsonEncode, WritesUsageWithItsKeysSortedAndAbsentDatesLeftOut) {
    UsageBook book;
    EXPECT_EQ(Json::encode(book), R"({"apps":{}})");
    book.apps["app"]["id"] = {1, 2, 3, 4, spring, spring + 1s};
    EXPECT_EQ(
        Json::encode(book),
        R"({"apps":{"app":{"id":{"clicked":1,"lastClicked":"2024-05-01T09:30:00Z",)"
        R"("lastNudged":"2024-05-01T09:30:01Z","practiceRight":3,"practiceWrong":4,"typed":2}}}})");
    book.apps["app"]["id"] = {};
    EXPECT_EQ(
        Json::encode(book),
        R"({"apps":{"app":{"id":{"clicked":0,"practiceRight":0,"practiceWrong":0,"typed":0}}}})");
}

TEST(JsonEncode, WritesTheEndsOfTheCounters) {
    UsageBook book;
    book.apps["app"]["id"] = {INT64_MAX, INT64_MIN, -1, 0};
    EXPECT_EQ(
        Json::encode(book),
        R"({"apps":{"app":{"id":{"clicked":9223372036854775807,"practiceRight":-1,"practiceWrong":0,)"
        R"("typed":-9223372036854775808}}}})");
}

TEST(JsonEncode, WritesAnnotationsWithAllTheirFields) {
    AnnotationBook book;
    book.set("app", "id", {.pinned = true, .note = "n"});
    EXPECT_EQ(Json::encode(book), R"({"apps":{"app":{"id":{"muted":false,"note":"n","pinned":true}}}})");
}

TEST(JsonEncode, EscapesSlashes) {
    EXPECT_EQ(writtenNote("a/b//"), R"(a\/b\/\/)");
    AnnotationBook book;
    book.togglePin("a/b", "Cut / Paste");
    const std::string json = Json::encode(book).value_or("");
    EXPECT_NE(json.find(R"("a\/b":{"Cut \/ Paste":)"), std::string::npos) << "in names too: " << json;
}

TEST(JsonEncode, EscapesOnlyWhatMustBe) {
    EXPECT_EQ(writtenNote("\"\\"), R"(\"\\)");
    EXPECT_EQ(writtenNote("\b\f\n\r\t"), R"(\b\f\n\r\t)");
    EXPECT_EQ(writtenNote("\0\x01\x1f"s), R"(\u0000\u0001\u001f)");
    for (const char* text : {"›", "⇧⌘S", "é", "e\u0301", "\x7f", "\u2028", "😀", "\U0010ffff", "'<>&"})
        EXPECT_EQ(writtenNote(text), text);
}

TEST(JsonEncode, RefusesTextThatIsNotUtf8) {
    for (const char* broken : {"\xff", "ok\xc3", "\xed\xa0\x80", "\xc0\xaf"}) {
        AnnotationBook note;
        note.set("app", "id", {.note = broken});
        EXPECT_EQ(Json::encode(note), std::nullopt);
        AnnotationBook name;
        name.togglePin("app", broken);
        EXPECT_EQ(Json::encode(name), std::nullopt);
        EXPECT_EQ(Json::encode(AppSheet{"a", broken, {}, spring}), std::nullopt);
        EXPECT_EQ(Json::encode(SheetMap{{broken, {}}}), std::nullopt);
        UsageBook usage;
        usage.typed(broken, "id");
        EXPECT_EQ(Json::encode(usage), std::nullopt);
    }
}

/// Whether every object's names are sorted by their bytes.
bool namesAreSorted(const nlohmann::ordered_json& value) {
    std::string before;
    if (!value.is_structured())
        return true;
    for (const auto& [name, member] : value.items()) {
        if (value.is_object() && name < before)
            return false;
        before = name;
        if (!namesAreSorted(member))
            return false;
    }
    return true;
}

TEST(JsonEncode, WritesOneLineOfSortedJsonForAnyValue) {
    RandomValues random(81);
    for (int round = 0; round < 300; ++round) {
        for (const auto& json :
             {Json::encode(random.sheet()), Json::encode(random.sheets()), Json::encode(random.usageBook()),
              Json::encode(random.annotationBook())}) {
            ASSERT_TRUE(json);
            EXPECT_EQ(json->find_first_of("\n\r\t"), std::string::npos);
            const auto parsed = nlohmann::ordered_json::parse(*json);
            EXPECT_TRUE(namesAreSorted(parsed));
            EXPECT_EQ(
                parsed.dump().size() + static_cast<std::size_t>(std::ranges::count(*json, '/')), json->size())
                << "no blanks, and nothing escaped but what must be and slashes";
        }
    }
}

} // namespace
} // namespace quillon
