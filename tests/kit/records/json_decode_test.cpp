#include <quillon/kit/records/data_file.h>
#include <quillon/kit/records/json_codec.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace quillon {
namespace {

using namespace std::chrono;

const std::string goodKey = R"({"char":{"_0":"S"}})";

std::string entryWithKey(const std::string& key) {
    return R"({"enabled":true,"path":["File","Save"],"shortcut":{"key":)" + key + R"(,"modifiers":12}})";
}

std::string sheetWithEntries(const std::string& entries) {
    return R"({"appName":"App","bundleID":"id","entries":)" + entries
           + R"(,"readAt":"2024-05-01T09:30:00Z"})";
}

std::optional<Key> readKey(const std::string& key) {
    const auto sheet = Json::decode<AppSheet>(sheetWithEntries("[" + entryWithKey(key) + "]"));
    return sheet ? std::optional(sheet->entries.at(0).shortcut.key) : std::nullopt;
}

std::string usageWith(const std::string& record) {
    return R"({"apps":{"app":{"id":)" + record + "}}}";
}

std::optional<UsageRecord> readUsage(const std::string& record) {
    const auto book = Json::decode<UsageBook>(usageWith(record));
    return book ? book->record("app", "id") : std::nullopt;
}

std::optional<Annotation> readAnnotation(const std::string& annotation) {
    const auto book = Json::decode<AnnotationBook>(R"({"apps":{"app":{"id":)" + annotation + "}}}");
    return book ? std::optional(book->get("app", "id")) : std::nullopt;
}

TEST(JsonDecode, ReadsASheet) {
    const AppSheet expected{
        "id",
        "App",
        {{{"File", "Save"}, {Modifiers(12), Key::character("S")}, true}},
        sys_days{2024y / 5 / 1} + 9h + 30min};
    EXPECT_EQ(Json::decode<AppSheet>(sheetWithEntries("[" + entryWithKey(goodKey) + "]")), expected);
    EXPECT_EQ(Json::decode<SheetMap>(R"({"x":)" + sheetWithEntries("[]") + "}")->at("x").appName, "App");
    EXPECT_EQ(Json::decode<SheetMap>("{}"), SheetMap());
}

TEST(JsonDecode, ReadsKeysOfBothKinds) {
    EXPECT_EQ(readKey(goodKey), Key::character("S"));
    EXPECT_EQ(readKey(R"({"special":{"_0":"returnKey"}})"), Key::special(SpecialKey::returnKey));
    EXPECT_EQ(readKey(R"({"char":{"_0":""}})"), Key::character(""));
    for (const SpecialKey key : allSpecialKeys)
        EXPECT_EQ(
            readKey(R"({"special":{"_0":")" + std::string(rawValue(key)) + R"("}})"), Key::special(key));
}

TEST(JsonDecode, AKeyIsExactlyOneOfTheTwo) {
    for (const char* key :
         {"{}", R"({"other":{"_0":"S"}})", R"({"char":{"_0":"S"},"special":{"_0":"tab"}})", R"({"char":"S"})",
          R"({"char":{}})", R"({"char":{"_1":"S"}})", R"({"char":{"_0":1}})", R"({"char":{"_0":null}})",
          R"({"special":{"_0":"Tab"}})", R"({"special":{"_0":"delete_"}})", R"({"special":{"_0":0}})",
          R"("S")", R"(["char"])", "null", R"({"char":null})", R"({"char":[]})"})
        EXPECT_EQ(readKey(key), std::nullopt) << key;
    EXPECT_EQ(readKey(R"({"char":{"_0":"S"},"other":{}})"), Key::character("S"));
}

TEST(JsonDecode, ReadsModifiersAsBareBits) {
    for (const char* bits : {"0", "15", "-1", "9223372036854775807"}) {
        const auto sheet = Json::decode<AppSheet>(sheetWithEntries(
            R"([{"enabled":true,"path":[],"shortcut":{"key":{"char":{"_0":"S"}},"modifiers":)"
            + std::string(bits) + "}}]"));
        ASSERT_TRUE(sheet) << bits;
        EXPECT_EQ(sheet->entries[0].shortcut.modifiers.rawValue(), std::stoll(bits));
    }
}

TEST(JsonDecode, TakesMembersInAnyOrderAndSkipsUnknownOnes) {
    EXPECT_EQ(
        readUsage(
            R"({"typed":2,"later":{"deep":[1,{"x":[null,true,-1.5,"t",[]]}],"clicked":99},"practiceWrong":4,)"
            R"("practiceRight":3,"more":[],"clicked":1})"),
        (UsageRecord{1, 2, 3, 4}));
    EXPECT_TRUE(Json::decode<UsageBook>(R"({"version":2,"apps":{}})"));
}

TEST(JsonDecode, OfTwoMembersWithOneNameTheLaterCounts) {
    EXPECT_EQ(
        readUsage(R"({"clicked":1,"practiceRight":0,"practiceWrong":0,"typed":0,"clicked":7})"),
        (UsageRecord{.clicked = 7}));
    const auto book = Json::decode<AnnotationBook>(
        R"({"apps":{"a":{"x":{"muted":true,"note":"","pinned":false}},"a":{"y":{"muted":true,"note":"","pinned":false}}}})");
    ASSERT_TRUE(book);
    EXPECT_EQ(book->apps.at("a").size(), 1u);
    EXPECT_TRUE(book->apps.at("a").contains("y"));
}

TEST(JsonDecode, ReadsDatesWhereThereAreAny) {
    const std::string counters = R"("clicked":0,"practiceRight":0,"practiceWrong":0,"typed":0)";
    EXPECT_EQ(readUsage("{" + counters + "}"), UsageRecord());
    EXPECT_EQ(
        readUsage("{" + counters + R"(,"lastClicked":"1970-01-01T00:00:01Z"})"),
        UsageRecord{.lastClicked = Instant(1s)});
    EXPECT_EQ(
        readUsage("{" + counters + R"(,"lastNudged":"1970-01-01T00:00:02Z"})"),
        UsageRecord{.lastNudged = Instant(2s)});
    for (const char* date : {"null", "0", "\"yesterday\"", "\"\"", "[]", "{}"})
        EXPECT_EQ(readUsage("{" + counters + R"(,"lastClicked":)" + date + "}"), std::nullopt) << date;
}

TEST(JsonDecode, ADateOfOneRecordIsNotThatOfTheNext) {
    const auto book = Json::decode<UsageBook>(
        R"({"apps":{"app":{)"
        R"("a":{"clicked":1,"lastClicked":"1970-01-01T00:00:01Z","practiceRight":0,"practiceWrong":0,"typed":0},)"
        R"("b":{"clicked":1,"practiceRight":0,"practiceWrong":0,"typed":0}}}})");
    ASSERT_TRUE(book);
    EXPECT_EQ(book->record("app", "b")->lastClicked, std::nullopt);
}

TEST(JsonDecode, OneMissingMemberFailsTheWholeFile) {
    for (const char* record :
         {R"({"practiceRight":0,"practiceWrong":0,"typed":0})",
          R"({"clicked":0,"practiceWrong":0,"typed":0})", R"({"clicked":0,"practiceRight":0,"typed":0})",
          R"({"clicked":0,"practiceRight":0,"practiceWrong":0})"})
        EXPECT_EQ(readUsage(record), std::nullopt) << record;
    for (const char* annotation :
         {R"({"note":"","pinned":true})", R"({"muted":true,"pinned":true})", R"({"muted":true,"note":""})"})
        EXPECT_EQ(readAnnotation(annotation), std::nullopt) << annotation;
    for (const char* sheet :
         {R"({"bundleID":"","entries":[],"readAt":"2024-05-01T09:30:00Z"})",
          R"({"appName":"","entries":[],"readAt":"2024-05-01T09:30:00Z"})",
          R"({"appName":"","bundleID":"","readAt":"2024-05-01T09:30:00Z"})",
          R"({"appName":"","bundleID":"","entries":[]})"})
        EXPECT_EQ(Json::decode<AppSheet>(sheet), std::nullopt) << sheet;
    for (const char* entry :
         {R"({"path":[],"shortcut":{"key":{"char":{"_0":"S"}},"modifiers":0}})",
          R"({"enabled":true,"shortcut":{"key":{"char":{"_0":"S"}},"modifiers":0}})",
          R"({"enabled":true,"path":[]})", R"({"enabled":true,"path":[],"shortcut":{"modifiers":0}})",
          R"({"enabled":true,"path":[],"shortcut":{"key":{"char":{"_0":"S"}}}})"})
        EXPECT_EQ(
            Json::decode<AppSheet>(sheetWithEntries("[" + entryWithKey(goodKey) + "," + entry + "]")),
            std::nullopt)
            << entry;
    EXPECT_EQ(Json::decode<UsageBook>("{}"), std::nullopt);
    EXPECT_EQ(Json::decode<AnnotationBook>("{}"), std::nullopt);
}

TEST(JsonDecode, AMemberOfTheRecordBeforeIsNotBorrowed) {
    EXPECT_EQ(
        Json::decode<UsageBook>(
            R"({"apps":{"app":{"a":{"clicked":1,"practiceRight":0,"practiceWrong":0,"typed":0},"b":{"clicked":1}}}})"),
        std::nullopt);
}

TEST(JsonDecode, AWrongTypeFailsTheWholeFile) {
    for (const char* value :
         {"\"1\"", "1.0", "1e3", "true", "null", "[]", "{}", "9223372036854775808", "-9223372036854775809",
          "18446744073709551616", "1e999"})
        EXPECT_EQ(
            readUsage(
                R"({"clicked":)" + std::string(value) + R"(,"practiceRight":0,"practiceWrong":0,"typed":0})"),
            std::nullopt)
            << value;
    for (const char* value : {"\"true\"", "1", "0", "null", "[]"}) {
        EXPECT_EQ(
            readAnnotation(R"({"muted":)" + std::string(value) + R"(,"note":"","pinned":true})"),
            std::nullopt);
        EXPECT_EQ(
            readAnnotation(R"({"muted":true,"note":"","pinned":)" + std::string(value) + "}"), std::nullopt);
    }
    for (const char* value : {"1", "true", "null", "[]", "{}"})
        EXPECT_EQ(
            readAnnotation(R"({"muted":true,"note":)" + std::string(value) + R"(,"pinned":true})"),
            std::nullopt);
    for (const char* entries : {"{}", "null", "\"\"", "[[]]", "[null]", "[1]", R"(["x"])"})
        EXPECT_EQ(Json::decode<AppSheet>(sheetWithEntries(entries)), std::nullopt) << entries;
}

TEST(JsonDecode, ACounterOutOfRangeFailsTheWholeFile) {
    for (const char* name : {"clicked", "practiceRight", "practiceWrong", "typed"}) {
        const auto counting = [name](const std::string& count) {
            std::string record = R"({"clicked":0,"practiceRight":0,"practiceWrong":0,"typed":0})";
            const std::string member = '"' + std::string(name) + "\":";
            return readUsage(record.replace(record.find(member) + member.size(), 1, count));
        };
        EXPECT_TRUE(counting("0")) << name;
        EXPECT_TRUE(counting(std::to_string(largestStoredCount))) << name;
        for (const std::string& count :
             {std::string("-1"), std::to_string(largestStoredCount + 1), std::string("-9223372036854775808"),
              std::string("9223372036854775807")})
            EXPECT_EQ(counting(count), std::nullopt) << name << ' ' << count;
    }
}

TEST(JsonDecode, WhatLoadsCanBeCountedOn) {
    const std::string full = std::to_string(largestStoredCount);
    const std::string record = R"({"clicked":)" + full + R"(,"practiceRight":)" + full
                               + R"(,"practiceWrong":)" + full + R"(,"typed":)" + full + "}";
    auto book = Json::decode<UsageBook>(R"({"apps":{"app":{"a":)" + record + R"(,"b":)" + record + "}}}");
    ASSERT_TRUE(book);
    EXPECT_EQ(book->totals("app").clicked, 2 * largestStoredCount);
    EXPECT_EQ(book->mostClicked("app", 2).size(), 2u);
    book->click("app", "a", Instant());
    book->typed("app", "a");
    book->practiced("app", "a", true);
    book->practiced("app", "a", false);
    EXPECT_EQ(book->record("app", "a")->practiceWrong, largestStoredCount + 1);
}

TEST(JsonDecode, AWrongShapeIsAbsent) {
    for (const char* text :
         {"[]", "null", "true", "1", "\"apps\"", "", " ", R"({"apps":[]})", R"({"apps":null})",
          R"({"apps":{"a":[]}})", R"({"apps":{"a":{"b":[]}}})", R"({"apps":{"a":{"b":null}}})"}) {
        EXPECT_EQ(Json::decode<UsageBook>(text), std::nullopt) << text;
        EXPECT_EQ(Json::decode<AnnotationBook>(text), std::nullopt) << text;
        EXPECT_EQ(Json::decode<AppSheet>(text), std::nullopt) << text;
        EXPECT_EQ(Json::decode<SheetMap>(text), std::nullopt) << text;
    }
}

TEST(JsonDecode, BrokenJsonIsAbsent) {
    for (const char* text :
         {R"({"apps":{})", R"({"apps":{}}})", R"({"apps":{}} x)", R"({"apps":{},})", R"({apps:{}})",
          R"({'apps':{}})", R"({"apps":{}}{"apps":{}})", R"(// c
{"apps":{}})",
          R"({"apps" {}})", R"({"apps":{"a\)", R"({"apps":{"\x":{}}})", R"({"apps":{"\ud800":{}}})",
          "{\"apps\":{\"a\nb\":{}}}", R"({"x":NaN,"apps":{}})", R"({"x":01,"apps":{}})"})
        EXPECT_EQ(Json::decode<UsageBook>(text), std::nullopt) << text;
}

