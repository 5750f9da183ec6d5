#include <quillon/kit/base/unicode.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <thread>
#include <vector>

namespace quillon {
namespace {

using namespace std::string_literals;

TEST(Unicode, OneCharacterIsOneGraphemeCluster) {
    for (const char* one :
         {"a", " ", "é", "e\u0301", "한", "\u1112\u1161\u11ab", "🇩🇪", "👩‍👩‍👧", "👍🏽",
          "\r\n", "☎\ufe0f", "\u0007", "\uf704"})
        EXPECT_TRUE(unicode::isOneCharacter(one)) << one;
    for (const char* other : {"", "ab", "éa", "ae\u0301", "🇩🇪🇩🇪", "\n\r", "\na", "한국", "  "})
        EXPECT_FALSE(unicode::isOneCharacter(other)) << other;
    EXPECT_TRUE(unicode::isOneCharacter("\0"s));
    EXPECT_FALSE(unicode::isOneCharacter("\0\0"s));
}

TEST(Unicode, ABrokenSequenceIsOneCharacter) {
    EXPECT_TRUE(unicode::isOneCharacter("\xff"));
    EXPECT_TRUE(unicode::isOneCharacter("\xe2\x82"));
    EXPECT_FALSE(unicode::isOneCharacter("\xff\xff"));
    EXPECT_FALSE(unicode::isOneCharacter("\xed\xa0\x80")); // a surrogate: three broken bytes
}

TEST(Unicode, FindsCharactersInSeveralThreadsAtOnce) {
    std::vector<std::thread> threads;
    std::vector<int> found(4);
    for (std::size_t t = 0; t < found.size(); ++t) {
        threads.emplace_back([&count = found[t]] {
            for (int i = 0; i < 1000; ++i)
                count += unicode::isOneCharacter("e\u0301") && !unicode::isOneCharacter("e\u0301x");
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(found, std::vector(4, 1000));
}

TEST(Unicode, OnlyScalarWantsExactlyOne) {
    EXPECT_EQ(unicode::onlyScalar("a"), U'a');
    EXPECT_EQ(unicode::onlyScalar("›"), U'\u203a');
    EXPECT_EQ(unicode::onlyScalar("😀"), U'😀');
    EXPECT_EQ(unicode::onlyScalar("\xff"), U'\ufffd');
    EXPECT_EQ(unicode::onlyScalar(""), std::nullopt);
    EXPECT_EQ(unicode::onlyScalar("ab"), std::nullopt);
    EXPECT_EQ(unicode::onlyScalar("e\u0301"), std::nullopt);
    EXPECT_EQ(unicode::onlyScalar("\0"s), U'\0');
}

TEST(Unicode, FirstScalarIsAbsentOnlyForNoText) {
    EXPECT_EQ(unicode::firstScalar("été"), U'é');
    EXPECT_EQ(unicode::firstScalar("\xe2\x82z"), U'\ufffd');
    EXPECT_EQ(unicode::firstScalar(""), std::nullopt);
    EXPECT_EQ(unicode::firstScalarLength("été"), 2u);
    EXPECT_EQ(unicode::firstScalarLength("\xe2\x82z"), 2u);
    EXPECT_EQ(unicode::firstScalarLength(""), 0u);
}

TEST(Unicode, WhitespaceIsTheProperty) {
    const std::u32string blanks = U"\t\n\v\f\r \u0085\u00a0\u1680\u2000\u200a\u2028\u2029\u202f\u205f\u3000";
    for (const char32_t scalar : blanks)
        EXPECT_TRUE(unicode::isWhitespace(scalar)) << std::hex << static_cast<std::uint32_t>(scalar);
    const std::u32string others = U"\u0008\u000e\u001f!A\u0084\u200b\u2060\ufeff\ufffd";
    for (const char32_t scalar : others)
        EXPECT_FALSE(unicode::isWhitespace(scalar)) << std::hex << static_cast<std::uint32_t>(scalar);
    EXPECT_FALSE(unicode::isWhitespace(U'\0'));
    EXPECT_TRUE(unicode::isWhitespace(" \u00a0\n"));
    EXPECT_FALSE(unicode::isWhitespace(" a"));
    EXPECT_FALSE(unicode::isWhitespace(""));
    EXPECT_FALSE(unicode::isWhitespace("\xff"));
}

TEST(Unicode, LineBreaksAreWhitespaceToo) {
    for (char32_t scalar = 0; scalar < 0x3100; ++scalar) {
        const bool expected =
            (scalar >= 0xa && scalar <= 0xd) || scalar == 0x85 || scalar == 0x2028 || scalar == 0x2029;
        EXPECT_EQ(unicode::isLineBreak(scalar), expected) << std::hex << static_cast<std::uint32_t>(scalar);
        EXPECT_TRUE(!expected || unicode::isWhitespace(scalar));
    }
}

TEST(Unicode, TrimsTheEndsOnly) {
    using unicode::Trim;
    EXPECT_EQ(unicode::trimmed(" \t a b \u00a0", Trim::blanks), "a b");
    EXPECT_EQ(unicode::trimmed("\n a\n", Trim::blanks), "\n a\n");
    EXPECT_EQ(unicode::trimmed("\n \u2028a\u3000b\r\n", Trim::whitespace), "a\u3000b");
    EXPECT_EQ(unicode::trimmed(" \t", Trim::blanks), "");
    EXPECT_EQ(unicode::trimmed("", Trim::whitespace), "");
    EXPECT_EQ(unicode::trimmed(" \xff ", Trim::whitespace), "\xff");
    EXPECT_EQ(unicode::trimmed("\u200bx\u200b", Trim::whitespace), "\u200bx\u200b");
}

TEST(Unicode, ALetterIsOneAlphabeticCharacter) {
    for (const char* letter : {"a", "Z", "é", "e\u0301", "ß", "Ж", "中", "한", "א", "ª", "Ⅷ"})
        EXPECT_TRUE(unicode::isLetter(letter)) << letter;
    for (const char* other : {"", "1", "?", " ", "ab", "SS", "½", "☎", "\u0301", "⌘", "\xff", "😀"})
        EXPECT_FALSE(unicode::isLetter(other)) << other;
}

TEST(Unicode, ValidityIsThatOfUtf8) {
    for (const std::string& valid :
         {""s, "plain"s, "\0"s, "é"s, "\u07ff"s, "\u0800"s, "\uffff"s, "\U00010000"s, "\U0010ffff"s})
        EXPECT_TRUE(unicode::isValid(valid)) << valid;
    for (const char* broken :
         {"\x80", "\xff", "\xc0\xaf", "\xc1\x81", "\xe0\x9f\xbf", "\xed\xa0\x80", "\xf0\x8f\xbf\xbf",
          "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "a\xc3", "\xe2\x82", "\xf0\x9f\x98", "\xc3(", "ok\xfe"})
        EXPECT_FALSE(unicode::isValid(broken)) << broken;
}

TEST(Unicode, AppendsEveryScalar) {
    std::string text = "a";
    for (const char32_t scalar : {U'b', U'\0', U'\x7f', U'é', U'\u07ff', U'\u0800', U'⌘', U'\uffff', U'😀'})
        unicode::append(text, scalar);
    EXPECT_EQ(text, "ab\0\x7fé\u07ff\u0800⌘\uffff😀"s);
    for (char32_t scalar = 0; scalar <= 0x10ffff; ++scalar) {
        std::string alone;
        unicode::append(alone, scalar);
        const bool isSurrogate = scalar >= 0xd800 && scalar < 0xe000;
        ASSERT_EQ(unicode::onlyScalar(alone), isSurrogate ? U'\ufffd' : scalar);
        ASSERT_TRUE(unicode::isValid(alone));
    }
}

TEST(Unicode, AppendsNothingThatIsNoScalar) {
    for (const char32_t none :
         {char32_t{0xd800}, char32_t{0xdfff}, char32_t{0x110000}, char32_t{0xffffffff}}) {
        std::string text;
        unicode::append(text, none);
        EXPECT_EQ(text, "\ufffd");
    }
}

TEST(Unicode, RepairReplacesEachMaximalBrokenSequence) {
    EXPECT_EQ(unicode::repaired("plain é"), "plain é");
    EXPECT_EQ(unicode::repaired("a\xffz"), "a\ufffdz");
    EXPECT_EQ(unicode::repaired("\xe2\x82z"), "\ufffdz");
    EXPECT_EQ(unicode::repaired("\xf0\x9f\x98"), "\ufffd");
    EXPECT_EQ(unicode::repaired("\xed\xa0\x80"), "\ufffd\ufffd\ufffd");
    EXPECT_EQ(unicode::repaired("\xc3\xc3\xa9"), "\ufffdé");
}

TEST(Unicode, TruncationNeverCutsInsideOfAScalar) {
    const std::string text = "aé›😀z";
    for (std::size_t limit = 0; limit <= text.size() + 1; ++limit) {
        const std::string_view cut = unicode::truncated(text, limit);
        EXPECT_LE(cut.size(), limit);
        EXPECT_TRUE(unicode::isValid(cut));
        EXPECT_TRUE(text.starts_with(cut));
        EXPECT_GE(cut.size() + 3, std::min(limit, text.size())) << "gave away more than one scalar";
    }
    EXPECT_EQ(unicode::truncated(text, 100), text);
    EXPECT_EQ(unicode::truncated(text, 3), "aé");
    EXPECT_EQ(unicode::truncated(text, 5), "aé");
    EXPECT_EQ(unicode::truncated(text, 6), "aé›");
}

TEST(Unicode, EncodesEveryScalarAndNothingElse) {
    EXPECT_EQ(unicode::encoded(U'a'), "a");
    EXPECT_EQ(unicode::encoded(U'é'), "é");
    EXPECT_EQ(unicode::encoded(U'›'), "›");
    EXPECT_EQ(unicode::encoded(U'😀'), "😀");
    EXPECT_EQ(unicode::encoded(0xd800), "\ufffd");
    EXPECT_EQ(unicode::encoded(0x110000), "\ufffd");
}

TEST(Unicode, TruncationOfBrokenTextStillMakesProgress) {
    EXPECT_EQ(unicode::truncated(std::string(10, '\x80'), 8).size(), 8u);
}

} // namespace
} // namespace quillon
