// Tanks, thrusters and thruster groups as the host receives them.
#include "numbers.h"
#include "resource_fixture.h"

using ::testing::ElementsAre;

namespace {

std::vector<hullhost::Thruster *> Members(const hullhost::ThrusterGroup &g) { return g.thrusters; }

} // namespace

TEST_F(ResourceTest, TablesAreCreatedInTheirOwnOrderWhateverTheFileOrder) {
    // Groups and thrusters stand before the tanks they use; the variant
    // overrides a thruster without moving it, so the groups that slice the
    // list by creation order still cover it.
    Common(kPropulsionHeaders);
    Class("ThrusterGroups = {\n"
          "  Main      T0 1\n"
          "  PitchUp   T1 2\n"
          "  main      T3 1\n"
          "  Long      T3 10\n"
          "  Orphan    Nobody 1\n"
          "}\n"
          "Thrusters = {\n"
          "  T0 (0,0,-1) zplus 20000 Main 3250 1900 NONE 0 0 0 Smoke\n"
          "  T1 (1,0,0)  yplus 50    Rcs  2200\n"
          "  T2 (2,0,0)  yplus 50    Rcs  2200 0 NONE 0 0 0 Smoke (0,0,1)\n"
          "  T3 (3,0,0)  xplus 50    None 2200 0 NONE 1 1 0 NONE  (0,0,5)\n"
          "}\n"
          "Tanks = {\n  Main 5000\n  Rcs 100\n}\nNoReentryGlow = true\n"
          "Particles = {\n  Smoke 0 1\n}\n");
    Variant("Big", "Thrusters = {\n  T1 (9,0,0) yminus 75 Main 2100\n}\n");
    ProbeVessel &p = Load({"SUBTYPE Big"});
    hullhost::Vessel &v = Host();

    ASSERT_EQ(v.propellants.size(), 3u);
    EXPECT_THAT((Numbers{v.propellants[0]->maxMass, v.propellants[0]->mass, v.propellants[2]->maxMass}),
                Are({5000, 5000, 1}));

    ASSERT_GE(v.thrusters.size(), 4u);
    const hullhost::Thruster &t0 = *v.thrusters[0], &t1 = *v.thrusters[1];
    EXPECT_THAT(Of(t0.pos, t0.dir), Are({0, 0, -1, 0, 0, 1}));
    EXPECT_THAT((Numbers{t0.maxThrust0, t0.isp0, t0.ispRef, t0.pRef}), Are({20000, 3250, 1900, 101400}));
    EXPECT_THAT((Numbers{t1.pos.x, t1.maxThrust0, t1.ispRef}), Are({9, 75, 0}));
    EXPECT_EQ(t0.propellant, v.propellants[0].get());
    EXPECT_EQ(t1.propellant, v.propellants[0].get());
    EXPECT_EQ(v.thrusters[2]->propellant, v.propellants[1].get());
    EXPECT_EQ(v.thrusters[3]->propellant, nullptr);
    EXPECT_EQ(p.ThrusterTable.Find("T3")->index, 3);
    EXPECT_EQ(p.thrusterHandles.size(), v.thrusters.size());

    // A stream at the thruster's own point, one at its own point, and none
    // without a particle record name.
    ASSERT_EQ(v.streams.size(), 2u);
    EXPECT_EQ(v.streams[0]->thruster, &t0);
    EXPECT_FALSE(v.streams[0]->ownPos);
    EXPECT_EQ(v.streams[1]->thruster, v.thrusters[2].get());
    EXPECT_TRUE(v.streams[1]->ownPos);
    EXPECT_EQ(v.streams[1]->pos.z, 1.0);
    EXPECT_EQ(p.ThrusterTable.Find("T2")->stream, v.streams[1]->Handle());
    EXPECT_EQ(p.ThrusterTable.Find("T3")->stream, nullptr);
    EXPECT_TRUE(v.exhausts.empty());

    // Main, PitchUp, the user groups "main" and "Long" (cut at the list's end);
    // no group for a first thruster that doesn't exist.
    ASSERT_EQ(v.groups.size(), 4u);
    EXPECT_EQ(v.groups[0]->type, THGROUP_MAIN);
    EXPECT_THAT(Members(*v.groups[0]), ElementsAre(v.thrusters[0].get()));
    EXPECT_EQ(v.groups[1]->type, THGROUP_ATT_PITCHUP);
    EXPECT_THAT(Members(*v.groups[1]), ElementsAre(v.thrusters[1].get(), v.thrusters[2].get()));
    EXPECT_EQ(v.groups[2]->type, THGROUP_USER);
    EXPECT_EQ(v.groups[3]->thrusters.size(), v.thrusters.size() - 3);
    EXPECT_EQ(p.groupMain, v.groups[0]->Handle());
    EXPECT_EQ(p.groupPitchUp, v.groups[1]->Handle());
    EXPECT_EQ(p.groupPitchDown, nullptr);
    EXPECT_EQ(p.ThrusterGroupTable.Find("Orphan")->handle, nullptr);
    EXPECT_EQ(p.MainTank, v.propellants[0]->Handle());
}

TEST_F(ResourceTest, RecordsKeepTheirAddressesAsTheTableGrows) {
    Common(kPropulsionHeaders);
    std::string tanks = "Tanks = {\n";
    for (int i = 0; i < 200; ++i)
        tanks += "  T" + std::to_string(i) + " " + std::to_string(i) + "\n";
    Class(tanks + "}\n");
    ProbeVessel &p = Load();
    const TANK_REC *first = p.TankTable.At(0);
    p.TankTable.AddResourceLine("Late 1", false);
    p.TankTable.CreateRecord("Late");
    EXPECT_EQ(p.TankTable.At(0), first);
    EXPECT_EQ(p.TankTable.At(p.TankTable.Count() - 1)->name, "Late");
    EXPECT_EQ(p.TankTable.At(-1), nullptr);
    EXPECT_EQ(p.TankTable.At(100000), nullptr);
    EXPECT_EQ(p.TankTable.NameAt(100000), "");
}