TEST(JsonDecode, AZeroByteIsNoJson) {
    using namespace std::string_view_literals;
    for (const std::string_view text :
         {"{\"apps\":{}}\0"sv, "{\"apps\":{}}\0{\"apps\":"sv, "{\"apps\":{}} \0 \xff"sv, "{\"apps\":{}\0}"sv,
          "\0{\"apps\":{}}"sv, "{\"apps\":{},\"x\":\"\0\"}"sv, "\0"sv})
        EXPECT_EQ(Json::decode<UsageBook>(text), std::nullopt) << testing::PrintToString(text);
}

TEST(JsonDecode, ReadsBlanksBetweenTokens) {
    EXPECT_EQ(Json::decode<UsageBook>(" {\n\t\"apps\" : { } }\r\n"), UsageBook());
}

TEST(JsonDecode, ReadsBothFormsOfTextAlike) {
    const auto note = [](const std::string& written) {
        const auto read = readAnnotation(R"({"muted":true,"note":")" + written + R"(","pinned":true})");
        return read ? read->note : "absent";
    };
    EXPECT_EQ(note(R"(a/b)"), "a/b");
    EXPECT_EQ(note(R"(a\/b)"), "a/b");
    EXPECT_EQ(note(R"(\u203a \ud83d\ude00 \u0000)"), std::string("› 😀 \0", 10));
    EXPECT_EQ(note("› 😀"), "› 😀");
}

