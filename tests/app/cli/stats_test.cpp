#include <quillon/app/cli/stats.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr Count graduateAfter = 5;

UsageRecord used(Count clicked, Count typed) {
    UsageRecord record;
    record.clicked = clicked;
    record.typed = typed;
    return record;
}

std::vector<std::string> idsOf(const AppStats& stats) {
    std::vector<std::string> ids;
    for (const CommandStats& command : stats.commands)
        ids.push_back(command.id);
    return ids;
}

TEST(Stats, ClickedCommandsComeInTheOrderOfTheBookAndThenTheTypedOnes) {
    UsageBook usage;
    usage.apps["a"] = {
        {"less", used(3, 2)},
        {"most", used(9, 1)},
        {"typed", used(0, 3)},
        {"twice", used(0, 7)},
        {"practiced", used(0, 0)}};
    const auto stats = statsOf(usage, {}, graduateAfter);
    ASSERT_EQ(stats.size(), 1U);
    EXPECT_EQ(idsOf(stats[0]), (std::vector<std::string>{"most", "less", "twice", "typed"}));
    EXPECT_EQ(stats[0].clicked, 12);
    EXPECT_EQ(stats[0].typed, 13);
}

TEST(Stats, ACommandHasGraduatedWhenTypingLeadsByEnough) {
    UsageBook usage;
    usage.apps["a"] = {{"four", used(1, 5)}, {"five", used(1, 6)}, {"unclicked", used(0, 5)}};
    const auto stats = statsOf(usage, {}, graduateAfter);
    ASSERT_EQ(stats.size(), 1U);
    EXPECT_EQ(stats[0].commands.size(), 3U);
    for (const CommandStats& command : stats[0].commands)
        EXPECT_EQ(command.graduated, command.id != "four") << command.id;
}

TEST(Stats, TypingReplacesClicksOfCommandsThatAreClickedToo) {
    UsageBook usage;
    usage.apps["a"] = {{"both", used(1, 6)}, {"typed", used(0, 5)}, {"clicked", used(4, 0)}};
    EXPECT_EQ(statsOf(usage, {}, graduateAfter).at(0).replaced, 6);
}

TEST(Stats, SheetsTellNamesAndShortcutsOfWhatTheyStillHold) {
    UsageBook usage;
    usage.apps["a"] = {{"File › Save", used(2, 0)}, {"File › Gone", used(1, 0)}};
    usage.apps["practiced"] = {{"A", used(0, 0)}};
    const Shortcut save{Modifiers::control, Key::character("S")};
    const SheetMap sheets{{"a", {"a", "Sketch", {{{"File", "Save"}, save, true}}, distantPast}}};
    const auto stats = statsOf(usage, sheets, graduateAfter);
    ASSERT_EQ(stats.size(), 1U) << "nothing was counted of the other";
    EXPECT_EQ(stats[0].appName, "Sketch");
    EXPECT_EQ(stats[0].commands.at(0).shortcut, save);
    EXPECT_EQ(stats[0].commands.at(1).shortcut, std::nullopt);
}

TEST(Stats, AnApplicationIsFoundByItsIdentifierOrName) {
    AppStats sketch;
    sketch.bundleID = "org.example.sketch";
    sketch.appName = "Sketch Pad";
    AppStats other;
    other.bundleID = "other";
    const std::vector<AppStats> all{sketch, other};
    for (const char* const name : {"org.example.sketch", "SKETCH", "sketch pad"})
        EXPECT_EQ(statsOfApp(all, name), std::vector<AppStats>{sketch}) << name;
    EXPECT_EQ(statsOfApp(all, "other"), std::vector<AppStats>{other});
    EXPECT_TRUE(statsOfApp(all, "pad").empty());
    EXPECT_TRUE(statsOfApp(all, "").empty());
}

TEST(Stats, OfNothingAreEmpty) {
    EXPECT_EQ(statsText({}).bytes(), "");
    EXPECT_EQ(statsJson({}), "[]");
}

TEST(Stats, InJsonAreAbsentWhenANameIsNotUtf8) {
    EXPECT_EQ(statsJson({{.bundleID = "\xff", .appName = {}, .commands = {}}}), std::nullopt);
}

} // namespace
} // namespace quillon
