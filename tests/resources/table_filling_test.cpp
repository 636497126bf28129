// Records from three levels of files, from the scenario, and the records that
// every vessel gets.
#include "numbers.h"
#include "resource_fixture.h"

using ::testing::ElementsAre;

TEST_F(ResourceTest, LaterLevelsOverrideByNameKeepingPlaceAndLevel) {
    Common(std::string(kPropulsionHeaders) +
           "Tanks = {\n  A 1\n  B 2\n}\nTank0 = C 3\nTank1 = D 4\nTank3 = E 5\n");
    Class("Tanks = {\n  F 6\n}\nTank0 = B 20\n");
    Variant("Heavy", "Tanks = {\n  A 100\n  G 7\n}\nTank1 = H 8\n");
    ProbeVessel &p = Load({"SUBTYPE Heavy"});

    // Sections before numbered lines in each level; the gap at Tank2 ends the
    // common file's numbering, the variant's starts at 0 and so has none.
    EXPECT_THAT(p.TankTable.names, ElementsAre("A", "B", "C", "D", "F", "G", "Virtual"));
    EXPECT_THAT(p.TankTable.levels, ElementsAre(0, 0, 0, 0, 1, 2, 2));
    EXPECT_DOUBLE_EQ(p.TankTable.Find("A")->fuel, 100.0);
    EXPECT_DOUBLE_EQ(p.TankTable.Find("B")->fuel, 20.0);
    EXPECT_EQ(p.TankTable.Find("E"), nullptr);
    EXPECT_EQ(p.TankTable.IndexOf("H"), -1);
    EXPECT_EQ(p.configLevel, 2);
}

TEST_F(ResourceTest, ScenarioResourceLinesReplaceOrAddRecordsAndAreKept) {
    Common(std::string(kPropulsionHeaders) + "Tanks = {\n  Main 5000\n  Aux 50\n}\n");
    ProbeVessel &p =
        Load({"RESOURCE Tanks Main 10", "RESOURCE Tanks Extra, 5 ; comment", "RESOURCE Nowhere Main 1",
              "resource Tanks Aux 7", "RESOURCE", "RES_MODS Tanks Main:0.5", "RES_MODS Thrusters Th:1",
              "RES_MODS ThrusterGroups Main:1"});

    EXPECT_THAT(p.TankTable.names, ElementsAre("Main", "Aux", "Virtual", "Extra"));
    EXPECT_THAT(p.TankTable.scenarioLines, ElementsAre("Main 10", "Extra 5", "Aux 7"));
    EXPECT_DOUBLE_EQ(p.TankTable.Find("Main")->fuel, 10.0);
    EXPECT_DOUBLE_EQ(p.TankTable.Find("Aux")->fuel, 7.0);
    EXPECT_EQ(p.TankTable.levels.back(), 2);
    EXPECT_EQ(p.TankTable.modsText, "Main:0.5");
    EXPECT_EQ(p.ThrusterTable.modsText, "");
    EXPECT_EQ(p.ThrusterGroupTable.modsText, "Main:1");

    ASSERT_EQ(Host().propellants.size(), 4u);
    EXPECT_DOUBLE_EQ(Host().propellants[0]->maxMass, 10.0);
    // The saved fraction applies to the capacity the scenario gave.
    EXPECT_DOUBLE_EQ(Host().propellants[0]->mass, 5.0);
    EXPECT_EQ(p.MainTank, Host().propellants[0]->Handle());
}

TEST_F(ResourceTest, DefaultRecordsComeFirstUnlessConfiguredAndScenarioLinesCanOverrideThem) {
    Common(std::string(kPropulsionHeaders) + "SPOTLIGHTSET_REC = SpotSet SpotlightSets SName VPos\n");
    Class("ReentryShinePos = 1 2 3\nSpotlightSets = {\n  Mast 0 0 0\n}\n");
    ProbeVessel &p = Load({"RESOURCE Tanks Virtual 3"});

    EXPECT_THAT(p.TankTable.names, ElementsAre("Virtual"));
    EXPECT_DOUBLE_EQ(p.TankTable.Find("Virtual")->fuel, 3.0);
    EXPECT_THAT(p.CameraTable.names, ElementsAre("fwd"));
    EXPECT_EQ(p.CurrentCamera, "fwd");
    EXPECT_DOUBLE_EQ(p.CameraTable.GetVector("fwd", "Dir").z, 1.0);
    EXPECT_EQ(p.CameraTable.GetInt("fwd", "Disabled"), 1);
    EXPECT_THAT(p.ThrusterTable.names, ElementsAre("Spotlight0", "Spotlight1", "ShinePlus", "ShineMinus"));
    EXPECT_THAT(p.ThrusterGroupTable.names, ElementsAre("Spotlights", "Shine"));
    EXPECT_EQ(p.WreckSingle, "Generic");
    EXPECT_EQ(p.MainTank, nullptr);

    const THRUSTER_REC *shine = p.ThrusterTable.Find("ShineMinus");
    EXPECT_THAT((Numbers{shine->pos.y, shine->dir.z, shine->thrust, shine->ispMax}), Are({2, -1, 2000, 1e7}));
    EXPECT_EQ(shine->tank, "Virtual");
    EXPECT_EQ(Host().thrusters[0]->propellant, Host().propellants[0].get());
    ASSERT_EQ(Host().groups.size(), 2u);
    EXPECT_EQ(Host().groups[0]->thrusters.size(), 2u);
    EXPECT_EQ(Host().groups[1]->type, THGROUP_USER);

    // Configured cameras and wrecks keep the defaults away.
    Common(std::string(kPropulsionHeaders) + "WRECK_REC = Wreck Wrecks SName SFile\n");
    Class("Cameras = {\n  aft 0 0 0 0 0 -1\n  top 0 1 0 0 0 1\n}\nWrecks = {\n  Piece Fleet\\Piece\n}\n");
    ProbeVessel &q = LoadProbe("P2", {"STATUS Orbiting Earth"});
    EXPECT_THAT(q.CameraTable.names, ElementsAre("aft", "top"));
    EXPECT_EQ(q.CurrentCamera, "aft");
    EXPECT_EQ(q.WreckSingle, "");
}