TEST(JsonDecode, TextThatIsNotUtf8IsAbsent) {
    for (const std::string broken : {"\xff", "\xc3", "\xed\xa0\x80", "\xc0\xaf", "\xf4\x90\x80\x80"}) {
        EXPECT_EQ(readAnnotation(R"({"muted":true,"note":")" + broken + R"(","pinned":true})"), std::nullopt);
        EXPECT_EQ(Json::decode<UsageBook>(R"({"apps":{},"x":")" + broken + "\"}"), std::nullopt);
        EXPECT_EQ(Json::decode<UsageBook>(broken), std::nullopt);
    }
}

TEST(JsonDecode, NestingIsBounded) {
    const auto nested = [](std::size_t depth, char open, char close) {
        return R"({"apps":{},"x":)" + std::string(depth, open) + std::string(depth, close) + "}";
    };
    EXPECT_EQ(Json::decode<UsageBook>(nested(20, '[', ']')), UsageBook());
    EXPECT_EQ(Json::decode<UsageBook>(nested(1000, '[', ']')), std::nullopt);
    EXPECT_EQ(Json::decode<UsageBook>(nested(5'000'000, '[', ']')), std::nullopt);
    EXPECT_EQ(Json::decode<UsageBook>(std::string(5'000'000, '[')), std::nullopt);
    std::string objects;
    for (int i = 0; i < 1'000'000; ++i)
        objects += R"({"apps":)";
    EXPECT_EQ(Json::decode<UsageBook>(objects), std::nullopt);
}

TEST(JsonDecode, EveryCutTextIsAbsent) {
    RandomValues random(91);
    UsageBook book = random.usageBook();
    book.click("app", "File › Save", Instant(1s));
    const std::string json = Json::encode(book).value();
    for (std::size_t length = 0; length < json.size(); ++length)
        ASSERT_EQ(Json::decode<UsageBook>(json.substr(0, length)), std::nullopt) << length;
}

} // namespace
} // namespace quillon
