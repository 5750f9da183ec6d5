#include <quillon/app/views/learned/learned_summary.h>
#include <quillon/app/views/learned/learned_texts.h>

#include <gmock/gmock.h>

#include <chrono>
#include <utility>
#include <vector>

namespace quillon {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

constexpr Day today = std::chrono::local_days{std::chrono::year{2026} / 11 / 18};

MenuEntry command(const std::string& title) {
    return {.path = {"File", title}, .shortcut = Shortcut(Modifiers::command, Key::character("S"))};
}

const AppSheet sheet{"writer", "Writer", {command("Save"), command("Open"), command("Print")}, {}};

UsageBook used(UsageRecords records) {
    return {{{sheet.bundleID, std::move(records)}}};
}

TEST(LearnedSummary, IsAbsentBeforeAnythingWasCounted) {
    EXPECT_FALSE(learnedSummary(sheet, {}, {}, today));
    EXPECT_FALSE(learnedSummary(sheet, used({{"File › Save", {.practiceRight = 3}}}), {}, today));
    EXPECT_TRUE(learnedSummary(sheet, used({{"File › Save", {.clicked = 1}}}), {}, today));
}

TEST(LearnedSummary, ShowsTwelveWeeksUpToThisOne) {
    const WeekSums sums{{"2026-11-16", {2, 9}}, {"2026-09-14", {7, 1}}, {"2026-08-24", {5, 5}}};
    const auto summary = learnedSummary(sheet, used({{"File › Save", {.typed = 1}}}), sums, today);
    ASSERT_EQ(summary->weeks.size(), 12U);
    EXPECT_EQ(weekName(summary->weeks.front().monday), "2026-08-31");
    EXPECT_EQ(summary->weeks[2].clicked, 7);
    EXPECT_EQ(summary->weeks[2].typed, 1);
    EXPECT_EQ(summary->weeks[3], (WeekBar{.monday = summary->weeks[3].monday}));
    EXPECT_EQ(summary->weeks.back().clicked, 2);
    EXPECT_EQ(summary->weeks.back().typed, 9);
}

TEST(LearnedSummary, NamesGraduatedCommandsThatTheMenusHaveByHowOftenTheyAreTyped) {
    const UsageRecords usage{
        {"File › Save", {.clicked = 1, .typed = 6}},
        {"File › Open", {.typed = 40}},
        {"File › Print", {.clicked = 2, .typed = 6}},
        {"File › Gone", {.typed = 90}}};
    const auto summary = learnedSummary(sheet, used(usage), {}, today);
    EXPECT_THAT(summary->graduated, ElementsAre(u"Open"_s, u"Save"_s));
    EXPECT_EQ(summary->typed, 142);
}

TEST(LearnedTexts, SayWhatTheChartShows) {
    LearnedSummary summary;
    EXPECT_EQ(LearnedTexts::weeksInWords(summary), QString());
    summary.weeks = {{today, 3, 12}, {today + std::chrono::weeks(1)}, {today + std::chrono::weeks(2), 0, 1}};
    EXPECT_EQ(
        LearnedTexts::weeksInWords(summary),
        u"Week of 18 Nov: 3 clicked, 12 typed. Week of 2 Dec: 0 clicked, 1 typed."_s);
}

TEST(LearnedTexts, NameAFewGraduatedShortcutsAndCountTheRest) {
    LearnedSummary summary;
    EXPECT_EQ(
        LearnedTexts::graduated(summary),
        u"No shortcut has graduated yet. One does once you’ve typed it 5 times more than you’ve clicked it."_s);
    summary.graduated = {u"Save"_s};
    EXPECT_EQ(LearnedTexts::graduated(summary), u"Graduated (1): Save"_s);
    summary.graduated.assign(9, u"Save"_s);
    EXPECT_EQ(
        LearnedTexts::graduated(summary),
        u"Graduated (9): Save, Save, Save, Save, Save, Save, Save, Save, …"_s);
}

TEST(LearnedTexts, TellTheTimeSavedAndHowItIsReckoned) {
    EXPECT_EQ(LearnedTexts::timeSaved(0), QString());
    EXPECT_EQ(
        LearnedTexts::timeSaved(10),
        u"About 22 s saved: 10 typed × 2.2 s, which two pointings and two clicks in a menu take longer than "
        u"two keys."_s);
    EXPECT_TRUE(LearnedTexts::timeSaved(100).startsWith(u"About 4 min saved"_s));
    EXPECT_TRUE(LearnedTexts::timeSaved(10000).startsWith(u"About 6 h saved"_s));
}

} // namespace
} // namespace quillon
