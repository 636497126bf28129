// The stage's descriptive records, particle streams and the records of its
// variant and of the generic pieces, loaded through their modules.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fleet_fixture.h"

using ::testing::ElementsAre;

namespace {

class FleetRecords : public FleetTest {
  protected:
    static void ExpectVector(const VECTOR3 &v, double x, double y, double z) {
        EXPECT_NEAR(v.x, x, 1e-12);
        EXPECT_NEAR(v.y, y, 1e-12);
        EXPECT_NEAR(v.z, z, 1e-12);
    }
};

} // namespace

TEST_F(FleetRecords, KorvanDescribesItsCamerasChildrenSeparationsAndWrecks) {
    HULLKIT &k = Load("V-1", "Fleet\\Korvan");

    EXPECT_THAT(k.CameraTable.names, ElementsAre("fwd", "aft", "side"));
    const CAMERA_REC *aft = k.CameraTable.Find("aft");
    ExpectVector(aft->pos, 0, 1.4, 0.8);
    ExpectVector(aft->dir, 0, -0.342, -0.940);
    EXPECT_FALSE(aft->disabled);
    EXPECT_DOUBLE_EQ(aft->limRotLeft, 1.2);
    EXPECT_DOUBLE_EQ(aft->limRotDown, 0.8);

    EXPECT_THAT(k.ChildTable.names, ElementsAre("Fairing", "SOZL", "SOZR", "Payload1", "Payload2"));
    const CHILD_REC *payload2 = k.ChildTable.Find("Payload2");
    ExpectVector(payload2->pos, 0, 1.45, 0.3);
    ExpectVector(payload2->dir, 0, 1, 0);
    ExpectVector(payload2->rot, 0, 0, 1);
    EXPECT_EQ(payload2->scnVar, "PAYLOAD2");
    ExpectVector(payload2->ConfigPos, 0, 1.45, 0.3);
    EXPECT_EQ(k.ChildTable.Find("SOZL")->scnVar, "SOZL");
    ExpectVector(k.ChildTable.Find("Fairing")->dir, 0, 0, -1);

    EXPECT_THAT(k.SeparationTable.names,
                ElementsAre("sepFairing", "sepSOZL", "sepSOZR", "sepPayload1", "sepPayload2"));
    const SEPARATION_REC *fairing = k.SeparationTable.Find("sepFairing");
    EXPECT_DOUBLE_EQ(fairing->vFrom, 0.8);
    EXPECT_DOUBLE_EQ(fairing->vSpan, 0.4);
    ExpectVector(fairing->f1From, -600, -600, 0);
    ExpectVector(fairing->f1Span, 1200, 1200, 0);
    ExpectVector(fairing->f2Pos, 0, -1.3, -0.8);
    ExpectVector(k.SeparationTable.Find("sepPayload1")->f1Span, 0, 0, 0);

    EXPECT_THAT(k.WreckTable.names, ElementsAre("TankPart", "EnginePart", "SkirtPart"));
    EXPECT_EQ(k.WreckTable.Find("EnginePart")->file, "Fleet\\KorvanWreckEngine");

    const AERO_REC *aero = k.AeroTable.Find("aDefault");
    ASSERT_NE(aero, nullptr);
    ExpectVector(aero->centerOfPressure, 0, 0, -1.2);
    EXPECT_DOUBLE_EQ(aero->wingS, 8.5);
    EXPECT_DOUBLE_EQ(aero->cdragSpan, 1.2);

    EXPECT_EQ(k.SoundTable.Find("Filler")->file, "");
    EXPECT_EQ(k.SoundTable.Find("Radio")->mode, 8);
    EXPECT_EQ(k.SoundTable.Find("Engine")->mode, 3);
    EXPECT_EQ(k.SoundTable.Find("Thud")->file, "Sound\\_CustomVesselsSounds\\Fleet\\Korvan\\Thud.wav");
    EXPECT_TRUE(vessel->beacons.empty());
}

TEST_F(FleetRecords, KorvanStreamsCarryTheirTexturesAndLevels) {
    HULLKIT &k = Load("V-1", "Fleet\\Korvan");

    for (const char *name : {"Contrail", "ContrailHeat", "Dust", "FireSmoke", "FireFlame"}) {
        const PARTICLE_REC *particle = k.ParticleTable.Find(name);
        ASSERT_NE(particle, nullptr) << name;
        const TEXTURE_REC *texture = k.TextureTable.Find(particle->tex);
        ASSERT_NE(texture, nullptr) << name;
        EXPECT_EQ(particle->spec.tex, texture->surface) << name;
    }
    EXPECT_EQ(k.ParticleTable.Find("Exhaust")->spec.tex, nullptr);

    // Behind the three exhaust streams: the contrail 50 m behind the main
    // engine's thrust point, the hot wake and the dust.
    ASSERT_EQ(vessel->streams.size(), 6u);
    const hullhost::ParticleStream &contrail = *vessel->streams[3];
    EXPECT_EQ(contrail.level, &k.ContrailLevel);
    ExpectVector(contrail.pos, 0, 0, -51.0);
    EXPECT_EQ(contrail.spec.levelmap, PARTICLESTREAMSPEC::LVL_PSQRT);
    EXPECT_EQ(contrail.spec.tex, k.ParticleTable.Find("Contrail")->spec.tex);
    EXPECT_EQ(vessel->streams[4]->level, &k.HeatContrailLevel);
    ExpectVector(vessel->streams[4]->pos, 0, 0, -3.5);
    EXPECT_EQ(vessel->streams[5]->level, &k.DustLevel);
    ExpectVector(vessel->streams[5]->dir, 0, 1, 0);
}

TEST_F(FleetRecords, TwoPayloadVariantMovesItsMountsInPlace) {
    HULLKIT &k = Load("V-1", "Fleet\\Korvan", "TwoPayloads");

    EXPECT_THAT(k.ChildTable.names, ElementsAre("Fairing", "SOZL", "SOZR", "Payload1", "Payload2"));
    const CHILD_REC *payload1 = k.ChildTable.Find("Payload1");
    ExpectVector(payload1->pos, -0.95, 0, 1.8);
    ExpectVector(payload1->ConfigDir, -0.259, 0, 0.966);
    EXPECT_DOUBLE_EQ(k.SeparationTable.Find("sepPayload1")->vFrom, 0.4);
    EXPECT_THAT(k.CameraTable.names, ElementsAre("fwd", "aft", "side", "pair"));
    EXPECT_EQ(k.CurrentCamera, "fwd");
}

TEST_F(FleetRecords, GenericPiecesHaveNoContrailButTheirWakeAndDust) {
    HULLKIT &g = Load("V-1", "Fleet\\Generic", "SOZL");

    ASSERT_EQ(vessel->streams.size(), 2u);
    EXPECT_EQ(vessel->streams[0]->level, &g.HeatContrailLevel);
    EXPECT_EQ(vessel->streams[1]->level, &g.DustLevel);
    // The default camera: its "true" falls on the tilt in the shipped layout,
    // which reads it as 0.0, so the camera is usable.
    EXPECT_THAT(g.CameraTable.names, ElementsAre("fwd"));
    EXPECT_DOUBLE_EQ(g.CameraTable.Find("fwd")->tilt, 0.0);
    EXPECT_FALSE(g.CameraTable.Find("fwd")->disabled);
}
