#include "keymaps.h"

#include <quillon/app/platform/linux/keys/keyboard_places.h>

#include <quillon/kit/shortcut/key_code.h>

#include <gtest/gtest.h>

#include <string_view>

namespace quillon {

static void PrintTo(const KeyPrint& print, std::ostream* out) {
    *out << "'" << print.plain << "' and '" << print.shifted << "'";
}

namespace {

/// What is on the key that has this character on an ANSI keyboard.
KeyPrint at(const PrintedKeys& printed, std::string_view character) {
    const auto found = printed.keys.find(KeyCodes::ofCharacter(character).value_or(-1));
    return found == printed.keys.end() ? KeyPrint() : found->second;
}

PrintedKeys of(const char* layouts, std::uint32_t group = 0) {
    return printedKeys(keymapOf({layouts}), group);
}

TEST(KeyboardPlacesTest, AnAmericanKeyboardHasWhatIsThere) {
    const PrintedKeys printed = of("us");
    EXPECT_EQ(printed.shape, KeyboardShape::ansi);
    EXPECT_EQ(printed.keys.size(), 47U);
    for (const std::string_view letter : {"A", "Q", "Z", "M"})
        EXPECT_EQ(at(printed, letter).shifted, letter);
    EXPECT_EQ(at(printed, "1"), (KeyPrint{"1", "!"}));
    EXPECT_EQ(at(printed, "\\"), (KeyPrint{"\\", "|"}));
    EXPECT_EQ(at(printed, "`"), (KeyPrint{"`", "~"}));
    EXPECT_EQ(at(printed, "/"), (KeyPrint{"/", "?"}));
}

TEST(KeyboardPlacesTest, AGermanKeyboardHasAnotherShapeAndAccents) {
    const PrintedKeys printed = of("de");
    EXPECT_EQ(printed.shape, KeyboardShape::iso);
    EXPECT_EQ(at(printed, "Y"), (KeyPrint{"z", "Z"}));
    EXPECT_EQ(at(printed, ";"), (KeyPrint{"ö", "Ö"}));
    EXPECT_EQ(at(printed, "`"), (KeyPrint{"^", "°"})) << "a dead key";
    EXPECT_EQ(at(printed, "="), (KeyPrint{"´", "`"})) << "two dead keys";
    EXPECT_EQ(printed.keys.at(KeyCodes::isoSection), (KeyPrint{"<", ">"}));
}

TEST(KeyboardPlacesTest, TheShapeIsThatOfTheLayout) {
    for (const char* layout : {"gb", "fr", "es", "it", "se"})
        EXPECT_EQ(of(layout).shape, KeyboardShape::iso) << layout;
    for (const char* layout : {"us", "ru", "jp", "kr"})
        EXPECT_EQ(of(layout).shape, KeyboardShape::ansi) << layout;
}

TEST(KeyboardPlacesTest, LettersThatNoShortcutHasAreThoseOfTheLatinLayout) {
    EXPECT_EQ(at(of("us,ru", 1), "S"), (KeyPrint{"s", "S"}));
    EXPECT_EQ(at(of("ru"), "S"), (KeyPrint{"ы", "Ы"})) << "there is none";
    EXPECT_EQ(at(of("us,de", 1), "Y"), (KeyPrint{"z", "Z"}));
}

} // namespace
} // namespace quillon
