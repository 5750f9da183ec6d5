#include <quillon/app/views/overlay/overlay_state.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(OverlayState, WithoutPermissionALiveOverlayAsksForIt) {
    EXPECT_EQ(
        overlayState({.mode = OverlayMode::live, .trusted = false, .hasSheet = true, .hasEntries = true}),
        OverlayState::needsAccessibility);
}

TEST(OverlayState, AShowcaseNeedsNoPermission) {
    EXPECT_EQ(
        overlayState({.mode = OverlayMode::showcase, .trusted = false, .hasSheet = true, .hasEntries = true}),
        OverlayState::shortcuts);
    EXPECT_EQ(overlayState({.mode = OverlayMode::showcase, .trusted = false}), OverlayState::noSheet);
}

TEST(OverlayState, FollowsTheSheetAndTheReading) {
    OverlayFacts facts{.trusted = true};
    EXPECT_EQ(overlayState(facts), OverlayState::noSheet);
    facts.reading = true;
    EXPECT_EQ(overlayState(facts), OverlayState::noSheet);
    facts.hasSheet = true;
    EXPECT_EQ(overlayState(facts), OverlayState::reading);
    facts.reading = false;
    EXPECT_EQ(overlayState(facts), OverlayState::noShortcuts);
    facts.hasEntries = true;
    EXPECT_EQ(overlayState(facts), OverlayState::shortcuts);
    facts.reading = true;
    EXPECT_EQ(overlayState(facts), OverlayState::shortcuts);
}

TEST(OverlayState, AnApplicationWithoutShortcutsThatDidNotAnswerIsAStateOfItsOwn) {
    OverlayFacts facts{.trusted = true, .hasSheet = true, .answered = false};
    EXPECT_EQ(overlayState(facts), OverlayState::noAnswer);
    facts.reading = true;
    EXPECT_EQ(overlayState(facts), OverlayState::reading);
    facts.retrying = true;
    EXPECT_EQ(overlayState(facts), OverlayState::noAnswer) << "no change to and fro with each attempt";
    facts.reading = facts.retrying = false;
    facts.hasEntries = true;
    EXPECT_EQ(overlayState(facts), OverlayState::shortcuts);
}

} // namespace
} // namespace quillon
