#include <quillon/app/platform/linux/x11/key_codes.h>

#include <quillon/kit/shortcut/key_stroke.h>
#include <quillon/kit/shortcut/special_key.h>

#include <linux/input-event-codes.h>

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <string_view>

namespace quillon {
namespace {

std::optional<std::int64_t> codeOf(std::uint32_t event) {
    return virtualKeyCode(event + 8);
}

TEST(KeyCodesTest, NamedKeysArriveAsTheKitsSpecialKeys) {
    const std::map<std::uint32_t, SpecialKey> keys{
        {KEY_ENTER, SpecialKey::returnKey},
        {KEY_KPENTER, SpecialKey::enter},
        {KEY_TAB, SpecialKey::tab},
        {KEY_SPACE, SpecialKey::space},
        {KEY_BACKSPACE, SpecialKey::delete_},
        {KEY_DELETE, SpecialKey::forwardDelete},
        {KEY_ESC, SpecialKey::escape},
        {KEY_NUMLOCK, SpecialKey::clear},
        {KEY_LEFT, SpecialKey::left},
        {KEY_RIGHT, SpecialKey::right},
        {KEY_UP, SpecialKey::up},
        {KEY_DOWN, SpecialKey::down},
        {KEY_PAGEUP, SpecialKey::pageUp},
        {KEY_PAGEDOWN, SpecialKey::pageDown},
        {KEY_HOME, SpecialKey::home},
        {KEY_END, SpecialKey::end},
        {KEY_INSERT, SpecialKey::help},
        {KEY_HELP, SpecialKey::help},
        {KEY_F1, SpecialKey::f1},
        {KEY_F2, SpecialKey::f2},
        {KEY_F3, SpecialKey::f3},
        {KEY_F4, SpecialKey::f4},
        {KEY_F5, SpecialKey::f5},
        {KEY_F6, SpecialKey::f6},
        {KEY_F7, SpecialKey::f7},
        {KEY_F8, SpecialKey::f8},
        {KEY_F9, SpecialKey::f9},
        {KEY_F10, SpecialKey::f10},
        {KEY_F11, SpecialKey::f11},
        {KEY_F12, SpecialKey::f12},
        {KEY_F13, SpecialKey::f13},
        {KEY_F14, SpecialKey::f14},
        {KEY_F15, SpecialKey::f15},
        {KEY_F16, SpecialKey::f16},
        {KEY_F17, SpecialKey::f17},
        {KEY_F18, SpecialKey::f18},
        {KEY_F19, SpecialKey::f19}};
    for (const auto& [event, key] : keys) {
        ASSERT_TRUE(codeOf(event)) << event;
        EXPECT_EQ(SpecialKeys::fromKeyCode(*codeOf(event)), key) << rawValue(key);
    }
}

TEST(KeyCodesTest, EverySpecialKeyWithACodeHasAKey) {
    std::set<std::int64_t> reached;
    for (std::uint32_t keyCode = 0; keyCode < 256; ++keyCode) {
        if (const auto code = virtualKeyCode(keyCode))
            reached.insert(*code);
    }
    for (std::int64_t code = 0; code < 128; ++code) {
        if (SpecialKeys::fromKeyCode(code)) {
            EXPECT_TRUE(reached.contains(code)) << code;
        }
    }
}

/// What the keys of an ANSI Mac keyboard give, by their virtual key codes from 0; '\0' for other keys.
constexpr std::string_view macKeys{"ASDFHGZXCV\0BQWERYT123465=97-80]OU[IP\0LJ'K;\\,/NM.\0\0`", 51};

/// The keys that give one character each, by what they give on a US keyboard.
const std::map<char, std::uint32_t> characterKeys{
    {'1', KEY_1},           {'2', KEY_2},          {'3', KEY_3},         {'4', KEY_4},
    {'5', KEY_5},           {'6', KEY_6},          {'7', KEY_7},         {'8', KEY_8},
    {'9', KEY_9},           {'0', KEY_0},          {'-', KEY_MINUS},     {'=', KEY_EQUAL},
    {'[', KEY_LEFTBRACE},   {']', KEY_RIGHTBRACE}, {';', KEY_SEMICOLON}, {',', KEY_COMMA},
    {'\'', KEY_APOSTROPHE}, {'\\', KEY_BACKSLASH}, {'.', KEY_DOT},       {'/', KEY_SLASH},
    {'`', KEY_GRAVE},       {'A', KEY_A},          {'B', KEY_B},         {'C', KEY_C},
    {'D', KEY_D},           {'E', KEY_E},          {'F', KEY_F},         {'G', KEY_G},
    {'H', KEY_H},           {'I', KEY_I},          {'J', KEY_J},         {'K', KEY_K},
    {'L', KEY_L},           {'M', KEY_M},          {'N', KEY_N},         {'O', KEY_O},
    {'P', KEY_P},           {'Q', KEY_Q},          {'R', KEY_R},         {'S', KEY_S},
    {'T', KEY_T},           {'U', KEY_U},          {'V', KEY_V},         {'W', KEY_W},
    {'X', KEY_X},           {'Y', KEY_Y},          {'Z', KEY_Z}};

TEST(KeyCodesTest, CharacterKeysHaveTheirPlaceOnAMacKeyboard) {
    for (const auto& [character, event] : characterKeys)
        EXPECT_EQ(codeOf(event), macKeys.find(character)) << character;
}

TEST(KeyCodesTest, ShiftedSymbolsAreFoundByTheirPlace) {
    const Modifiers held = Modifiers::shift | Modifiers::command;
    for (const auto& [character, event] : characterKeys) {
        if (character >= 'A' && character <= 'Z')
            continue;
        // What the key produced with Shift says nothing here, so that only its place can tell.
        const KeyStroke stroke{.characters = "\x7f?", .keyCode = *codeOf(event), .modifiers = held};
        EXPECT_TRUE(stroke.matches({held, Key::character(std::string(1, character))})) << character;
    }
}

TEST(KeyCodesTest, KeysOfThePadAreNotThoseOfTheRow) {
    EXPECT_EQ(codeOf(KEY_KP1), 83);
    EXPECT_EQ(codeOf(KEY_KPMINUS), 78);
    EXPECT_NE(codeOf(KEY_KP1), codeOf(KEY_1));
}

TEST(KeyCodesTest, NoTwoKeysShareACodeExceptThoseInOnePlace) {
    std::map<std::int64_t, int> count;
    for (std::uint32_t keyCode = 0; keyCode < 256; ++keyCode) {
        if (const auto code = virtualKeyCode(keyCode))
            ++count[*code];
    }
    for (const auto& [code, keys] : count)
        EXPECT_EQ(keys, code == 114 || code == 95 ? 2 : 1) << code;
}

TEST(KeyCodesTest, KeysWithoutAPlaceAndImpossibleCodesAreAbsent) {
    EXPECT_EQ(codeOf(KEY_PLAYPAUSE), std::nullopt);
    EXPECT_EQ(virtualKeyCode(0), std::nullopt);
    EXPECT_EQ(virtualKeyCode(7), std::nullopt);
    EXPECT_EQ(virtualKeyCode(256), std::nullopt);
    EXPECT_EQ(virtualKeyCode(0xFFFFFFFF), std::nullopt);
}

} // namespace
} // namespace quillon
