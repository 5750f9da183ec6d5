#include <quillon/kit/base/unicode.h>
#include <quillon/kit/shortcut/special_key.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace quillon {
namespace {

using enum SpecialKey;

struct Row {
    SpecialKey key;
    std::string rawValue;
    std::string name;
    std::string glyph;
};

const std::vector<Row> rows{
    {returnKey, "returnKey", "Return", "\u21a9"},
    {enter, "enter", "Enter", "\u2324"},
    {tab, "tab", "Tab", "\u21e5"},
    {backTab, "backTab", "Shift-Tab", "\u21e4"},
    {space, "space", "Space", "Space"},
    {delete_, "delete", "Delete", "\u232b"},
    {forwardDelete, "forwardDelete", "Forward Delete", "\u2326"},
    {escape, "escape", "Escape", "\u238b"},
    {clear, "clear", "Clear", "\u2327"},
    {left, "left", "Left Arrow", "\u2190"},
    {right, "right", "Right Arrow", "\u2192"},
    {up, "up", "Up Arrow", "\u2191"},
    {down, "down", "Down Arrow", "\u2193"},
    {pageUp, "pageUp", "Page Up", "\u21de"},
    {pageDown, "pageDown", "Page Down", "\u21df"},
    {home, "home", "Home", "\u2196"},
    {end, "end", "End", "\u2198"},
    {help, "help", "Help", "Help"},
    {eject, "eject", "Eject", "\u23cf"},
};

const std::vector<SpecialKey> functionKeys{f1,  f2,  f3,  f4,  f5,  f6,  f7,  f8,  f9, f10,
                                           f11, f12, f13, f14, f15, f16, f17, f18, f19};

TEST(SpecialKey, HasItsRawValueNameAndGlyph) {
    for (const Row& row : rows) {
        EXPECT_EQ(rawValue(row.key), row.rawValue);
        EXPECT_EQ(name(row.key), row.name);
        EXPECT_EQ(glyph(row.key), row.glyph);
    }
}

TEST(SpecialKey, AFunctionKeyIsCalledByItsNumberEverywhere) {
    for (std::size_t i = 0; i < functionKeys.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        EXPECT_EQ(rawValue(functionKeys[i]), "f" + number);
        EXPECT_EQ(name(functionKeys[i]), "F" + number);
        EXPECT_EQ(glyph(functionKeys[i]), "F" + number);
    }
}

TEST(SpecialKey, AllOfThemComeInOrder) {
    std::vector<SpecialKey> expected;
    expected.reserve(specialKeyCount);
    for (const Row& row : rows)
        expected.push_back(row.key);
    expected.insert(expected.end(), functionKeys.begin(), functionKeys.end());
    EXPECT_EQ(std::vector(allSpecialKeys.begin(), allSpecialKeys.end()), expected);
    EXPECT_EQ(allSpecialKeys.size(), 38u);
}

TEST(SpecialKey, IsFoundByItsRawValueAndByNothingElse) {
    std::set<std::string_view> seen;
    for (const SpecialKey key : allSpecialKeys) {
        EXPECT_EQ(SpecialKeys::fromRawValue(rawValue(key)), key);
        seen.insert(rawValue(key));
    }
    EXPECT_EQ(seen.size(), specialKeyCount);
    for (const char* unknown : {"", "return", "Return", "f0", "f20", "F1", "f1 ", "delete_"})
        EXPECT_EQ(SpecialKeys::fromRawValue(unknown), std::nullopt) << unknown;
}

TEST(SpecialKey, ComesFromTheAccessibilityGlyphNumbers) {
    const std::map<std::int64_t, SpecialKey> table{
        {2, tab},        {3, backTab},  {4, enter},   {9, space},  {10, forwardDelete}, {11, returnKey},
        {13, returnKey}, {23, delete_}, {27, escape}, {28, clear}, {98, pageUp},        {100, left},
        {101, right},    {102, home},   {103, help},  {104, up},   {105, end},          {106, down},
        {107, pageDown}, {111, f1},     {112, f2},    {113, f3},   {114, f4},           {115, f5},
        {116, f6},       {117, f7},     {118, f8},    {119, f9},   {120, f10},          {121, f11},
        {122, f12},      {135, f13},    {136, f14},   {137, f15},  {140, eject},        {141, f16},
        {142, f17},      {143, f18},    {144, f19}};
    EXPECT_EQ(table.size(), 39u);
    for (std::int64_t number = -300; number < 300; ++number) {
        const auto row = table.find(number);
        EXPECT_EQ(
            SpecialKeys::fromAXGlyph(number), row == table.end() ? std::nullopt : std::optional(row->second))
            << number;
    }
}

TEST(SpecialKey, ComesFromTheVirtualKeyCodes) {
    const std::map<std::int64_t, SpecialKey> table{{36, returnKey}, {48, tab},     {49, space},
                                                   {51, delete_},   {53, escape},  {64, f17},
                                                   {71, clear},     {76, enter},   {79, f18},
                                                   {80, f19},       {96, f5},      {97, f6},
                                                   {98, f7},        {99, f3},      {100, f8},
                                                   {101, f9},       {103, f11},    {105, f13},
                                                   {106, f16},      {107, f14},    {109, f10},
                                                   {111, f12},      {113, f15},    {114, help},
                                                   {115, home},     {116, pageUp}, {117, forwardDelete},
                                                   {118, f4},       {119, end},    {120, f2},
                                                   {121, pageDown}, {122, f1},     {123, left},
                                                   {124, right},    {125, down},   {126, up}};
    EXPECT_EQ(table.size(), 36u);
    for (std::int64_t code = -300; code < 300; ++code) {
        const auto row = table.find(code);
        EXPECT_EQ(
            SpecialKeys::fromKeyCode(code), row == table.end() ? std::nullopt : std::optional(row->second))
            << code;
    }
    for (const auto& [code, key] : table)
        EXPECT_TRUE(key != backTab && key != eject);
}

std::string encoded(char32_t scalar) {
    std::string text;
    unicode::append(text, scalar);
    return text;
}

TEST(SpecialKey, ComesFromTheCharactersOfMenus) {
    std::map<char32_t, SpecialKey> table{
        {13, returnKey},  {3, enter},         {9, tab},        {25, backTab}, {32, space},
        {8, delete_},     {127, delete_},     {27, escape},    {0xf700, up},  {0xf701, down},
        {0xf702, left},   {0xf703, right},    {0xf729, home},  {0xf72b, end}, {0xf728, forwardDelete},
        {0xf72c, pageUp}, {0xf72d, pageDown}, {0xf739, clear}, {0xf746, help}};
    for (std::size_t i = 0; i < functionKeys.size(); ++i)
        table.emplace(static_cast<char32_t>(0xf704 + i), functionKeys[i]);
    for (char32_t scalar = 0; scalar < 0xfffe; ++scalar) {
        if (scalar >= 0xd800 && scalar < 0xe000)
            continue;
        const auto row = table.find(scalar);
        ASSERT_EQ(
            SpecialKeys::fromCharacter(encoded(scalar)),
            row == table.end() ? std::nullopt : std::optional(row->second))
            << std::hex << static_cast<std::uint32_t>(scalar);
    }
}

TEST(SpecialKey, NeedsExactlyOneScalar) {
    for (const char* text : {"", "\r\n", "\r\r", " \u0301", "ab", "\xff", "\xef\x9c"})
        EXPECT_EQ(SpecialKeys::fromCharacter(text), std::nullopt) << text;
}

} // namespace
} // namespace quillon
