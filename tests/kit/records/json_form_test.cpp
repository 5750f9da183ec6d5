#include <quillon/kit/records/json_file.h>
#include <quillon/tests/support/system/temporary_folder.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace quillon {
namespace {

/// Types as somebody else would store them.
struct Colour {
    unsigned rgb = 0;
    bool operator==(const Colour&) const = default;
};

struct Bookmark {
    std::string title;
    std::vector<Shortcut> keys;
    std::optional<Colour> colour = {};
    std::map<std::string, std::int64_t, std::less<>> visits = {};
    bool operator==(const Bookmark&) const = default;
};

} // namespace

/// "#rrggbb"
template <>
struct Json::Form<Colour> {
    using Stored = std::string;
    static constexpr std::string_view expected = "a colour";
    static Stored stored(const Colour& colour) {
        std::string digits = "#";
        for (int shift = 20; shift >= 0; shift -= 4)
            digits += "0123456789abcdef"[colour.rgb >> shift & 0xF];
        return digits;
    }
    static std::optional<Colour> restored(const Stored& text) {
        if (text.size() != 7 || text[0] != '#'
            || text.find_first_not_of("0123456789abcdef", 1) != std::string::npos)
            return std::nullopt;
        return Colour{static_cast<unsigned>(std::stoul(text.substr(1), nullptr, 16))};
    }
};

/// Its members are named in no order.
template <>
struct Json::Form<Bookmark> {
    static constexpr auto members = std::tuple(
        member("title", &Bookmark::title), member("keys", &Bookmark::keys),
        member("visits", &Bookmark::visits), member("colour", &Bookmark::colour));
};

namespace {

const Bookmark saving{
    "Save", {{Modifiers::command, Key::character("S")}}, Colour{0xf48d28}, {{"monday", 3}, {"friday", -1}}};
const std::string savingJson =
    R"({"colour":"#f48d28","keys":[{"key":{"char":{"_0":"S"}},"modifiers":8}],"title":"Save",)"
    R"("visits":{"friday":-1,"monday":3}})";

static_assert(Json::Storable<Bookmark> && Json::Storable<std::vector<Bookmark>>);
static_assert(Json::Storable<std::map<std::string, std::vector<Colour>, std::less<>>>);
static_assert(!Json::Storable<double> && !Json::Storable<std::vector<float>> && !Json::Storable<const char*>);

TEST(JsonForm, WritesItsMembersSorted) {
    EXPECT_EQ(Json::encode(saving), savingJson);
    EXPECT_EQ(Json::encode(Bookmark{}), R"({"keys":[],"title":"","visits":{}})");
}

TEST(JsonForm, ReadsWhatItWrites) {
    EXPECT_EQ(Json::decode<Bookmark>(savingJson), saving);
    EXPECT_EQ(Json::decode<Bookmark>(R"({"keys":[],"title":"","visits":{}})"), Bookmark{});
}

TEST(JsonForm, RefusesWhatItMust) {
    const auto refused = [](const std::string& json) {
        const Outcome<Bookmark, Json::Fault> outcome = Json::tryDecode<Bookmark>(json);
        return outcome ? "nothing" : outcome.failure()->reason;
    };
    EXPECT_EQ(refused(R"({"keys":[],"visits":{}})"), "the whole lacks \"title\"");
    EXPECT_EQ(refused(R"({"colour":"red"})"), "\"colour\" must be a colour");
    EXPECT_EQ(refused(R"({"colour":null})"), "\"colour\" must be a colour");
    EXPECT_EQ(refused(R"({"visits":{"monday":0.5}})"), "an element must be a whole number");
}

TEST(JsonForm, AListStandsForItself) {
    const std::vector<Bookmark> bookmarks{saving, Bookmark{}};
    const std::string json = Json::encode(bookmarks).value_or("");
    EXPECT_EQ(json, "[" + savingJson + R"(,{"keys":[],"title":"","visits":{}}])");
    EXPECT_EQ(Json::decode<std::vector<Bookmark>>(json), bookmarks);
    EXPECT_EQ(Json::decode<std::vector<Bookmark>>("[]"), std::vector<Bookmark>());
}

TEST(JsonForm, TheKitsSmallerValuesHaveTheirs) {
    const auto keeps = [](const auto& value, const std::string& json) {
        EXPECT_EQ(Json::encode(value), json);
        EXPECT_EQ(Json::decode<std::remove_cvref_t<decltype(value)>>(json), value);
    };
    const Shortcut save{Modifiers::command, Key::character("S")};
    keeps(save.modifiers, "8");
    keeps(SpecialKey::forwardDelete, R"("forwardDelete")");
    keeps(Key::special(SpecialKey::tab), R"({"special":{"_0":"tab"}})");
    keeps(save, R"({"key":{"char":{"_0":"S"}},"modifiers":8})");
    keeps(
        MenuEntry{{"File", "Save"}, save, true},
        R"({"enabled":true,"path":["File","Save"],"shortcut":{"key":{"char":{"_0":"S"}},"modifiers":8}})");
    keeps(
        UsageRecord{.clicked = 1, .lastClicked = Instant(std::chrono::seconds(1))},
        R"({"clicked":1,"lastClicked":"1970-01-01T00:00:01Z","practiceRight":0,"practiceWrong":0,"typed":0})");
    keeps(Annotation{.note = "n"}, R"({"muted":false,"note":"n","pinned":false})");
    keeps(Instant(), R"("1970-01-01T00:00:00Z")");
}

TEST(JsonForm, FilesKeepAnyOfThem) {
    const TemporaryFolder folder;
    const JSONFile<std::vector<Bookmark>> file(folder / "bookmarks.json");
    EXPECT_EQ(file.load(), std::nullopt);
    EXPECT_EQ(file.save({saving}), std::nullopt);
    EXPECT_EQ(contentsOf(file.url()), "[" + savingJson + "]");
    EXPECT_EQ(file.load(), std::vector{saving});
}

} // namespace
} // namespace quillon
