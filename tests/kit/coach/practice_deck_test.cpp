#include <quillon/kit/coach/practice_deck.h>
#include <quillon/kit/coach/practice_weighting.h>
#include <quillon/kit/coach/seeded_generator.h>
#include <quillon/kit/menu/sample_menus.h>
#include <quillon/kit/records/sample_records.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>

namespace quillon {
namespace {

using PracticeDeck::Ids;
using testing::ElementsAre;
using testing::IsEmpty;
using M = Modifiers;

MenuEntry entry(const std::string& title, M modifiers = M::command, Key key = Key::character("K")) {
    return {{"Menu", title}, {modifiers, std::move(key)}, true};
}

std::vector<std::string> titlesOf(const std::vector<MenuEntry>& entries) {
    std::vector<std::string> titles;
    titles.reserve(entries.size());
    for (const MenuEntry& one : entries)
        titles.emplace_back(one.title());
    return titles;
}

/// Gives the numbers it was told, in order.
class Scripted {
  public:
    using result_type = std::uint64_t;
    explicit Scripted(std::vector<std::uint64_t> numbers) : m_numbers(std::move(numbers)) {}
    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return UINT64_MAX; }
    result_type operator()() { return m_numbers.at(m_used++); }
    std::size_t used() const { return m_used; }

