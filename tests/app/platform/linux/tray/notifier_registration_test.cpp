#include <quillon/app/platform/linux/tray/notifier_registration.h>

#include <gtest/gtest.h>

namespace quillon {

static void PrintTo(NotifierRegistration::Steps steps, std::ostream* out) {
    *out << "{register " << steps.registerItem << ", ask " << steps.askForHost << '}';
}

namespace {

using Steps = NotifierRegistration::Steps;

constexpr Steps nothing{};
constexpr Steps both{.registerItem = true, .askForHost = true};
constexpr Steps ask{.registerItem = false, .askForHost = true};

class NotifierRegistrationTest : public testing::Test {
  protected:
    void answerBoth(bool isDone, bool hasHost) {
        registration.registered(registration.round(), isDone);
        EXPECT_EQ(registration.hostAnswered(registration.round(), hasHost), nothing);
    }

    NotifierRegistration registration;
};

TEST_F(NotifierRegistrationTest, IsShownOnceAWatcherWithAHostHasIt) {
    EXPECT_EQ(registration.watcherCame(), both);
    EXPECT_FALSE(registration.isSettled());
    registration.registered(registration.round(), true);
    EXPECT_FALSE(registration.isShown()) << "nobody may look at it";
    EXPECT_FALSE(registration.isSettled());
    EXPECT_EQ(registration.hostAnswered(registration.round(), true), nothing);
    EXPECT_TRUE(registration.isShown());
    EXPECT_TRUE(registration.isSettled());
}

TEST_F(NotifierRegistrationTest, WithoutAWatcherNothingIsShown) {
    registration.watcherCame();
    answerBoth(false, false);
    EXPECT_FALSE(registration.isShown());
    EXPECT_TRUE(registration.isSettled());
}

TEST_F(NotifierRegistrationTest, AHostThatComesLaterShowsIt) {
    registration.watcherCame();
    answerBoth(true, false);
    EXPECT_FALSE(registration.isShown());
    EXPECT_EQ(registration.hostsChanged(), ask) << "it is registered already";
    EXPECT_EQ(registration.hostAnswered(registration.round(), true), nothing);
    EXPECT_TRUE(registration.isShown());
    EXPECT_EQ(registration.hostsChanged(), ask);
    EXPECT_EQ(registration.hostAnswered(registration.round(), false), nothing);
    EXPECT_FALSE(registration.isShown());
}

TEST_F(NotifierRegistrationTest, RegistersAgainWithAHostWhenTheWatcherRefused) {
    registration.watcherCame();
    answerBoth(false, false);
    EXPECT_EQ(registration.hostsChanged(), both);
    answerBoth(true, true);
    EXPECT_TRUE(registration.isShown());
}

TEST_F(NotifierRegistrationTest, RegistersWithEveryWatcherAnew) {
    registration.watcherCame();
    answerBoth(true, true);
    registration.watcherLeft();
    EXPECT_FALSE(registration.isShown());
    EXPECT_TRUE(registration.isSettled());
    EXPECT_EQ(registration.watcherCame(), both);
    answerBoth(true, true);
    EXPECT_TRUE(registration.isShown());
}

TEST_F(NotifierRegistrationTest, AnswersOfAWatcherThatHasGoneDoNotCount) {
    registration.watcherCame();
    const auto before = registration.round();
    registration.watcherCame();
    registration.registered(before, true);
    EXPECT_EQ(registration.hostAnswered(before, true), nothing);
    EXPECT_FALSE(registration.isShown());
    EXPECT_FALSE(registration.isSettled());
}

TEST_F(NotifierRegistrationTest, AsksAgainForWhatHappenedWhileItAsked) {
    registration.watcherCame();
    EXPECT_EQ(registration.hostsChanged(), nothing) << "one question at a time, however many changes";
    EXPECT_EQ(registration.hostsChanged(), nothing);
    registration.registered(registration.round(), true);
    EXPECT_EQ(registration.hostAnswered(registration.round(), false), ask);
    EXPECT_FALSE(registration.isSettled());
    EXPECT_EQ(registration.hostAnswered(registration.round(), true), nothing);
    EXPECT_TRUE(registration.isShown());
}

TEST_F(NotifierRegistrationTest, AnItemThatTheWatcherDropsIsNotShown) {
    registration.watcherCame();
    answerBoth(true, true);
    registration.itemDropped();
    EXPECT_FALSE(registration.isShown());
    EXPECT_EQ(registration.hostsChanged(), both);
}

} // namespace
} // namespace quillon
