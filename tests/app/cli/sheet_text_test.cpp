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
        sheetText(sheet), "Sketch (org.example.sketch): 3 shortcuts\n"
                          "\n"
                          "File\n"
                          "  New               ⌃N\n"
                          "  Save As…          ⌃⇧S\n"
                          "\n"
                          "Edit\n"
                          "  Find › Find Next  ⌃G   (disabled)\n");
}

TEST(SheetText, CountsOneShortcutAsOne) {
    const AppSheet sheet{"a", "A", {entry({"File", "New"}, Modifiers::control, "N")}, distantPast};
    EXPECT_EQ(sheetText(sheet).substr(0, 17), "A (a): 1 shortcut");
    EXPECT_EQ(sheetText(sheet)[17], '\n');
}

TEST(SheetText, AlignsWideAndCombiningCharacters) {
    const std::string text = tableText({{"ファイル", "x"}, {"e\u0301", "x"}, {"12345678", "x"}});
    EXPECT_EQ(text, "ファイル  x\ne\u0301         x\n12345678  x\n");
}

TEST(SheetText, EndsNoLineWithBlanks) {
    EXPECT_EQ(tableText({{"a", ""}, {"long", "b"}}), "a\nlong  b\n");
}

TEST(SheetText, NumbersAPracticeRound) {
    std::vector<MenuEntry> round(10, entry({"File", "New"}, Modifiers::control, "N"));
    round[9] = entry({"Edit", "Find", "Find Next"}, Modifiers::control, "G");
    const std::string text = practiceText(round);
    EXPECT_EQ(text.substr(0, text.find('\n')), "1.   File › New               ⌃N");
    EXPECT_NE(text.find("10.  Edit › Find › Find Next  ⌃G\n"), std::string::npos);
    EXPECT_EQ(practiceText({}), "");
}

TEST(SheetText, FallsBackToTheIdForAnUnnamedApplication) {
    EXPECT_EQ(sheetText({"sketch", "", {}, distantPast}), "sketch (sketch): 0 shortcuts\n");
}

} // namespace
} // namespace quillon
