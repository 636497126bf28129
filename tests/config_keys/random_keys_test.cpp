// Keys that draw: the crash limits and the failure times, each within its
// band on the 0 to 32767 scale of the generator.
#include <algorithm>
#include <cstdlib>

#include "frame/random_draw.h"
#include "keys_fixture.h"

TEST(RandomDraw, GeneratorScaleEndsAt32767WhateverTheLibrary) {
    std::srand(1);
    int highest = 0;
    for (int i = 0; i < 20000; ++i)
        highest = std::max(highest, Rand15());
    EXPECT_LE(highest, 32767);
    EXPECT_GT(highest, 32000);

    std::srand(5);
    const VECTOR3 v = RandomVector(_V(1, 2, 3), _V(0.5, 0.5, 0.5));
    std::srand(5);
    const double z = RandomDraw(3, 0.5), y = RandomDraw(2, 0.5), x = RandomDraw(1, 0.5);
    EXPECT_THAT(v, IsVector(x, y, z));
}

TEST_F(KeysTest, CrashLimitsAreDrawnWithinTheirRangesInOrder) {
    ProbeVessel &p = LoadWithKeys("CrashData = 2 4  3 3  30000 40000  500 100\n");
    std::srand(42);
    p.ReadCrashData();
    std::srand(42);
    const double vertical = RandomDraw(2, 2), pressure = RandomDraw(30000, 10000);
    EXPECT_EQ(p.MaxVerticalSpeed, vertical);
    EXPECT_EQ(p.MaxHorizontalSpeed, 1.0); // empty range
    EXPECT_EQ(p.MaxDynPressure, pressure);
    EXPECT_EQ(p.MaxImpactSpeed, 1000.0); // reversed range

    // Missing numbers count as zeros.
    ProbeVessel &q = LoadWithKeys("CrashData = 0 5 -1\n");
    EXPECT_THAT(q.MaxVerticalSpeed, ::testing::AllOf(::testing::Ge(0.0), ::testing::Le(5.0)));
    EXPECT_THAT(q.MaxHorizontalSpeed, ::testing::AllOf(::testing::Ge(-1.0), ::testing::Le(0.0)));
    EXPECT_EQ(q.MaxDynPressure, 20000.0);
}

TEST_F(KeysTest, FailureListKeepsKnownPairsWithTimesDrawnUpToTheirLimit) {
    ProbeVessel &p = LoadWithKeys("Failures = FIRE 400 BOGUS 3 fire 5 CONTROL 60 OTHER\n");
    ASSERT_EQ(p.FailureList.size(), 2u);
    EXPECT_EQ(p.FailureList[0].kind, 1);
    EXPECT_EQ(p.FailureList[1].kind, 4);
    EXPECT_THAT(p.FailureList[0].time, ::testing::AllOf(::testing::Ge(0.0), ::testing::Le(400.0)));

    std::srand(9);
    p.ReadFailureList("ENGINE 50");
    std::srand(9);
    ASSERT_EQ(p.FailureList.size(), 1u);
    EXPECT_EQ(p.FailureList[0].time, RandomDraw(0.0, 50.0));
}
