// Physics: each group of the list reaches the host once it is complete.
#include "keys_fixture.h"

TEST_F(KeysTest, PhysicsGroupsReachTheHostOnlyWhenComplete) {
    hullhost::Vessel &h = Host(LoadWithKeys("Physics = Mass 1200, PMI (2.5, 2.5, 1.1), RR (0.1, 0.2, 0.3), "
                                            "SF 0.4 0.6, PMS 0.01, YMS 0.02\n"));
    EXPECT_EQ(h.emptyMass, 1200.0);
    EXPECT_THAT(h.pmi, IsVector(2.5, 2.5, 1.1));
    EXPECT_THAT(h.rotDrag, IsVector(0.1, 0.2, 0.3));
    EXPECT_EQ(h.frictionLat, 0.6);
    EXPECT_EQ(h.pitchMomentScale, 0.01);
    EXPECT_EQ(h.bankMomentScale, 0.02);

    ProbeVessel &p = LoadWithKeys("Physics = Mass 1000 PMI 1 2\n");
    EXPECT_EQ(p.DryMass, 1000.0);
    EXPECT_THAT(Host(p).pmi, IsVector(1, 1, 1)); // the host's own value

    // A malformed number spoils its group only.
    ProbeVessel &q = LoadWithKeys("Physics = Mass heavy PMI 1 x 3 RR 4 5 6\n");
    EXPECT_EQ(Host(q).emptyMass, 0.0);
    EXPECT_THAT(Host(q).pmi, IsVector(1, 1, 1));
    EXPECT_THAT(q.RotDrag, IsVector(4, 5, 6));
}
