#include <quillon/kit/records/usage.h>
#include <quillon/tests/kit/values/random_values.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <unordered_set>

namespace quillon {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Count largest = std::numeric_limits<Count>::max();
const Instant noon(1'000'000s);

std::vector<std::string> rankedIds(const UsageBook& book, Count limit) {
    std::vector<std::string> ids;
    for (const UsageBook::Ranked& ranked : book.mostClicked("app", limit)) {
        EXPECT_EQ(book.record("app", ranked.id), ranked.record);
        ids.push_back(ranked.id);
    }
    return ids;
}

UsageBook bookOf(UsageRecords records) {
    UsageBook book;
    book.apps["app"] = std::move(records);
    return book;
}

TEST(UsageRecord, StartsAtZeroWithoutDates) {
    const UsageRecord fresh;
    EXPECT_EQ(fresh, (UsageRecord{0, 0, 0, 0, std::nullopt, std::nullopt}));
}

TEST(UsageBook, CountsAClickAndRemembersItsTime) {
    UsageBook book;
    book.click("app", "File › Save", noon);
    EXPECT_EQ(book.record("app", "File › Save"), (UsageRecord{.clicked = 1, .lastClicked = noon}));
    book.click("app", "File › Save", noon + 1s);
    EXPECT_EQ(book.record("app", "File › Save"), (UsageRecord{.clicked = 2, .lastClicked = noon + 1s}));
}

TEST(UsageBook, CountsATypedUse) {
    UsageBook book;
    book.typed("app", "id");
    book.typed("app", "id");
    EXPECT_EQ(book.record("app", "id"), (UsageRecord{.typed = 2}));
}

TEST(UsageBook, RemembersANudgeWithoutCounting) {
    UsageBook book;
    book.nudged("app", "id", noon);
    EXPECT_EQ(book.record("app", "id"), (UsageRecord{.lastNudged = noon}));
}

TEST(UsageBook, CountsPracticeAnswersByTheirOutcome) {
    UsageBook book;
    book.practiced("app", "id", true);
    book.practiced("app", "id", false);
    book.practiced("app", "id", false);
    EXPECT_EQ(book.record("app", "id"), (UsageRecord{.practiceRight = 1, .practiceWrong = 2}));
}

TEST(UsageBook, ChangesOnlyTheFieldsConcerned) {
    const UsageRecord full{5, 6, 7, 8, noon, noon + 1s};
    UsageBook book = bookOf({{"id", full}});
    book.nudged("app", "id", noon + 2s);
    EXPECT_EQ(book.record("app", "id"), (UsageRecord{5, 6, 7, 8, noon, noon + 2s}));
    book.click("app", "id", noon + 3s);
    EXPECT_EQ(book.record("app", "id"), (UsageRecord{6, 6, 7, 8, noon + 3s, noon + 2s}));
    book.typed("app", "id");
    book.practiced("app", "id", true);
    book.practiced("app", "id", false);
    EXPECT_EQ(book.record("app", "id"), (UsageRecord{6, 7, 8, 9, noon + 3s, noon + 2s}));
}

TEST(UsageBook, KeepsApplicationsAndCommandsApart) {
    UsageBook book;
    book.typed("app", "id");
    book.typed("other", "id");
    book.typed("app", "other");
    EXPECT_EQ(book.apps.size(), 2u);
    EXPECT_EQ(book.records("app").size(), 2u);
    EXPECT_EQ(book.record("other", "id"), (UsageRecord{.typed = 1}));
}

TEST(UsageBook, AskingForTheUnknownCreatesNothing) {
    UsageBook book;
    EXPECT_EQ(book.record("app", "id"), std::nullopt);
    EXPECT_THAT(book.records("app"), IsEmpty());
    EXPECT_EQ(book.totals("app"), (UsageBook::Totals{0, 0}));
    EXPECT_THAT(book.mostClicked("app", 5), IsEmpty());
    EXPECT_EQ(book, UsageBook());
    book.typed("app", "id");
    EXPECT_EQ(book.record("app", "other"), std::nullopt);
    EXPECT_EQ(book.records("app").size(), 1u);
}

TEST(UsageBook, SumsClicksAndTypedUsesPerApplication) {
    UsageBook book = bookOf({{"a", {.clicked = 3, .typed = 10, .practiceRight = 99}}, {"b", {.clicked = 4}}});
    book.typed("other", "c");
    EXPECT_EQ(book.totals("app"), (UsageBook::Totals{7, 10}));
}

TEST(UsageBook, RanksByHowFarClickingLeadsTyping) {
    const UsageBook book = bookOf({
        {"often typed too", {.clicked = 9, .typed = 8}},
        {"only clicked", {.clicked = 4}},
        {"mostly typed", {.clicked = 3, .typed = 9}},
        {"never clicked", {.clicked = 0, .typed = 5}},
        {"untouched", {}},
    });
    EXPECT_THAT(rankedIds(book, 10), ElementsAre("only clicked", "often typed too", "mostly typed"));
}

TEST(UsageBook, RanksEqualsByTheLargerIdFirst) {
    const UsageBook book = bookOf({
        {"a", {.clicked = 5, .typed = 1}},
        {"b", {.clicked = 4}},
        {"B", {.clicked = 4}},
        {"é", {.clicked = 4}},
        {"\U0001f600", {.clicked = 4}},
        {"\uffff", {.clicked = 4}},
    });
    EXPECT_THAT(rankedIds(book, 10), ElementsAre("\U0001f600", "\uffff", "é", "b", "a", "B"));
}

TEST(UsageBook, RanksAtMostTheLimit) {
    const UsageBook book = bookOf({{"a", {.clicked = 1}}, {"b", {.clicked = 2}}, {"c", {.clicked = 3}}});
    EXPECT_THAT(rankedIds(book, 0), IsEmpty());
    EXPECT_THAT(rankedIds(book, 2), ElementsAre("c", "b"));
    EXPECT_THAT(rankedIds(book, 3), ElementsAre("c", "b", "a"));
    EXPECT_THAT(rankedIds(book, largest), ElementsAre("c", "b", "a"));
}

TEST(UsageBook, RanksEveryClickedCommandExactlyOnce) {
    RandomValues random(61);
    for (int round = 0; round < 200; ++round) {
        UsageBook book;
        for (std::size_t i = random.number(0, 30); i > 0; --i) {
            book.apps["app"][random.title()] = {
                .clicked = static_cast<Count>(random.number(0, 5)),
                .typed = static_cast<Count>(random.number(0, 5))};
        }
        const std::vector<UsageBook::Ranked> ranked = book.mostClicked("app", 1000);
        const auto clicked = std::ranges::count_if(
            book.records("app"), [](const auto& stored) { return stored.second.clicked > 0; });
        EXPECT_EQ(std::ssize(ranked), clicked);
        for (std::size_t i = 1; i < ranked.size(); ++i) {
            const Count before = ranked[i - 1].record.clicked - ranked[i - 1].record.typed;
            const Count here = ranked[i].record.clicked - ranked[i].record.typed;
            EXPECT_TRUE(before > here || (before == here && ranked[i - 1].id > ranked[i].id));
        }
    }
}

TEST(UsageBookDeathTest, ANegativeLimitIsAProgramError) {
    EXPECT_DEATH(UsageBook().mostClicked("app", -1), "mostClicked: the limit must not be negative");
}

TEST(UsageBookDeathTest, ACounterNeverWraps) {
    constexpr const char* rule = "a counter left the range of a signed 64-bit integer";
    UsageBook book = bookOf({{"full", {largest, largest, largest, largest}}, {"one", {.clicked = 1}}});
    EXPECT_DEATH(book.click("app", "full", noon), rule);
    EXPECT_DEATH(book.typed("app", "full"), rule);
    EXPECT_DEATH(book.practiced("app", "full", true), rule);
    EXPECT_DEATH(book.practiced("app", "full", false), rule);
    EXPECT_DEATH(book.totals("app"), rule);
    EXPECT_DEATH(bookOf({{"odd", {.clicked = largest, .typed = -1}}}).mostClicked("app", 1), rule);
}

TEST(UsageBook, ComparesAndHashesByEverything) {
    const UsageRecord record{1, 2, 3, 4, noon, noon};
    std::vector<UsageRecord> others(6, record);
    others[0].clicked = 0;
    others[1].typed = 0;
    others[2].practiceRight = 0;
    others[3].practiceWrong = 0;
    others[4].lastClicked.reset();
    others[5].lastNudged.reset();
    std::unordered_set<UsageRecord> records(others.begin(), others.end());
    records.insert({record, record});
    EXPECT_EQ(records.size(), 7u);

    UsageBook other = bookOf({{"id", record}});
    other.apps["empty"];
    const std::unordered_set<UsageBook> books{
        UsageBook(), bookOf({{"id", record}}), bookOf({{"id", record}}), bookOf({{"other", record}}), other};
    EXPECT_EQ(books.size(), 4u);
}

} // namespace
} // namespace quillon
