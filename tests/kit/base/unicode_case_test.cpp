#include <quillon/kit/base/unicode.h>

#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <string>

namespace quillon {
namespace {

/// What the Unicode library makes of one scalar by itself.
std::string mapped(UChar32 scalar, icu::UnicodeString& (icu::UnicodeString::*map)(const icu::Locale&)) {
    icu::UnicodeString text(scalar);
    std::string bytes;
    (text.*map)(icu::Locale::getRoot()).toUTF8String(bytes);
    return bytes;
}

std::string encoded(UChar32 scalar) {
    std::string bytes;
    icu::UnicodeString(scalar).toUTF8String(bytes);
    return bytes;
}

TEST(UnicodeCase, MapsEveryScalarAsUnicodeDoes) {
    for (UChar32 scalar = 0; scalar <= 0x10ffff; ++scalar) {
        if (U_IS_SURROGATE(scalar))
            continue;
        const std::string text = encoded(scalar);
        ASSERT_EQ(unicode::toUpper(text), mapped(scalar, &icu::UnicodeString::toUpper)) << std::hex << scalar;
        ASSERT_EQ(unicode::toLower(text), mapped(scalar, &icu::UnicodeString::toLower)) << std::hex << scalar;
    }
}

TEST(UnicodeCase, UpperCaseIsTheFullMapping) {
    EXPECT_EQ(unicode::toUpper("straße"), "STRASSE");
    EXPECT_EQ(unicode::toUpper("ﬁn"), "FIN");
    EXPECT_EQ(unicode::toUpper("ijé"), "IJÉ");
    EXPECT_EQ(unicode::toUpper("plain 1{"), "PLAIN 1{");
    EXPECT_EQ(unicode::toUpper("ŉ"), "ʼN");
    EXPECT_EQ(unicode::toUpper(""), "");
}

TEST(UnicodeCase, LowerCaseIsTheFullMapping) {
    EXPECT_EQ(unicode::toLower("İI"), "i\u0307i");
    EXPECT_EQ(unicode::toLower("⇧⌘S É"), "⇧⌘s é");
    EXPECT_EQ(unicode::toLower("PLAIN 1{"), "plain 1{");
    EXPECT_EQ(unicode::toLower("Å"), "å"); // the Ångström sign
    EXPECT_EQ(unicode::toLower(""), "");
}

TEST(UnicodeCase, APartOfATextStaysAPartOfItInLowerCase) {
    const std::string whole = unicode::toLower("ΟΔΟΣΗΜΑΝΣΗ ΟΔΟΣ");
    for (const char* part : {"ΟΔΟΣ", "ΟΔΟΣΗ", "Σ", "ΜΑΝΣΗ ΟΔΟΣ"})
        EXPECT_NE(whole.find(unicode::toLower(part)), std::string::npos) << part;
}

TEST(UnicodeCase, LowerCaseIsReachedInOneStep) {
    for (const char* text : {"ΟΔΟΣ", "İstanbul", "STRASSE", "ǅ", "Ⅷ"})
        EXPECT_EQ(unicode::toLower(unicode::toLower(text)), unicode::toLower(text)) << text;
}

TEST(UnicodeCase, BrokenBytesBecomeReplacementCharacters) {
    EXPECT_EQ(unicode::toUpper("a\xff\xc3z"), "A\ufffd\ufffdZ");
    EXPECT_EQ(unicode::toLower("A\xff\xe2\x82Z"), "a\ufffd\ufffdz");
}

} // namespace
} // namespace quillon
