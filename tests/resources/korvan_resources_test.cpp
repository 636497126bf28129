// The stage's own configuration loaded through its module: the tanks,
// thrusters and groups that the host holds.
#include "fleet_fixture.h"
#include "numbers.h"

using ::testing::ElementsAre;

namespace {

class KorvanResources : public FleetTest {
  protected:
    KorvanResources() { LoadKorvan(); }
    // The host thruster made for a thruster record.
    hullhost::Thruster *HostThruster(const char *name) {
        const THRUSTER_REC *rec = stage->ThrusterTable.Find(name);
        return rec ? reinterpret_cast<hullhost::Thruster *>(rec->handle) : nullptr;
    }
};

} // namespace

TEST_F(KorvanResources, TanksAndThrustersCarryTheirFiguresInTableOrder) {
    // The main tank, the ullage motors' tank and the reentry glow's.
    ASSERT_EQ(vessel->propellants.size(), 3u);
    EXPECT_THAT((Numbers{vessel->propellants[0]->maxMass, vessel->propellants[0]->mass,
                         vessel->propellants[1]->maxMass, vessel->propellants[2]->maxMass}),
                Are({5000, 5000, 110, 1}));
    EXPECT_EQ(stage->MainTank, vessel->propellants[0]->Handle());

    // Seventeen configured thrusters and the two of the reentry glow.
    EXPECT_EQ(vessel->thrusters.size(), 19u);
    EXPECT_EQ(stage->thrusterHandles.size(), vessel->thrusters.size());
    const hullhost::Thruster *main = HostThruster("Main0");
    ASSERT_EQ(main, vessel->thrusters[0].get());
    EXPECT_THAT((Numbers{main->maxThrust0, main->isp0, main->ispRef, main->pRef, main->pos.z}),
                Are({20000, 3250, 1900, 101400, -1}));
    EXPECT_EQ(main->propellant, vessel->propellants[0].get());
    EXPECT_EQ(HostThruster("Ull1")->propellant, vessel->propellants[1].get());
    EXPECT_EQ(HostThruster("ShinePlus")->propellant, vessel->propellants[2].get());
    EXPECT_NEAR(HostThruster("Vent0")->dir.z, -0.866, 1e-3);
}

TEST_F(KorvanResources, GroupsSliceTheThrustersInCreationOrder) {
    struct Expected {
        THGROUP_HANDLE handle;
        THGROUP_TYPE type;
        const char *first;
        const char *second;
    };
    const Expected groups[] = {
        {stage->groupMain, THGROUP_MAIN, "Main0", nullptr},
        {stage->groupFwd, THGROUP_ATT_FORWARD, "Ull0", "Ull1"},
        {stage->groupPitchUp, THGROUP_ATT_PITCHUP, "PitchUp0", "PitchUp1"},
        {stage->groupPitchDown, THGROUP_ATT_PITCHDOWN, "PitchDown0", "PitchDown1"},
        {stage->groupYawLeft, THGROUP_ATT_YAWLEFT, "YawLeft0", "YawLeft1"},
        {stage->groupYawRight, THGROUP_ATT_YAWRIGHT, "YawRight0", "YawRight1"},
        {stage->groupRollLeft, THGROUP_ATT_BANKLEFT, "RollLeft0", "RollLeft1"},
        {stage->groupRollRight, THGROUP_ATT_BANKRIGHT, "RollRight0", "RollRight1"},
        {stage->ThrusterGroupTable.Find("Vent")->handle, THGROUP_USER, "Vent0", "Vent1"},
        {stage->ThrusterGroupTable.Find("Shine")->handle, THGROUP_USER, "ShinePlus", "ShineMinus"},
    };
    ASSERT_EQ(vessel->groups.size(), std::size(groups));
    for (const Expected &e : groups) {
        auto *g = reinterpret_cast<hullhost::ThrusterGroup *>(e.handle);
        ASSERT_NE(g, nullptr) << e.first;
        EXPECT_EQ(g->type, e.type) << e.first;
        std::vector<hullhost::Thruster *> members{HostThruster(e.first)};
        if (e.second)
            members.push_back(HostThruster(e.second));
        EXPECT_EQ(g->thrusters, members) << e.first;
    }
    EXPECT_EQ(stage->groupBack, nullptr);
    EXPECT_EQ(stage->groupUp, nullptr);
}