  private:
    std::vector<std::uint64_t> m_numbers;
    std::size_t m_used = 0;
};

/// The number whose draw is `fraction` of the total.
constexpr std::uint64_t numberAt(double fraction) {
    return static_cast<std::uint64_t>(fraction * 0x1p53);
}

TEST(PracticeDeck, KeepsWhatIsWorthPractising) {
    const std::vector<MenuEntry> entries{
        entry("quit", M::command, Key::character("Q")),
        entry("lock screen", M::control | M::command, Key::character("Q")),
        entry("shift alone", M::shift, Key::character("A")),
        entry("bare", M(), Key::special(SpecialKey::f5)),
        entry("control", M::control, Key::character("A")),
        entry("option", M::option, Key::special(SpecialKey::left)),
        entry("shift and option", M::shift | M::option, Key::character("A")),
        entry("spotlight", M::command, Key::special(SpecialKey::space)),
        entry("odd bits", M(64), Key::character("A")),
    };
    EXPECT_THAT(
        titlesOf(PracticeDeck::practicable(entries)),
        ElementsAre("quit", "control", "option", "shift and option"));
}

TEST(PracticeDeck, LeavesOutExactlyWhatBelongsToTheSystem) {
    std::set<std::string> dropped;
    std::vector<Key> keys;
    keys.reserve(200);
    for (const SpecialKey key : allSpecialKeys)
        keys.push_back(Key::special(key));
    for (char character = '!'; character < 0x7f; ++character)
        keys.push_back(Key::character(std::string(1, character)));
    for (std::int64_t modifiers = 0; modifiers < 16; ++modifiers) {
        for (const Key& key : keys) {
            const MenuEntry one = entry("x", M(modifiers), key);
            const bool held = (modifiers & 11) != 0;
            const bool kept = !PracticeDeck::practicable(std::vector{one}).empty();
            EXPECT_TRUE(held || !kept);
            if (held && !kept)
                dropped.insert(one.shortcut.display());
        }
    }
    const std::set<std::string> reserved{"⌃⌘Q", "⌘⇥",  "⇧⌘⇥", "⌘Space", "⌃⌘Space", "⌥⌘Space",
                                         "⇧⌘3", "⇧⌘4", "⇧⌘5", "⌥⌘⎋",    "⌥⌘D"};
    EXPECT_EQ(dropped, reserved);
}

TEST(PracticeDeck, KeepsDisabledEntries) {
    MenuEntry disabled = entry("x");
    disabled.enabled = false;
    EXPECT_THAT(PracticeDeck::practicable(std::vector{disabled}), ElementsAre(disabled));
}

TEST(PracticeDeck, WalksThePoolToTheDrawnNumber) {
    const std::vector<MenuEntry> four{entry("a"), entry("b"), entry("c"), entry("d")};
    struct Row {
        std::uint64_t number;
        const char* picked;
    };
    for (const auto& [number, picked] : std::initializer_list<Row>{
             {0, "a"},
             {numberAt(0.25) - 1, "a"},
             {numberAt(0.25), "b"},
             {numberAt(0.5) - 1, "b"},
             {numberAt(0.5), "c"},
             {numberAt(0.75), "d"},
             {numberAt(1) - 1, "d"},
             {UINT64_MAX, "d"},
             {std::uint64_t{1} << 53, "a"}}) {
        Scripted random({number});
        EXPECT_THAT(titlesOf(PracticeDeck::round(four, {}, {}, 1, random)), ElementsAre(picked)) << number;
        EXPECT_EQ(random.used(), 1u) << "one number per draw, of which the low 53 bits count";
    }
}

TEST(PracticeDeck, DrawsFromWhatIsLeftInOrder) {
    const std::vector<MenuEntry> four{entry("a"), entry("b"), entry("c"), entry("d")};
    // b of abcd, then c of acd (the second third), then d of ad, then a.
    Scripted random({numberAt(0.3), numberAt(0.5), numberAt(0.9), numberAt(0.99)});
    EXPECT_THAT(titlesOf(PracticeDeck::round(four, {}, {}, 4, random)), ElementsAre("b", "c", "d", "a"));
}

TEST(PracticeDeck, GivesEachEntryTheSpanOfItsWeight) {
    // Weights 4 (1 + 3), 1.5 and 0.5, of 6 in all.
    const std::vector<MenuEntry> three{entry("clicked"), entry("pinned"), entry("typed")};
    const UsageRecords usage{{"Menu › clicked", {.clicked = 1}}, {"Menu › typed", {.typed = 5}}};
    const auto pick = [&](double fraction) {
        Scripted random({numberAt(fraction)});
        return titlesOf(PracticeDeck::round(three, usage, {"Menu › pinned"}, 1, random)).at(0);
    };
    EXPECT_EQ(pick(3.999 / 6), "clicked");
    EXPECT_EQ(pick(4.001 / 6), "pinned");
    EXPECT_EQ(pick(5.499 / 6), "pinned");
    EXPECT_EQ(pick(5.501 / 6), "typed");
}

TEST(PracticeDeck, TheLargestNumberAlwaysPicksTheLastEntry) {
    RandomValues values(111);
    for (int round = 0; round < 2000; ++round) {
        std::vector<MenuEntry> entries;
        UsageRecords usage;
        for (std::size_t i = values.number(1, 30); i > 0; --i) {
            entries.push_back(entry(std::to_string(i)));
            usage[entries.back().id()] = {
                .clicked = static_cast<Count>(values.number(0, 1000)),
                .typed = static_cast<Count>(values.number(0, 99))};
        }
        Scripted random({UINT64_MAX});
        ASSERT_THAT(PracticeDeck::round(entries, usage, {}, 1, random), ElementsAre(entries.back()));
    }
}

TEST(PracticeDeck, DrawsEachEntryAtMostOnceAndOnlyPracticableOnes) {
    RandomValues values(112);
    for (int round = 0; round < 300; ++round) {
        std::vector<MenuEntry> entries;
        for (std::size_t i = values.number(0, 30); i > 0; --i)
            entries.push_back({{"Menu", std::to_string(i)}, values.shortcut(), values.chance(0.5)});
        const std::vector<MenuEntry> practicable = PracticeDeck::practicable(entries);
        const auto count = static_cast<Count>(values.number(0, 20));
        SeededGenerator random(values.number(0, 1u << 30));
        const std::vector<MenuEntry> drawn = PracticeDeck::round(entries, {}, {}, count, random);
        EXPECT_EQ(drawn.size(), std::min(practicable.size(), static_cast<std::size_t>(count)));
        std::set<std::string> ids;
        for (const MenuEntry& one : drawn) {
            EXPECT_TRUE(ids.insert(one.id()).second);
            EXPECT_NE(std::ranges::find(practicable, one), practicable.end());
        }
    }
}

TEST(PracticeDeck, AnEmptyRoundNeedsNoNumbers) {
    Scripted none({});
    const std::vector<MenuEntry> one{entry("a")};
    EXPECT_THAT(PracticeDeck::round(one, {}, {}, 0, none), IsEmpty());
    EXPECT_THAT(PracticeDeck::round(one, {}, {}, -5, none), IsEmpty());
    EXPECT_THAT(PracticeDeck::round({}, {}, {}, 10, none), IsEmpty());
    EXPECT_THAT(PracticeDeck::round(std::vector{entry("a", M::shift)}, {}, {}, 10, none), IsEmpty());
}

TEST(PracticeDeck, TheSameSeedGivesTheSameRound) {
    const auto draw = [](std::uint64_t seed) {
        SeededGenerator random(seed);
        return PracticeDeck::round(
            SampleMenus::sheet().entries, SampleMenus::usage(), {"File › Duplicate"}, 10, random);
    };
    EXPECT_EQ(draw(7), draw(7));
    EXPECT_NE(draw(7), draw(8));
    EXPECT_EQ(draw(7).size(), 10u);
}

TEST(PracticeDeck, AdvancesTheCallersGenerator) {
    SeededGenerator random(7);
    const auto first = PracticeDeck::round(SampleMenus::sheet().entries, {}, {}, 10, random);
    EXPECT_NE(random, SeededGenerator(7));
    EXPECT_NE(PracticeDeck::round(SampleMenus::sheet().entries, {}, {}, 10, random), first);
    std::mt19937_64 other(1);
    EXPECT_EQ(PracticeDeck::round(SampleMenus::sheet().entries, {}, {}, 10, other).size(), 10u);
}

TEST(PracticeDeck, SurvivesRecordsThatNoCountingMakes) {
    const std::vector<MenuEntry> two{entry("a"), entry("b")};
    for (const UsageRecord& odd :
         {UsageRecord{.clicked = 1, .typed = -1}, UsageRecord{.clicked = 0, .typed = -1},
          UsageRecord{.clicked = -1, .typed = -1}}) {
        SeededGenerator random(1);
        EXPECT_EQ(PracticeDeck::round(two, {{"Menu › a", odd}}, {}, 2, random).size(), 2u);
    }
}

/// How far counts are from what the chances promise: Pearson's statistic.
double
chiSquare(const std::map<std::string, int>& counts, const std::map<std::string, double>& chances, int draws) {
    double sum = 0;
    for (const auto& [name, chance] : chances) {
        const double expected = chance * draws;
        const double difference = (counts.contains(name) ? counts.at(name) : 0) - expected;
        sum += difference * difference / expected;
    }
    return sum;
}

struct Deck {
    std::vector<MenuEntry> entries{entry("a"), entry("b"), entry("c"), entry("d"), entry("e")};
    UsageRecords usage{
        {"Menu › b", {.clicked = 2}},
        {"Menu › c", {.typed = 9, .practiceRight = 3}},
        {"Menu › e", {.practiceWrong = 1}}};
    Ids pinned{"Menu › d"};
    std::map<std::string, double> weights{{"a", 1}, {"b", 7}, {"c", 0.2}, {"d", 1.5}, {"e", 2.5}};
    double total = 12.2;
};

constexpr int draws = 40'000;

TEST(PracticeDeck, DrawsByWeight) {
    const Deck deck;
    std::map<std::string, int> counts;
    SeededGenerator random(2024);
    for (int i = 0; i < draws; ++i)
        ++counts[titlesOf(PracticeDeck::round(deck.entries, deck.usage, deck.pinned, 1, random)).at(0)];
    std::map<std::string, double> chances;
    std::map<std::string, double> wrong;
    for (const auto& [title, weight] : deck.weights) {
        chances[title] = weight / deck.total;
        wrong[title] = (weight + (title == "b" ? 0.5 : 0)) / (deck.total + 0.5);
    }
    // 18.47 is passed by chance once in a thousand seeds (4 degrees of freedom).
    EXPECT_LT(chiSquare(counts, chances, draws), 18.47);
    EXPECT_GT(chiSquare(counts, wrong, draws), 18.47) << "weights a little off must show";
}

TEST(PracticeDeck, DrawsTheSecondByTheWeightsThatAreLeft) {
    const Deck deck;
    std::map<std::string, int> counts;
    SeededGenerator random(2025);
    for (int i = 0; i < draws; ++i) {
        const auto titles = titlesOf(PracticeDeck::round(deck.entries, deck.usage, deck.pinned, 2, random));
        ++counts[titles.at(0) + titles.at(1)];
    }
    std::map<std::string, double> chances;
    std::map<std::string, double> independent;
    for (const auto& [first, weight] : deck.weights) {
        for (const auto& [second, other] : deck.weights) {
            if (first == second)
                continue;
            chances[first + second] = weight / deck.total * other / (deck.total - weight);
            independent[first + second] = weight / deck.total * other / deck.total;
        }
    }
    // 43.82: once in a thousand seeds (19 degrees of freedom).
    EXPECT_LT(chiSquare(counts, chances, draws), 43.82);
    EXPECT_GT(chiSquare(counts, independent, draws), 43.82);
}

} // namespace
} // namespace quillon
