#include <quillon/kit/shortcut/modifiers.h>

#include <gmock/gmock.h>

#include <unordered_set>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Modifiers control = Modifiers::control;
constexpr Modifiers option = Modifiers::option;
constexpr Modifiers shift = Modifiers::shift;
constexpr Modifiers command = Modifiers::command;

TEST(Modifiers, HaveOneBitEach) {
    EXPECT_EQ(control.rawValue(), 1);
    EXPECT_EQ(option.rawValue(), 2);
    EXPECT_EQ(shift.rawValue(), 4);
    EXPECT_EQ(command.rawValue(), 8);
}

TEST(Modifiers, AreBuiltFromAListOfMembers) {
    EXPECT_EQ((Modifiers{command, shift}).rawValue(), 12);
    EXPECT_EQ((Modifiers{shift, shift}), shift);
    EXPECT_TRUE(Modifiers({}).isEmpty());
    EXPECT_EQ(Modifiers(), Modifiers(0));
}

TEST(Modifiers, KeepBitsWithoutAName) {
    const Modifiers odd(64 | 8);
    EXPECT_EQ(odd.rawValue(), 72);
    EXPECT_EQ(odd.glyphs(), "⌘");
    EXPECT_NE(odd, command);
    EXPECT_EQ((odd | shift).rawValue(), 76);
    EXPECT_FALSE(Modifiers(64).isEmpty());
}

TEST(Modifiers, FollowTheAlgebraOfSets) {
    for (std::int64_t a = 0; a < 16; ++a) {
        for (std::int64_t b = 0; b < 16; ++b) {
            const Modifiers first(a);
            const Modifiers second(b);
            EXPECT_EQ(first.union_(second).rawValue(), a | b);
            EXPECT_EQ((first | second).rawValue(), a | b);
            EXPECT_EQ(first.intersection(second).rawValue(), a & b);
            EXPECT_EQ(first.symmetricDifference(second).rawValue(), a ^ b);
            EXPECT_EQ(first.subtracting(second).rawValue(), a & ~b);
            EXPECT_EQ(first.contains(second), (a & b) == b);
            EXPECT_EQ(first.isDisjoint(second), (a & b) == 0);
            EXPECT_EQ(first == second, a == b);
        }
    }
}

TEST(Modifiers, TellWhetherAnInsertionWasNew) {
    Modifiers held = command;
    EXPECT_FALSE(held.insert(command));
    EXPECT_TRUE(held.insert(shift));
    EXPECT_EQ(held, (Modifiers{shift, command}));
    EXPECT_TRUE(held.insert({shift, option})) << "option was missing";
}

TEST(Modifiers, TellWhetherARemovalTookAnything) {
    Modifiers held{shift, command};
    EXPECT_FALSE(held.remove(option));
    EXPECT_TRUE(held.remove({shift, option}));
    EXPECT_EQ(held, command);
}

TEST(Modifiers, TellWhatAnUpdateFoundThere) {
    Modifiers held{shift, command};
    EXPECT_EQ(held.update(option), std::nullopt);
    EXPECT_EQ(held.update({control, shift}), shift);
    EXPECT_EQ(held, (Modifiers{control, option, shift, command}));
}

TEST(Modifiers, ShowGlyphsInOneOrder) {
    EXPECT_EQ((Modifiers{command, shift}).glyphs(), "⇧⌘");
    EXPECT_EQ((Modifiers{command, shift, option, control}).glyphs(), "⌃⌥⇧⌘");
    EXPECT_EQ(Modifiers().glyphs(), "");
    EXPECT_EQ((control | option).glyphs(), "⌃⌥");
}

TEST(Modifiers, ReadTheirWordsInTheSameOrder) {
    EXPECT_THAT(
        (Modifiers{command, shift, option, control}).words(),
        ElementsAre("Control", "Option", "Shift", "Command"));
    EXPECT_THAT((command | option).words(), ElementsAre("Option", "Command"));
    EXPECT_THAT(Modifiers().words(), IsEmpty());
}

struct MaskRow {
    std::int64_t mask;
    const char* glyphs;
};

TEST(Modifiers, ComeFromEveryAccessibilityMask) {
    for (const auto& [mask, glyphs] : std::initializer_list<MaskRow>{
             {0, "⌘"},
             {1, "⇧⌘"},
             {2, "⌥⌘"},
             {3, "⌥⇧⌘"},
             {4, "⌃⌘"},
             {5, "⌃⇧⌘"},
             {6, "⌃⌥⌘"},
             {7, "⌃⌥⇧⌘"},
             {8, ""},
             {9, "⇧"},
             {10, "⌥"},
             {11, "⌥⇧"},
             {12, "⌃"},
             {13, "⌃⇧"},
             {14, "⌃⌥"},
             {15, "⌃⌥⇧"},
             {16, "⌘"},
             {24, ""},
             {-1, "⌃⌥⇧"}})
        EXPECT_EQ(Modifiers::fromAXMask(mask).glyphs(), glyphs) << mask;
    EXPECT_EQ(Modifiers::fromAXMask(1 << 20).rawValue(), 8) << "bits above 8 are ignored";
}

TEST(Modifiers, HashByTheirBits) {
    std::unordered_set<Modifiers> set{command, shift, command | shift, command};
    EXPECT_EQ(set.size(), 3u);
}

} // namespace
} // namespace quillon
