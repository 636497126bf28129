// The stage's descriptive records, particle streams and the records of its
// variant and of the generic pieces, loaded through their modules. Each
// layout of the shipped common file is seen to reach its last field.
#include "fleet_fixture.h"
#include "numbers.h"

using ::testing::ElementsAre;
using FleetRecords = FleetTest;

TEST_F(FleetRecords, KorvanFillsEveryTableFromTheShippedFiles) {
    HULLKIT &k = LoadKorvan();

    EXPECT_THAT(k.CameraTable.names, ElementsAre("fwd", "aft", "side"));
    EXPECT_EQ(k.CurrentCamera, "fwd");
    const CAMERA_REC *aft = k.CameraTable.Find("aft");
    EXPECT_THAT(Of(aft->dir), Are({0, -0.342, -0.940}));
    EXPECT_FALSE(aft->disabled);
    EXPECT_EQ(aft->limRotDown, 0.8);

    EXPECT_THAT(k.ChildTable.names, ElementsAre("Fairing", "SOZL", "SOZR", "Payload1", "Payload2"));
    const CHILD_REC *payload2 = k.ChildTable.Find("Payload2");
    EXPECT_THAT(Of(payload2->ConfigPos, payload2->dir, payload2->rot), Are({0, 1.45, 0.3, 0, 1, 0, 0, 0, 1}));
    EXPECT_EQ(payload2->scnVar, "PAYLOAD2");

    EXPECT_THAT(k.SeparationTable.names,
                ElementsAre("sepFairing", "sepSOZL", "sepSOZR", "sepPayload1", "sepPayload2"));
    const SEPARATION_REC *fairing = k.SeparationTable.Find("sepFairing");
    EXPECT_THAT((Numbers{fairing->vFrom, fairing->vSpan}), Are({0.8, 0.4}));
    EXPECT_THAT(Of(fairing->f2Pos), Are({0, -1.3, -0.8}));

    EXPECT_THAT(k.WreckTable.names, ElementsAre("TankPart", "EnginePart", "SkirtPart"));
    EXPECT_EQ(k.WreckTable.Find("EnginePart")->file, "Fleet\\KorvanWreckEngine");
    const AERO_REC *aero = k.AeroTable.Find("aDefault");
    ASSERT_NE(aero, nullptr);
    EXPECT_THAT((Numbers{aero->centerOfPressure.z, aero->wingS, aero->cdragSpan}), Are({-1.2, 8.5, 1.2}));
    EXPECT_EQ(k.SoundTable.NameAt(0), "Filler");
    EXPECT_EQ(k.SoundTable.Find("Engine")->mode, 3);
    EXPECT_EQ(k.SoundTable.Find("Thud")->file, "Sound\\_CustomVesselsSounds\\Fleet\\Korvan\\Thud.wav");
    EXPECT_EQ(k.MeshTable.Count(), 4);
    EXPECT_EQ(k.AnimCtrlTable.Count(), 2);
    EXPECT_EQ(k.TextureTable.Count(), 6);
    EXPECT_TRUE(vessel->beacons.empty());
}

TEST_F(FleetRecords, KorvanStreamsCarryTheirTexturesAndLevels) {
    HULLKIT &k = LoadKorvan();
    EXPECT_EQ(k.ParticleTable.Count(), 7);
    for (const char *name : {"Contrail", "ContrailHeat", "Dust", "FireSmoke", "FireFlame"}) {
        const PARTICLE_REC *particle = k.ParticleTable.Find(name);
        ASSERT_NE(particle, nullptr) << name;
        const TEXTURE_REC *texture = k.TextureTable.Find(particle->tex);
        ASSERT_NE(texture, nullptr) << name;
        EXPECT_EQ(particle->spec.tex, texture->surface) << name;
    }
    EXPECT_EQ(k.ParticleTable.Find("Exhaust")->spec.tex, nullptr);
    EXPECT_EQ(k.ParticleTable.Find("Contrail")->spec.amin, 1e-6);

    // The plumes of the main engine and the vents, then the contrail, the hot
    // wake and the dust.
    ASSERT_EQ(vessel->streams.size(), 6u);
    EXPECT_EQ(vessel->streams[0]->thruster, vessel->thrusters[0].get());
    EXPECT_EQ(vessel->streams[1]->thruster,
              reinterpret_cast<hullhost::Thruster *>(k.ThrusterTable.Find("Vent0")->handle));
    EXPECT_EQ(vessel->streams[3]->level, &k.ContrailLevel);
    EXPECT_EQ(vessel->streams[3]->spec.tex, k.ParticleTable.Find("Contrail")->spec.tex);
    EXPECT_EQ(vessel->streams[4]->level, &k.HeatContrailLevel);
    EXPECT_EQ(vessel->streams[5]->level, &k.DustLevel);
}

TEST_F(FleetRecords, GenericPiecesHaveNoContrailButTheirWakeAndDust) {
    HULLKIT &g = Load("V-1", "Fleet\\Generic", "SOZL");

    ASSERT_EQ(vessel->streams.size(), 2u);
    EXPECT_EQ(vessel->streams[0]->level, &g.HeatContrailLevel);
    EXPECT_EQ(vessel->streams[1]->level, &g.DustLevel);
    // The default camera: its "true" falls on the tilt in the shipped layout,
    // which reads it as 0.0, so the camera is usable.
    EXPECT_THAT(g.CameraTable.names, ElementsAre("fwd"));
    EXPECT_EQ(g.CameraTable.Find("fwd")->tilt, 0.0);
    EXPECT_FALSE(g.CameraTable.Find("fwd")->disabled);
}
