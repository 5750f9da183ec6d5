#include <quillon/app/cli/sheet_text.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

MenuEntry entry(std::vector<std::string> path, Modifiers modifiers, const char* key, bool enabled = true) {
    return {std::move(path), {modifiers, Key::character(key)}, enabled};
}

TEST(SheetText, GroupsByMenuAndAlignsTheKeys) {
    const AppSheet sheet{
        "org.example.sketch",
        "Sketch",
        {entry({"File", "New"}, Modifiers::control, "N"),
         entry({"Edit", "Find", "Find Next"}, Modifiers::control, "G", false),
         entry({"File", "Save As…"}, Modifiers::control | Modifiers::shift, "S")},
        distantPast};
    EXPECT_EQ(
        sheetText(sheet).bytes(), "Sketch (org.example.sketch): 3 shortcuts\n"
                                  "\n"
                                  "File\n"
                                  "  New               ⌃N\n"
                                  "  Save As…          ⌃⇧S\n"
                                  "\n"
                                  "Edit\n"
                                  "  Find › Find Next  ⌃G   (disabled)\n");
}

TEST(SheetText, ShowsKeysByTheirNamesInOneColumn) {
    const AppSheet sheet{
        "org.example.sketch",
        "Sketch",
        {entry({"File", "New"}, Modifiers::control, "N", false),
         entry({"File", "Save As…"}, Modifiers::control | Modifiers::shift, "S", false)},
        distantPast};
    const KeyNames& names = KeyNames::english();
    EXPECT_EQ(
        sheetText(sheet, &names).bytes(), "Sketch (org.example.sketch): 2 shortcuts\n"
                                          "\n"
                                          "File\n"
                                          "  New       Ctrl N        (disabled)\n"
                                          "  Save As…  Ctrl Shift S  (disabled)\n");
    EXPECT_TRUE(practiceText(sheet.entries, &names).bytes().starts_with("1.  File › New       Ctrl N\n"));
    EXPECT_NE(markdownText(sheet, {}, &names).bytes().find("- **Ctrl Shift S** Save As…"), std::string::npos);
}

TEST(SheetText, CountsOneShortcutAsOne) {
    const AppSheet sheet{"a", "A", {entry({"File", "New"}, Modifiers::control, "N")}, distantPast};
    EXPECT_EQ(sheetText(sheet).bytes().substr(0, 17), "A (a): 1 shortcut");
    EXPECT_EQ(sheetText(sheet).bytes()[17], '\n');
}

TEST(SheetText, AlignsWideAndCombiningCharacters) {
    const TerminalText text = tableText({{"ファイル", "x"}, {"e\u0301", "x"}, {"12345678", "x"}});
    EXPECT_EQ(text.bytes(), "ファイル  x\ne\u0301         x\n12345678  x\n");
}

TEST(SheetText, EndsNoLineWithBlanks) {
    EXPECT_EQ(tableText({{"a", ""}, {"long", "b"}}).bytes(), "a\nlong  b\n");
}

TEST(SheetText, NumbersAPracticeRound) {
    std::vector<MenuEntry> round(10, entry({"File", "New"}, Modifiers::control, "N"));
    round[9] = entry({"Edit", "Find", "Find Next"}, Modifiers::control, "G");
    const std::string text = practiceText(round).bytes();
    EXPECT_EQ(text.substr(0, text.find('\n')), "1.   File › New               ⌃N");
    EXPECT_NE(text.find("10.  Edit › Find › Find Next  ⌃G\n"), std::string::npos);
    EXPECT_EQ(practiceText({}).bytes(), "");
}

TEST(SheetText, FallsBackToTheIdForAnUnnamedApplication) {
    EXPECT_EQ(sheetText({"sketch", "", {}, distantPast}).bytes(), "sketch (sketch): 0 shortcuts\n");
}

TEST(SheetText, LeavesOutAnIdThatIsNotKnown) {
    EXPECT_EQ(sheetText({"", "Sketch", {}, distantPast}).bytes(), "Sketch: 0 shortcuts\n");
}

/// Its texts break lines, colour the terminal and turn around what follows.
const AppSheet hostile{
    "id\x1b[2J",
    "Na\nme\u202e",
    {entry({"Fi\nle", "Sub\x07", "Ti\u009btle\n# x"}, Modifiers::control, "\u202d")},
    distantPast};

TEST(SheetText, KeepsHostileTextsInTheirCells) {
    EXPECT_EQ(
        sheetText(hostile).bytes(), "Na<U+000A>me<U+202E> (id<U+001B>[2J): 1 shortcut\n"
                                    "\n"
                                    "Fi<U+000A>le\n"
                                    "  Sub<U+0007> › Ti<U+009B>tle<U+000A># x  ⌃<U+202D>\n");
    EXPECT_EQ(
        practiceText(hostile.entries).bytes(),
        "1.  Fi<U+000A>le › Sub<U+0007> › Ti<U+009B>tle<U+000A># x  ⌃<U+202D>\n");
}

TEST(SheetText, KeepsHostileTextsOnTheirLinesInMarkdown) {
    const Annotations said{{hostile.entries[0].id(), {true, "no\nte\x1b"}}};
    const std::string text = markdownText(hostile, said).bytes();
    EXPECT_TRUE(text.starts_with("# Na<U+000A>me<U+202E> shortcuts\n")) << text;
    EXPECT_NE(text.find("## Pinned\n"), std::string::npos) << text;
    EXPECT_NE(text.find("no<U+000A>te<U+001B>\n"), std::string::npos) << text;
    EXPECT_NE(text.find("<U+009B>tle<U+000A># x"), std::string::npos) << text;
    EXPECT_EQ(text.find("\n# x"), std::string::npos) << text;
}

} // namespace
} // namespace quillon
