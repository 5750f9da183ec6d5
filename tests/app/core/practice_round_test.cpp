#include <quillon/app/core/practice_round.h>

#include <gmock/gmock.h>

namespace quillon {
namespace {

using testing::ElementsAre;

MenuEntry command(std::string title, Modifiers modifiers, std::string key) {
    return {.path = {"File", std::move(title)}, .shortcut = {modifiers, Key::character(std::move(key))}};
}

const MenuEntry save = command("Save", Modifiers::control, "S");
const MenuEntry quit = command("Quit", Modifiers::control, "Q");

KeyStroke control(std::string character) {
    return {.characters = std::move(character), .keyCode = -1, .modifiers = Modifiers::control};
}

TEST(PracticeRoundTest, AsksNothingBeforeItIsDrawn) {
    for (PracticeRound round : {PracticeRound(), PracticeRound(std::vector<MenuEntry>())}) {
        EXPECT_FALSE(round.isDrawn());
        EXPECT_FALSE(round.isOver());
        EXPECT_EQ(round.question(), nullptr);
        EXPECT_FALSE(round.press(control("s"), "⌃S"));
        EXPECT_FALSE(round.reveal());
        round.goOn();
        EXPECT_FALSE(round.isOver());
    }
}

TEST(PracticeRoundTest, TakesTheShortcutForRight) {
    PracticeRound round({save, quit});
    EXPECT_TRUE(round.isWaiting());
    EXPECT_EQ(round.press(control("s"), "⌃S"), (PracticeResult{save, true}));
    EXPECT_EQ(round.answer(), PracticeAnswer(RightAnswer()));
    EXPECT_FALSE(round.isWaiting());
    EXPECT_EQ(*round.question(), save) << "until it is passed on from";
}

TEST(PracticeRoundTest, TellsWhatWasPressedInstead) {
    PracticeRound round({save});
    EXPECT_EQ(round.press(control("x"), "⌃X"), (PracticeResult{save, false}));
    EXPECT_EQ(round.answer(), PracticeAnswer(WrongAnswer{"⌃X"}));
}

TEST(PracticeRoundTest, CountsARevealedAnswerAsWrong) {
    PracticeRound round({save});
    EXPECT_EQ(round.reveal(), (PracticeResult{save, false}));
    EXPECT_EQ(round.answer(), PracticeAnswer(RevealedAnswer()));
    EXPECT_EQ(round.rightCount(), 0U);
}

TEST(PracticeRoundTest, IgnoresPressesWhileAnAnswerIsShown) {
    PracticeRound round({save});
    round.press(control("x"), "⌃X");
    EXPECT_FALSE(round.press(control("s"), "⌃S"));
    EXPECT_FALSE(round.reveal());
    EXPECT_EQ(round.results().size(), 1U);
}

TEST(PracticeRoundTest, DoesNotGoOnBeforeAnAnswer) {
    PracticeRound round({save, quit});
    round.goOn();
    EXPECT_EQ(round.index(), 0U);
}

TEST(PracticeRoundTest, EndsWithTheResults) {
    PracticeRound round({save, quit});
    round.press(control("s"), "⌃S");
    EXPECT_FALSE(round.isLast());
    round.goOn();
    EXPECT_TRUE(round.isLast());
    EXPECT_EQ(*round.question(), quit);
    EXPECT_FALSE(round.answer());
    round.reveal();
    EXPECT_FALSE(round.isOver());
    round.goOn();
    EXPECT_TRUE(round.isOver());
    EXPECT_EQ(round.question(), nullptr);
    EXPECT_EQ(round.rightCount(), 1U);
    EXPECT_THAT(round.missed(), ElementsAre(quit));
}

} // namespace
} // namespace quillon
