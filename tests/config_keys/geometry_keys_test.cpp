// TouchdownPoints, Size and Geometry, and the order rule between them.
#include "keys_fixture.h"

namespace {

const std::string kPoints = "TouchdownPoints = (0, -2, 4) (-3, -2, -2) (3, -2, -2)\n";
const std::string kGeometry = "Geometry = Size 7, CS (10, 11, 12), CW 0.1 0.2 0.3 0.4, "
                              "TDP (0, -1, 5) (-2, -1, -3) (2, -1, -3)\n";

} // namespace

TEST_F(KeysTest, ConfiguredTouchdownPointsPassOverSizeAndGeometry) {
    ProbeVessel &p = LoadWithKeys(kPoints + "Size = 5\n" + kGeometry);
    ASSERT_EQ(Host(p).touchdown.size(), 3u);
    EXPECT_THAT(Host(p).touchdown[2].pos, IsVector(3, -2, -2));
    EXPECT_EQ(Host(p).size, 1.0);
    EXPECT_THAT(Host(p).crossSections, IsVector(1, 1, 1));

    // Points from the scenario let Size and Geometry be read, but stay.
    p.TouchdownPtsFromScenario = true;
    p.SetTouchdownPoints(_V(0, -9, 1), _V(-1, -9, -1), _V(1, -9, -1));
    p.ReadGeometryKeys();
    EXPECT_EQ(Host(p).size, 7.0);
    EXPECT_THAT(Host(p).touchdown[0].pos, IsVector(0, -9, 1));

    // Not nine numbers: no points, and the group still ends there.
    ProbeVessel &q = LoadWithKeys("TouchdownPoints = 1 2 3 4 5 6 7 8\nSize = 5\n");
    EXPECT_TRUE(Host(q).touchdown.empty());
    EXPECT_EQ(Host(q).size, 1.0);
}

TEST_F(KeysTest, GeometryOverridesSizeAndSetsItsGroupsWhenComplete) {
    ProbeVessel &p = LoadWithKeys("Size = 5\n" + kGeometry);
    EXPECT_EQ(Host(p).size, 7.0);
    EXPECT_EQ(p.DefaultSize, 7.0);
    EXPECT_THAT(Host(p).crossSections, IsVector(10, 11, 12));
    EXPECT_EQ(Host(p).cw[3], 0.4);
    ASSERT_EQ(Host(p).touchdown.size(), 3u);
    EXPECT_THAT(Host(p).touchdown[1].pos, IsVector(-2, -1, -3));

    ProbeVessel &q = LoadWithKeys("Geometry = 7 10 11 12 0.1 0.2 0.3 0.4 0 -1 5 -2 -1 -3 2 -1\n");
    EXPECT_EQ(Host(q).cw[2], 0.3);
    EXPECT_TRUE(Host(q).touchdown.empty());

    EXPECT_EQ(LoadWithKeys("Size = 5\n").DefaultSize, 5.0);
}

TEST_F(KeysTest, LandedVesselStandsOnStiffPointsUnlessTheOldOnesAreAskedFor) {
    ProbeVessel &p = LoadWithKeys(kPoints, {"STATUS Landed Earth"});
    ASSERT_EQ(Host(p).touchdown.size(), 3u);
    EXPECT_EQ(Host(p).touchdown[0].stiffness, 1e9);
    EXPECT_EQ(Host(p).touchdown[0].mu_lng, 0.0);

    ProbeVessel &q = LoadWithKeys(kPoints + "Use2010TDPs = true\n", {"STATUS Landed Earth"});
    EXPECT_EQ(Host(q).touchdown[0].stiffness, 0.0);

    // Two equal points put the stored ones back.
    q.SetTouchdownPoints(_V(0, 0, 0), _V(1, 0, 0), _V(0, 0, 1));
    q.SetTouchdownPts(_V(0, 0, 0), _V(0, 0, 0), _V(0, 0, 0));
    EXPECT_THAT(Host(q).touchdown[2].pos, IsVector(3, -2, -2));
}
