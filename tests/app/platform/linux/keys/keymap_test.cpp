#include "keymaps.h"

#include <quillon/app/platform/linux/keys/keymap.h>

#include <quillon/kit/shortcut/shortcut.h>

#include <linux/input-event-codes.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

namespace quillon {
namespace {

/// What is held or on, beside Ctrl.
enum Chooser : std::uint32_t { plain = 0, shift = 1, numLock = 16, altGr = 128 };

struct Press {
    std::uint32_t event; ///< KEY_…
    std::uint32_t choosers = plain;
    std::uint32_t group = 0;
};

std::optional<KeyStroke> strokeOf(const Keymap& keymap, const Press& press) {
    Modifiers held = Modifiers::control;
    if ((press.choosers & shift) != 0)
        held.insert(Modifiers::shift);
    return keymap.stroke(
        press.event + 8, {.modifiers = held, .choosers = press.choosers, .group = press.group});
}

/// ⌃S, and with a leading "⇧" ⌃⇧S.
Shortcut shortcutOf(std::string_view text) {
    constexpr std::string_view shiftSign = "⇧";
    Modifiers modifiers = Modifiers::control;
    if (text.starts_with(shiftSign)) {
        modifiers.insert(Modifiers::shift);
        text.remove_prefix(shiftSign.size());
    }
    return {modifiers, Key::character(std::string(text))};
}

struct Case {
    const char* what;
    Layouts layouts;
    Press press;
    std::vector<std::string_view> uses = {};    ///< of these shortcuts
    std::vector<std::string_view> notUses = {}; ///< of those it is none
};

void PrintTo(const Case& row, std::ostream* stream) {
    *stream << row.layouts.names << ": " << row.what;
}

class KeymapTest : public testing::TestWithParam<Case> {};

TEST_P(KeymapTest, APressIsTheUseOfWhatTheLayoutSays) {
    const Keymap keymap = keymapOf(GetParam().layouts);
    const auto stroke = strokeOf(keymap, GetParam().press);
    if (!stroke) {
        EXPECT_TRUE(GetParam().uses.empty());
        return;
    }
    for (const std::string_view text : GetParam().uses)
        EXPECT_TRUE(stroke->matches(shortcutOf(text))) << text << ", not '" << stroke->characters << "'";
    for (const std::string_view text : GetParam().notUses)
        EXPECT_FALSE(stroke->matches(shortcutOf(text))) << text << ", from '" << stroke->characters << "'";
}

const Case cases[] = {
    {"a letter", {"us"}, {KEY_S}, {"S"}, {"⇧S"}},
    {"a letter with Shift", {"us"}, {KEY_S, shift}, {"⇧S"}, {"S"}},
    {"a digit", {"us"}, {KEY_1}, {"1"}, {"!", "⇧1"}},
    {"the symbol above a digit", {"us"}, {KEY_1, shift}, {"!", "⇧!", "⇧1"}, {"1"}},
    {"plus", {"us"}, {KEY_EQUAL, shift}, {"+", "⇧+", "⇧="}, {"="}},
    {"a question mark", {"us"}, {KEY_SLASH, shift}, {"?", "⇧?", "⇧/"}, {"/"}},
    {"the right Alt is Alt", {"us"}, {KEY_Q, altGr}, {"Q"}},

    {"Z and Y change places", {"de"}, {KEY_Y}, {"Z"}, {"Y"}},
    {"an umlaut", {"de"}, {KEY_SEMICOLON}, {"Ö"}, {";", "O"}},
    {"the minus key", {"de"}, {KEY_SLASH}, {"-"}, {"/"}},
    {"the minus key with Shift", {"de"}, {KEY_SLASH, shift}, {"_", "⇧-"}, {"⇧/", "-"}},
    {"the key that a US keyboard has minus on", {"de"}, {KEY_MINUS, shift}, {"?"}, {"⇧-", "⇧_"}},
    {"plus without Shift", {"de"}, {KEY_RIGHTBRACE}, {"+"}, {"]"}},
    {"plus with Shift", {"de"}, {KEY_RIGHTBRACE, shift}, {"*"}, {"⇧]"}},
    {"a slash with Shift", {"de"}, {KEY_7, shift}, {"/", "⇧/", "⇧7"}, {"7"}},
    {"a backslash with AltGr", {"de"}, {KEY_MINUS, altGr}, {"\\"}, {"ß", "-"}},
    {"a bracket with AltGr", {"de"}, {KEY_8, altGr}, {"["}, {"8"}},
    {"AltGr where it chooses nothing Latin", {"de"}, {KEY_E, altGr}, {"€"}, {"E"}},
    {"the ISO key", {"de"}, {KEY_102ND}, {"<"}, {}},
    {"the ISO key with Shift", {"de"}, {KEY_102ND, shift}, {">"}, {}},
    {"a dead key", {"de"}, {KEY_GRAVE}, {}, {"^", "`"}},

    {"A and Q change places", {"fr"}, {KEY_Q}, {"A"}, {"Q"}},
    {"a digit's key without Shift", {"fr"}, {KEY_1}, {"&"}, {"1"}},
    {"a digit with Shift", {"fr"}, {KEY_1, shift}, {"1", "⇧1"}, {"&"}},
    {"zero with Shift", {"fr"}, {KEY_0, shift}, {"0", "⇧0"}, {"À"}},
    {"minus on the key of six", {"fr"}, {KEY_6}, {"-"}, {"6"}},
    {"six is not the use of its place", {"fr"}, {KEY_6, shift}, {"6", "⇧6", "⇧-"}, {"⇧^"}},
    {"a question mark on the key of M", {"fr"}, {KEY_M, shift}, {"?", "⇧,"}, {"⇧M", "⇧/"}},
    {"M on the key of the semicolon", {"fr"}, {KEY_SEMICOLON}, {"M"}, {";"}},
    {"a bracket with AltGr", {"fr"}, {KEY_5, altGr}, {"["}, {"5", "("}},

    {"a letter in Dvorak's place", {"us", "dvorak"}, {KEY_SEMICOLON}, {"S"}, {";"}},
    {"Dvorak's comma", {"us", "dvorak"}, {KEY_W}, {","}, {"W"}},
    {"Dvorak's slash with Shift", {"us", "dvorak"}, {KEY_LEFTBRACE, shift}, {"?", "⇧/"}, {"⇧["}},
    {"Dvorak's bracket with Shift", {"us", "dvorak"}, {KEY_MINUS, shift}, {"{", "⇧["}, {"⇧-"}},

    {"Cyrillic without a Latin layout", {"ru"}, {KEY_S}, {"Ы"}, {"S"}},
    {"digits are Latin", {"ru"}, {KEY_1}, {"1"}, {}},
    {"the full stop", {"ru"}, {KEY_SLASH}, {"."}, {"/"}},
    {"Cyrillic beside a Latin layout", {"us,ru"}, {KEY_S, plain, 1}, {"S"}, {"Ы", "⇧S"}},
    {"with Shift", {"us,ru"}, {KEY_S, shift, 1}, {"⇧S"}, {"S"}},
    {"a Latin layout after it", {"ru,us"}, {KEY_S, plain, 0}, {"S"}, {"Ы"}},
    {"the first Latin layout of two", {"de,ru,us"}, {KEY_Y, plain, 1}, {"Z"}, {"Y"}},
    {"the Latin layout of them", {"us,ru"}, {KEY_S, plain, 0}, {"S"}, {}},
    {"a symbol only the Latin layout has", {"us,ru"}, {KEY_LEFTBRACE, plain, 1}, {"["}, {"Х"}},
    {"its place counts in the same layout", {"us,ru"}, {KEY_SEMICOLON, shift, 1}, {":", "⇧;"}, {"Ж"}},

    {"Greek without a Latin layout", {"gr"}, {KEY_S}, {"Σ"}, {"S"}},
    {"Greek beside a Latin layout", {"us,gr"}, {KEY_S, plain, 1}, {"S"}, {"Σ"}},
    {"a Latin symbol of the Greek layout", {"us,gr"}, {KEY_Q, plain, 1}, {";"}, {"Q"}},
    {"a layout that is not there", {"us,gr"}, {KEY_S, plain, 3}, {"S"}, {}},

    {"a digit of the keypad", {"us"}, {KEY_KP1, numLock}, {"1"}, {}},
    {"a sign of the keypad", {"us"}, {KEY_KPPLUS, numLock}, {"+"}, {}},
    {"the decimal sign of the layout", {"de"}, {KEY_KPDOT, numLock}, {","}, {"."}},

    {"a modifier", {"us"}, {KEY_LEFTSHIFT, shift}, {}, {}},
};
INSTANTIATE_TEST_SUITE_P(All, KeymapTest, testing::ValuesIn(cases));

/// The named key of a press, whatever is held with it.
std::optional<SpecialKey> nameOf(const Layouts& layouts, const Press& press) {
    const auto stroke = strokeOf(keymapOf(layouts), press);
    return stroke ? SpecialKeys::fromKeyCode(stroke->keyCode) : std::nullopt;
}

TEST(KeymapNamesTest, NamedKeysAreTheKitsSpecialKeys) {
    const std::vector<std::pair<std::uint32_t, SpecialKey>> keys{
        {KEY_ENTER, SpecialKey::returnKey},
        {KEY_KPENTER, SpecialKey::enter},
        {KEY_TAB, SpecialKey::tab},
        {KEY_SPACE, SpecialKey::space},
        {KEY_BACKSPACE, SpecialKey::delete_},
        {KEY_DELETE, SpecialKey::forwardDelete},
        {KEY_ESC, SpecialKey::escape},
        {KEY_LEFT, SpecialKey::left},
        {KEY_RIGHT, SpecialKey::right},
        {KEY_UP, SpecialKey::up},
        {KEY_DOWN, SpecialKey::down},
        {KEY_PAGEUP, SpecialKey::pageUp},
        {KEY_PAGEDOWN, SpecialKey::pageDown},
        {KEY_HOME, SpecialKey::home},
        {KEY_END, SpecialKey::end},
        {KEY_F1, SpecialKey::f1},
        {KEY_F2, SpecialKey::f2},
        {KEY_F11, SpecialKey::f11},
        {KEY_F12, SpecialKey::f12},
        {KEY_HELP, SpecialKey::help},
    };
    for (const auto& [event, key] : keys) {
        EXPECT_EQ(nameOf({"us"}, {event}), key) << name(key);
        EXPECT_EQ(nameOf({"us,ru"}, {event, shift, 1}), key) << name(key);
    }
}

TEST(KeymapNamesTest, ShiftDoesNotMakeAnotherKeyOfTabAndSpace) {
    EXPECT_EQ(nameOf({"us"}, {KEY_TAB, shift}), SpecialKey::tab);
    EXPECT_EQ(nameOf({"fr", "oss"}, {KEY_SPACE, shift}), SpecialKey::space) << "a hard space";
}

TEST(KeymapNamesTest, TheKeypadHasNamesWithoutNumLock) {
    EXPECT_EQ(nameOf({"us"}, {KEY_KP1}), SpecialKey::end);
    EXPECT_EQ(nameOf({"us"}, {KEY_KP8}), SpecialKey::up);
    EXPECT_EQ(nameOf({"us"}, {KEY_KPDOT}), SpecialKey::forwardDelete);
    EXPECT_EQ(nameOf({"us"}, {KEY_KP1, numLock}), std::nullopt);
}

TEST(KeymapNamesTest, AKeyIsWhatTheLayoutMakesOfItWhereverItIs) {
    const Layouts swapped{"us", "", "caps:swapescape"};
    EXPECT_EQ(nameOf(swapped, {KEY_CAPSLOCK}), SpecialKey::escape);
    EXPECT_EQ(strokeOf(keymapOf(swapped), {KEY_ESC}), std::nullopt);
}

TEST(KeymapNamesTest, AnApplicationSeesTheKeyWhateverElseIsHeld) {
    const Keymap keymap = keymapOf({"us"});
    const Modifiers held = Modifiers::control | Modifiers::option;
    const auto stroke = keymap.stroke(KEY_F1 + 8, {.modifiers = held, .choosers = plain, .group = 0});
    ASSERT_TRUE(stroke);
    EXPECT_TRUE(stroke->matches({held, Key::special(SpecialKey::f1)}));
}

TEST(KeymapNamesTest, KeysThatAreNotThereAreAbsent) {
    const Keymap keymap = keymapOf({"us"});
    for (const std::uint32_t key : {0U, 7U, 255U, 256U, 0xFFFFFFFFU})
        EXPECT_EQ(
            keymap.stroke(key, {.modifiers = Modifiers::control, .choosers = 0, .group = 0}), std::nullopt)
            << key;
    for (const std::uint32_t event : {KEY_PLAYPAUSE, KEY_INSERT, KEY_SYSRQ, KEY_CAPSLOCK, KEY_RIGHTALT})
        EXPECT_EQ(strokeOf(keymap, {event}), std::nullopt) << event;
}

TEST(KeymapNamesTest, TellsHowManyLayoutsItHas) {
    EXPECT_EQ(keymapOf({"us"}).layoutCount(), 1U);
    EXPECT_EQ(keymapOf({"us,ru,gr"}).layoutCount(), 3U);
}

} // namespace
} // namespace quillon
