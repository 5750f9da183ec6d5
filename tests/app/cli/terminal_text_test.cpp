#include <quillon/app/cli/terminal_text.h>

#include <gtest/gtest.h>

#include <utility>

namespace quillon {
namespace {

using Cases = std::vector<std::pair<std::string_view, std::string_view>>;

void expectShown(const Cases& cases) {
    for (const auto& [foreign, expected] : cases) {
        EXPECT_EQ(TerminalText::of(foreign).bytes(), expected);
        EXPECT_EQ(TerminalText::of(expected).bytes(), expected) << "shown twice";
    }
}

TEST(TerminalText, LeavesWhatATerminalShowsAsItIs) {
    for (const std::string_view text :
         {"", "Save As…", "ファイル", "e\u0301", "עברית", "\u200f(עברית)", "👩\u200d💻", "⌃⇧S", "a\\b'\"$(x)`",
          "\u00a0"})
        EXPECT_EQ(TerminalText::of(text).bytes(), text);
}

TEST(TerminalText, WritesControlCharactersOut) {
    expectShown(
        {{"\x1b[31mred\x1b[0m", "<U+001B>[31mred<U+001B>[0m"},
         {"\x1b]0;title\x07", "<U+001B>]0;title<U+0007>"},
         {std::string_view("a\0b", 3), "a<U+0000>b"},
         {"\b\t\v\f\r", "<U+0008><U+0009><U+000B><U+000C><U+000D>"},
         {"\x7f", "<U+007F>"}});
}

TEST(TerminalText, LetsNoControlCharacterThrough) {
    for (int code = 0; code < 0xa0; ++code) {
        if (code >= 0x20 && code < 0x7f)
            continue;
        const std::string encoded = code < 0x80 ? std::string(1, static_cast<char>(code))
                                                : std::string{'\xc2', static_cast<char>(code)};
        char expected[16];
        std::snprintf(expected, sizeof expected, "<U+%04X>", static_cast<unsigned>(code));
        EXPECT_EQ(TerminalText::of(encoded).bytes(), expected);
    }
}

TEST(TerminalText, WritesOutWhatReordersText) {
    expectShown(
        {{"\u202aa\u202bb\u202dc\u202ed\u202c", "<U+202A>a<U+202B>b<U+202D>c<U+202E>d<U+202C>"},
         {"\u2066a\u2067b\u2068c\u2069", "<U+2066>a<U+2067>b<U+2068>c<U+2069>"}});
}

TEST(TerminalText, WritesLineBreaksOut) {
    expectShown(
        {{"a\nb", "a<U+000A>b"},
         {"a\r\nb", "a<U+000D><U+000A>b"},
         {"a\u0085b", "a<U+0085>b"},
         {"a\u2028b\u2029c", "a<U+2028>b<U+2029>c"}});
}

TEST(TerminalText, ReplacesBytesThatAreNoText) {
    // A terminal that does not speak UTF-8 takes 9b for the beginning of an escape sequence.
    expectShown(
        {{"\x9b"
          "31m",
          "\ufffd31m"},
         {"\xff\xfe", "\ufffd\ufffd"},
         {"\xc3", "\ufffd"},
         {"\xed\xa0\x80", "\ufffd\ufffd\ufffd"}});
}

TEST(TerminalText, KeepsTheLineBreaksOfLines) {
    EXPECT_EQ(TerminalText::linesOf("# A\n- b\x1b\r\n").bytes(), "# A\n- b<U+001B><U+000D>\n");
}

TEST(TerminalText, ComesTogetherFromOwnAndForeignText) {
    const TerminalText text = "no '" + TerminalText::of("a\nb") + "'\n";
    EXPECT_EQ(text.bytes(), "no 'a<U+000A>b'\n");
    EXPECT_EQ(TerminalText::blanks(3).bytes(), "   ");
}

TEST(TerminalText, IsAsWideAsItIsShown) {
    EXPECT_EQ(TerminalText::of("\x1b").width(), 8U);
    EXPECT_EQ(TerminalText::of("ファイル").width(), 8U);
}

} // namespace
} // namespace quillon
