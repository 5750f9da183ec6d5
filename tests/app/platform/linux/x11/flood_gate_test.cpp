#include <quillon/app/platform/linux/x11/flood_gate.h>

#include <gmock/gmock.h>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

int passedOf(FloodGate& gate, int changes, std::uint32_t property) {
    int passed = 0;
    for (int i = 0; i < changes; ++i)
        passed += gate.passes(property) ? 1 : 0;
    return passed;
}

TEST(FloodGateTest, TheUsualFewAreToldAtOnce) {
    FloodGate gate;
    EXPECT_EQ(passedOf(gate, FloodGate::mostInAnInterval, 1), FloodGate::mostInAnInterval);
    EXPECT_THAT(gate.endInterval(), IsEmpty());
}

TEST(FloodGateTest, OfAFloodEachPropertyIsToldOnceMore) {
    FloodGate gate;
    EXPECT_EQ(passedOf(gate, 20'000, 1), FloodGate::mostInAnInterval);
    EXPECT_EQ(passedOf(gate, 20'000, 2), 0);
    EXPECT_THAT(gate.endInterval(), ElementsAre(1, 2));
    EXPECT_THAT(gate.endInterval(), IsEmpty());
}

TEST(FloodGateTest, AnotherIntervalBeginsAnew) {
    FloodGate gate;
    passedOf(gate, 100, 1);
    gate.endInterval();
    EXPECT_TRUE(gate.passes(1));
}

TEST(FloodGateTest, WhatWaitsIsBoundedAndNothingIsLost) {
    FloodGate gate;
    passedOf(gate, FloodGate::mostInAnInterval, 1);
    int passed = 0;
    for (std::uint32_t property = 1; property <= 1'000; ++property)
        passed += gate.passes(property) ? 1 : 0;
    EXPECT_EQ(passed + static_cast<int>(gate.endInterval().size()), 1'000);
}

} // namespace
} // namespace quillon
