#include <quillon/kit/shortcut/key_stroke.h>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <unordered_set>
#include <vector>

namespace quillon {
namespace {

using M = Modifiers;

constexpr M none;
constexpr M command = M::command;
constexpr M shiftCommand = M::shift | M::command;

Shortcut charShortcut(M modifiers, const char* character) {
    return {modifiers, Key::character(character)};
}

Shortcut specialShortcut(M modifiers, SpecialKey key) {
    return {modifiers, Key::special(key)};
}

struct Press {
    const char* what;
    KeyStroke stroke;
    Shortcut shortcut;
    bool matches;
};

/// Presses as keyboards report them, key codes of the ANSI layout.
const std::vector<Press> presses{
    {"Cmd+S", {"s", 1, command}, charShortcut(command, "S"), true},
    {"Cmd+S, caps lock on", {"S", 1, command}, charShortcut(command, "S"), true},
    {"Shift+Cmd+S for Cmd+S", {"s", 1, shiftCommand}, charShortcut(command, "S"), false},
    {"Shift+Cmd+S", {"S", 1, shiftCommand}, charShortcut(shiftCommand, "S"), true},
    {"Shift+Cmd+S with caps lock", {"s", 1, shiftCommand}, charShortcut(shiftCommand, "S"), true},
    {"Cmd+S for Shift+Cmd+S", {"s", 1, command}, charShortcut(shiftCommand, "S"), false},
    {"Opt+Cmd+S for Cmd+S", {"s", 1, M::option | command}, charShortcut(command, "S"), false},
    {"Ctrl+S for Cmd+S", {"s", 1, M::control}, charShortcut(command, "S"), false},
    {"S without Cmd", {"s", 1, none}, charShortcut(command, "S"), false},
    {"Cmd+D for Cmd+S", {"d", 2, command}, charShortcut(command, "S"), false},
    {"Cmd+É", {"é", 33, command}, charShortcut(command, "É"), true},
    {"a letter is known by what it types, not by its place",
     {"q", 0, command},
     charShortcut(command, "Q"),
     true},
    {"nor by its place alone", {"q", 0, command}, charShortcut(command, "A"), false},
    {"a letter typed with Shift never goes by its place",
     {"Q", 0, shiftCommand},
     charShortcut(shiftCommand, "A"),
     false},

    {"Shift+Cmd+/ types ? for Cmd+?", {"?", 44, shiftCommand}, charShortcut(command, "?"), true},
    {"Shift+Cmd+/ types ? for Shift+Cmd+?", {"?", 44, shiftCommand}, charShortcut(shiftCommand, "?"), true},
    {"Shift+Cmd+/ types ? for Shift+Cmd+/", {"?", 44, shiftCommand}, charShortcut(shiftCommand, "/"), true},
    {"Cmd+/ for Cmd+/", {"/", 44, command}, charShortcut(command, "/"), true},
    {"Cmd+/ for Shift+Cmd+/", {"/", 44, command}, charShortcut(shiftCommand, "/"), false},
    {"Shift+Cmd+/ for Cmd+/", {"?", 44, shiftCommand}, charShortcut(command, "/"), false},
    {"Cmd+/ for Cmd+?", {"/", 44, command}, charShortcut(command, "?"), false},
    {"Shift+Cmd+= types + for Cmd++", {"+", 24, shiftCommand}, charShortcut(command, "+"), true},
    {"Cmd+= for Cmd++", {"=", 24, command}, charShortcut(command, "+"), false},
    {"Cmd+- for Cmd+-", {"-", 27, command}, charShortcut(command, "-"), true},
    {"Cmd+1", {"1", 18, command}, charShortcut(command, "1"), true},
    {"Shift+Cmd+1 types ! for Shift+Cmd+1", {"!", 18, shiftCommand}, charShortcut(shiftCommand, "1"), true},
    {"Shift+Cmd+2 for Shift+Cmd+1", {"@", 19, shiftCommand}, charShortcut(shiftCommand, "1"), false},
    {"Shift+Cmd+1 types ! for Cmd+1", {"!", 18, shiftCommand}, charShortcut(command, "1"), false},
    {"Shift+Cmd+] types } for Shift+Cmd+]", {"}", 30, shiftCommand}, charShortcut(shiftCommand, "]"), true},
    {"Shift+Cmd+] types } for Cmd+}", {"}", 30, shiftCommand}, charShortcut(command, "}"), true},
    {"Shift+Cmd on a key without a base character",
     {"§", 10, shiftCommand},
     charShortcut(shiftCommand, "1"),
     false},
    {"Shift+Cmd on a key code out of the table",
     {"!", 500, shiftCommand},
     charShortcut(shiftCommand, "1"),
     false},
    {"Shift+Cmd on a negative key code", {"!", -1, shiftCommand}, charShortcut(shiftCommand, "1"), false},
    {"an empty character equals no key without a base character",
     {"§", 10, shiftCommand},
     charShortcut(shiftCommand, ""),
     false},
    {"a shortcut of several characters", {"ß", 27, command}, charShortcut(command, "SS"), true},
    {"a shortcut of several characters, with Shift",
     {"ß", 27, shiftCommand},
     charShortcut(command, "SS"),
     true},
    {"a press that typed nothing", {"", 1, command}, charShortcut(command, "S"), false},
    {"a lower-case shortcut is of no use", {"s", 1, command}, charShortcut(command, "s"), false},

    {"Cmd+Return", {"\r", 36, command}, specialShortcut(command, SpecialKey::returnKey), true},
    {"Cmd+Return for a character", {"\r", 36, command}, charShortcut(command, "\r"), false},
    {"Return never counts for a letter", {"S", 36, command}, charShortcut(command, "S"), false},
    {"Shift+Cmd+Return for Cmd+Return",
     {"\r", 36, shiftCommand},
     specialShortcut(command, SpecialKey::returnKey),
     false},
    {"Enter of the keypad is not Return",
     {"\x03", 76, command},
     specialShortcut(command, SpecialKey::returnKey),
     false},
    {"Cmd+F5", {"\uf708", 96, command}, specialShortcut(command, SpecialKey::f5), true},
    {"Left without modifiers", {"\uf702", 123, none}, specialShortcut(none, SpecialKey::left), true},
    {"Ctrl+Cmd+Space",
     {" ", 49, M::control | command},
     specialShortcut(M::control | command, SpecialKey::space),
     true},
    {"a letter for a special key", {"s", 1, command}, specialShortcut(command, SpecialKey::returnKey), false},
    {"Shift+Tab is not the back-tab key",
     {"\x19", 48, M::shift},
     specialShortcut(M::shift, SpecialKey::backTab),
     false},
};

TEST(KeyStroke, MatchesRealPressesAndNothingElse) {
    for (const Press& press : presses)
        EXPECT_EQ(press.stroke.matches(press.shortcut), press.matches) << press.what;
}

TEST(KeyStroke, KnowsTheUnshiftedCharacterOfEveryAnsiKey) {
    const std::map<std::int64_t, std::string> base{
        {0, "A"},   {1, "S"},  {2, "D"},  {3, "F"},  {4, "H"},  {5, "G"},  {6, "Z"},  {7, "X"},
        {8, "C"},   {9, "V"},  {11, "B"}, {12, "Q"}, {13, "W"}, {14, "E"}, {15, "R"}, {16, "Y"},
        {17, "T"},  {18, "1"}, {19, "2"}, {20, "3"}, {21, "4"}, {22, "6"}, {23, "5"}, {24, "="},
        {25, "9"},  {26, "7"}, {27, "-"}, {28, "8"}, {29, "0"}, {30, "]"}, {31, "O"}, {32, "U"},
        {33, "["},  {34, "I"}, {35, "P"}, {37, "L"}, {38, "J"}, {39, "'"}, {40, "K"}, {41, ";"},
        {42, "\\"}, {43, ","}, {44, "/"}, {45, "N"}, {46, "M"}, {47, "."}, {50, "`"}};
    EXPECT_EQ(base.size(), 47u);
    for (std::int64_t code = -2; code < 200; ++code) {
        // Letters never go by their place, so only the other characters can be asked for.
        for (const char* character : {"1", "2", "3", "4", "5", "6",  "7", "8", "9", "0", "=",
                                      "-", "]", "[", "'", ";", "\\", ",", "/", ".", "`"}) {
            const KeyStroke stroke{"\u00a7", code, shiftCommand};
            const bool expected = base.contains(code) && base.at(code) == character;
            EXPECT_EQ(stroke.matches(charShortcut(shiftCommand, character)), expected)
                << code << " for " << character;
        }
    }
}

TEST(KeyStroke, EverySpecialKeyWithAKeyCodeMatchesItselfOnly) {
    for (std::int64_t code = 0; code < 128; ++code) {
        const std::optional<SpecialKey> pressed = SpecialKeys::fromKeyCode(code);
        for (const SpecialKey wanted : allSpecialKeys)
            EXPECT_EQ(
                KeyStroke({"x", code, command}).matches(specialShortcut(command, wanted)), pressed == wanted);
    }
}

TEST(KeyStroke, NeedsControlOptionAndCommandToAgree) {
    for (std::int64_t held = 0; held < 16; ++held) {
        for (std::int64_t wanted = 0; wanted < 16; ++wanted) {
            const KeyStroke stroke{"s", 1, M(held)};
            EXPECT_EQ(stroke.matches(charShortcut(M(wanted), "S")), held == wanted) << held << " " << wanted;
        }
    }
}

TEST(KeyStroke, IgnoresModifiersWithoutAName) {
    EXPECT_TRUE(KeyStroke({"s", 1, M(8 | 256)}).matches(charShortcut(command, "S")));
}

TEST(KeyStroke, ComparesAndHashesByAllFields) {
    const KeyStroke stroke{"s", 1, command};
    const std::unordered_set<KeyStroke> set{
        stroke, stroke, {"S", 1, command}, {"s", 2, command}, {"s", 1, shiftCommand}};
    EXPECT_EQ(set.size(), 4u);
}

} // namespace
} // namespace quillon
