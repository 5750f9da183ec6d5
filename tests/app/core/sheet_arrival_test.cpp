#include <quillon/app/core/sheet_arrival.h>

#include <gtest/gtest.h>

namespace quillon {
namespace {

using Current = SheetArrival::Current;

TEST(SheetArrival, OfTheFrontApplicationIsShownAndKept) {
    EXPECT_EQ(
        decideSheetArrival({.entries = 3, .anythingCurrent = true, .thatAppIsInFront = true}),
        (SheetArrival{Current::takeNew, true}));
}

TEST(SheetArrival, OfAnApplicationNoLongerInFrontIsOnlyKept) {
    EXPECT_EQ(
        decideSheetArrival({.entries = 3, .anythingCurrent = true}), (SheetArrival{Current::keep, true}));
}

TEST(SheetArrival, IsShownWhenNothingElseIs) {
    EXPECT_EQ(decideSheetArrival({.entries = 3}), (SheetArrival{Current::takeNew, true}));
}

TEST(SheetArrival, RefreshesTheSheetOfTheSameApplication) {
    EXPECT_EQ(
        decideSheetArrival(
            {.entries = 3, .cachedEntries = 5, .anythingCurrent = true, .currentIsThatApp = true}),
        (SheetArrival{Current::takeNew, true}));
}

TEST(SheetArrival, EmptyIsShownButNeverKept) {
    EXPECT_EQ(
        decideSheetArrival({.entries = 0, .anythingCurrent = true, .thatAppIsInFront = true}),
        (SheetArrival{Current::takeNew, false}));
}

TEST(SheetArrival, EmptyDoesNotReplaceAGoodSheet) {
    EXPECT_EQ(
        decideSheetArrival(
            {.entries = 0,
             .cachedEntries = 5,
             .anythingCurrent = true,
             .currentIsThatApp = true,
             .thatAppIsInFront = true}),
        (SheetArrival{Current::takeCached, false}));
    EXPECT_EQ(
        decideSheetArrival({.entries = 0, .cachedEntries = 5, .anythingCurrent = true}),
        (SheetArrival{Current::keep, false}));
}

TEST(SheetArrival, CutShortDoesNotReplaceALongerSheet) {
    EXPECT_EQ(
        decideSheetArrival(
            {.complete = false,
             .entries = 4,
             .cachedEntries = 5,
             .anythingCurrent = true,
             .currentIsThatApp = true}),
        (SheetArrival{Current::takeCached, false}));
}

TEST(SheetArrival, CutShortIsBetterThanNothing) {
    EXPECT_EQ(
        decideSheetArrival({.complete = false, .entries = 4, .thatAppIsInFront = true}),
        (SheetArrival{Current::takeNew, true}));
    EXPECT_EQ(
        decideSheetArrival({.complete = false, .entries = 5, .cachedEntries = 5, .thatAppIsInFront = true}),
        (SheetArrival{Current::takeNew, true}));
}

TEST(SheetArrival, OfAnApplicationWithoutAnIdentifierIsOnlyShownWhileItIsInFront) {
    EXPECT_EQ(
        decideSheetArrival(
            {.entries = 3, .isIdentified = false, .anythingCurrent = true, .thatAppIsInFront = true}),
        (SheetArrival{Current::takeNew, false}));
    EXPECT_EQ(
        decideSheetArrival(
            {.entries = 3, .isIdentified = false, .anythingCurrent = true, .currentIsThatApp = true}),
        (SheetArrival{Current::keep, false}));
}

TEST(SheetArrival, WithoutASheetChangesNothing) {
    EXPECT_EQ(
        decideSheetArrival({.produced = false, .anythingCurrent = true, .thatAppIsInFront = true}),
        (SheetArrival{}));
}

} // namespace
} // namespace quillon
