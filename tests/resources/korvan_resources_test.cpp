// The stage's own configuration loaded through its module: the tanks,
// thrusters and groups that the host holds.
#include "fleet_fixture.h"

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
    hullhost::ThrusterGroup *HostGroup(THGROUP_HANDLE h) {
        return reinterpret_cast<hullhost::ThrusterGroup *>(h);
    }
};

} // namespace

TEST_F(KorvanResources, TanksAreFullAndInTableOrder) {
    ASSERT_EQ(vessel->propellants.size(), 3u);
    EXPECT_DOUBLE_EQ(vessel->propellants[0]->maxMass, 5000.0);
    EXPECT_DOUBLE_EQ(vessel->propellants[0]->mass, 5000.0);
    EXPECT_DOUBLE_EQ(vessel->propellants[1]->maxMass, 110.0);
    EXPECT_DOUBLE_EQ(vessel->propellants[2]->maxMass, 1.0);
    EXPECT_EQ(stage->MainTank, vessel->propellants[0]->Handle());
}

TEST_F(KorvanResources, ThrustersCarryTheirFiguresAndTanks) {
    // Seventeen configured thrusters and the two of the reentry glow.
    EXPECT_EQ(vessel->thrusters.size(), 19u);
    EXPECT_EQ(stage->thrusterHandles.size(), vessel->thrusters.size());
    const hullhost::Thruster *main = HostThruster("Main0");
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(main, vessel->thrusters[0].get());
    EXPECT_DOUBLE_EQ(main->maxThrust0, 20000.0);
    EXPECT_DOUBLE_EQ(main->isp0, 3250.0);
    EXPECT_DOUBLE_EQ(main->ispRef, 1900.0);
    EXPECT_DOUBLE_EQ(main->pRef, 101400.0);
    EXPECT_DOUBLE_EQ(main->pos.z, -1.0);
    EXPECT_EQ(main->propellant, vessel->propellants[0].get());
    EXPECT_EQ(HostThruster("Ull1")->propellant, vessel->propellants[1].get());
    EXPECT_EQ(HostThruster("ShinePlus")->propellant, vessel->propellants[2].get());
    EXPECT_NEAR(HostThruster("Vent0")->dir.z, -0.866, 1e-3);

    // The main engine's plume starts at the nozzle exit; the vents' at the vents.
    // The contrail, hot wake and dust streams follow them.
    ASSERT_EQ(vessel->streams.size(), 6u);
    EXPECT_EQ(vessel->streams[0]->thruster, main);
    EXPECT_DOUBLE_EQ(vessel->streams[0]->pos.z, -2.2);
    EXPECT_EQ(vessel->streams[1]->thruster, HostThruster("Vent0"));
    EXPECT_FALSE(vessel->streams[1]->ownPos);
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
        hullhost::ThrusterGroup *g = HostGroup(e.handle);
        ASSERT_NE(g, nullptr) << e.first;
        EXPECT_EQ(g->type, e.type) << e.first;
        if (e.second)
            EXPECT_THAT(g->thrusters, ElementsAre(HostThruster(e.first), HostThruster(e.second)));
        else
            EXPECT_THAT(g->thrusters, ElementsAre(HostThruster(e.first)));
    }
    EXPECT_EQ(stage->groupBack, nullptr);
    EXPECT_EQ(stage->groupUp, nullptr);
}

TEST_F(KorvanResources, EveryTableIsFilledFromTheShippedFiles) {
    EXPECT_EQ(stage->ParticleTable.Count(), 7);
    EXPECT_EQ(stage->TextureTable.Count(), 6);
    EXPECT_EQ(stage->SoundTable.NameAt(0), "Filler");
    EXPECT_EQ(stage->MeshTable.Count(), 4);
    EXPECT_THAT(stage->AnimTable.GetIntList("MainYaw", "Groups"), ElementsAre(4, 5));
    EXPECT_EQ(stage->AnimCtrlTable.Count(), 2);
    EXPECT_EQ(stage->CurrentCamera, "fwd");
    EXPECT_EQ(stage->WreckTable.Count(), 3);
    EXPECT_EQ(stage->ChildTable.Count(), 5);
    EXPECT_EQ(stage->SeparationTable.Count(), 5);
    EXPECT_NE(stage->AeroTable.Find("aDefault"), nullptr);
    PARTICLESTREAMSPEC contrail = stage->ParticleTable.GetParticleSpec("Contrail", "PSS");
    EXPECT_EQ(contrail.levelmap, PARTICLESTREAMSPEC::LVL_PSQRT);
    EXPECT_DOUBLE_EQ(contrail.amin, 1e-6);
}
