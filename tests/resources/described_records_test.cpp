// The records that only describe: cameras, aero data, children, separations,
// wrecks, sounds and floodlight sets, with beacons and particle streams, whose
// parameter blocks the host receives.
#include "numbers.h"
#include "resource_fixture.h"

namespace {

// The layouts as the shipped common file has them.
constexpr const char *kDescriptiveHeaders =
    "CAMERA_REC = Camera Cameras SName VPos VDir DTilt IDisabled DLimRotLeft DLimRotRight DLimRotUp "
    "DLimRotDown\n"
    "AERO_REC = Aero AeroData SName VCenterOfPressure DWingChord DWingS DWingAspect DDCmomentMax "
    "DCdragMin DCdragMax\n"
    "CHILD_REC = Child Children SName VPos VDir VRot SScnVar\n"
    "SEPARATION_REC = Sep Separations SName DVFrom DVSpan VF1From VF1Span VF1Pos VF2From VF2Span VF2Pos\n"
    "WRECK_REC = Wreck Wrecks SName SFile\n"
    "SOUND_REC = Sound Sounds SName SFile IMode\n"
    "SPOTLIGHTSET_REC = SpotSet SpotlightSets SName VPos ICols IRows DLen DWid DFaceWidth DAzm DElev "
    "DdAzm DdElev DdHorStep DdVertStep DLightAzmAngle\n"
    "BEACON_REC = Beacon Beacons SName VPos VColor IType DSizeB DFalloff DPeriod DDuration DTofs\n"
    "TEXTURE_REC = Texture Textures SName SType SFile\n"
    "PARTICLE_REC = Particle Particles SName PPSS STex\n";

} // namespace

TEST_F(ResourceTest, DescriptiveRecordsFillEveryFieldFromTheirKeys) {
    Common(kDescriptiveHeaders);
    Class("Cameras = {\n"
          "  top   (0,1,2) yplus 0.1 false 0.2 0.3 0.4 0.5\n"
          "  off   xyz0    zplus 0   true\n"
          "}\n"
          "AeroData = {\n  aDefault (0,0,-1) 3 8 0.5 0.25 1.6 0.4\n}\n"
          "Children = {\n  Cargo (0,0,2) zplus yplus CARGO\n}\n"
          "Separations = {\n"
          "  sepCargo 0.5 0.1 (-1,-2,-3) (2,4,6) (0,0,1) (7,8,9) (1,1,1) (0,0,-1)\n"
          "}\n"
          "Wrecks = {\n  Piece A\n  Other B\n}\nWreck0 = Piece C\n"
          "Sounds = {\n  Radio radio.wav RADIO_SOUND\n}\n"
          "SpotlightSets = {\n  Mast (1,2,3) 4 2 50 3 0.5 10 -5 2.5 1.5 0.4 0.3 45\n}\n");
    ProbeVessel &p = Load();

    const CAMERA_REC *top = p.CameraTable.Find("top");
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(top->name, "top");
    EXPECT_THAT(Of(top->pos, top->dir), Are({0, 1, 2, 0, 1, 0}));
    EXPECT_THAT((Numbers{top->tilt, top->limRotLeft, top->limRotRight, top->limRotUp, top->limRotDown}),
                Are({0.1, 0.2, 0.3, 0.4, 0.5}));
    EXPECT_FALSE(top->disabled);
    EXPECT_TRUE(p.CameraTable.Find("off")->disabled);

    // A drag maximum below the minimum gives a negative span, unchecked.
    const AERO_REC *aero = p.AeroTable.Find("aDefault");
    ASSERT_NE(aero, nullptr);
    EXPECT_THAT(Of(aero->centerOfPressure), Are({0, 0, -1}));
    EXPECT_THAT((Numbers{aero->wingChord, aero->wingS, aero->wingAspect, aero->dcMomentMax, aero->cdragSpan}),
                Are({3, 8, 0.5, 0.25, 0.4 - 1.6}));

    const CHILD_REC *cargo = p.ChildTable.Find("Cargo");
    ASSERT_NE(cargo, nullptr);
    EXPECT_THAT(Of(cargo->pos, cargo->dir, cargo->rot), Are({0, 0, 2, 0, 0, 1, 0, 1, 0}));
    EXPECT_THAT(Of(cargo->ConfigPos, cargo->ConfigDir, cargo->ConfigRot), Are({0, 0, 2, 0, 0, 1, 0, 1, 0}));
    EXPECT_EQ(cargo->scnVar, "CARGO");

    const SEPARATION_REC *sep = p.SeparationTable.Find("sepCargo");
    ASSERT_NE(sep, nullptr);
    EXPECT_THAT((Numbers{sep->vFrom, sep->vSpan}), Are({0.5, 0.1}));
    EXPECT_THAT(Of(sep->f1From, sep->f1Span, sep->f1Pos, sep->f2From, sep->f2Span, sep->f2Pos),
                Are({-1, -2, -3, 2, 4, 6, 0, 0, 1, 7, 8, 9, 1, 1, 1, 0, 0, -1}));

    // Two wreck lines of one name are one record, in its first place, with
    // the last file.
    EXPECT_EQ(p.WreckTable.Count(), 2);
    EXPECT_EQ(p.WreckTable.Find("Piece")->file, "C");
    EXPECT_EQ(p.WreckTable.At(1)->file, "B");

    const SOUND_REC *radio = p.SoundTable.Find("Radio");
    ASSERT_NE(radio, nullptr);
    EXPECT_EQ(radio->name + " " + radio->file, "Radio radio.wav");
    EXPECT_EQ(radio->mode, 8);

    const SPOTLIGHTSET_REC *mast = p.SpotlightSetTable.Find("Mast");
    ASSERT_NE(mast, nullptr);
    EXPECT_THAT(Of(mast->pos), Are({1, 2, 3}));
    EXPECT_EQ(mast->cols, 4);
    EXPECT_EQ(mast->rows, 2);
    EXPECT_THAT((Numbers{mast->len, mast->wid, mast->faceWidth, mast->azm, mast->elev, mast->dAzm,
                         mast->dElev, mast->dHorStep, mast->dVertStep, mast->lightAzmAngle}),
                Are({50, 3, 0.5, 10, -5, 2.5, 1.5, 0.4, 0.3, 45}));
}

TEST_F(ResourceTest, BeaconsReachTheHostAsPointersIntoTheirRecords) {
    Common(kDescriptiveHeaders);
    Class("Beacons = {\n"
          "  Strobe (0,2,0) (1,1,1) STAR 0.5 0.4 2 0.1 0.3\n"
          "  Odd    (1,0,0) (1,0,0) 4\n"
          "  Short  (0,0,5)\n"
          "}\n");
    ProbeVessel &p = Load({"RESOURCE Beacons Late (9,9,9) (0,1,0) DIFFUSE 1"});
    hullhost::Vessel &v = Host();

    ASSERT_EQ(p.BeaconTable.Count(), 4);
    ASSERT_EQ(v.beacons.size(), 4u);
    for (int32_t i = 0; i < p.BeaconTable.Count(); ++i) {
        BEACON_REC *b = p.BeaconTable.At(i);
        EXPECT_EQ(v.beacons[static_cast<std::size_t>(i)], &b->spec) << i;
        EXPECT_EQ(b->spec.pos, &b->pos) << i;
        EXPECT_EQ(b->spec.col, &b->color) << i;
        EXPECT_FALSE(b->spec.active) << i;
    }

    const BEACONLIGHTSPEC &strobe = *v.beacons[0];
    EXPECT_EQ(strobe.shape, 2u);
    EXPECT_THAT(Of(*strobe.pos, *strobe.col), Are({0, 2, 0, 1, 1, 1}));
    EXPECT_THAT((Numbers{strobe.size, strobe.falloff, strobe.period, strobe.duration, strobe.tofs}),
                Are({0.5, 0.4, 2, 0.1, 0.3}));
    EXPECT_EQ(v.beacons[1]->shape, 4u);
    EXPECT_EQ(v.beacons[3]->shape, 1u);
    EXPECT_THAT(Of(*v.beacons[3]->pos), Are({9, 9, 9}));

    // A record parsed again in place keeps the addresses the host holds, and
    // the host sees its new values.
    BEACON_REC *strobeRecord = p.BeaconTable.Find("Strobe");
    strobeRecord->spec.active = true;
    p.BeaconTable.AddResourceLine("Strobe (0,3,0) (1,0,0) COMPACT", false);
    p.BeaconTable.CreateRecord("Strobe");
    EXPECT_EQ(p.BeaconTable.Find("Strobe"), strobeRecord);
    EXPECT_EQ(v.beacons[0], &strobeRecord->spec);
    EXPECT_THAT(Of(*v.beacons[0]->pos), Are({0, 3, 0}));
    EXPECT_FALSE(v.beacons[0]->active);
}

TEST_F(ResourceTest, ParticleParametersTakeTheSurfaceOfTheirTexture) {
    Common(kDescriptiveHeaders);
    Class("Textures = {\n  txSmoke PARTICLE Smoke\n}\n"
          "Particles = {\n"
          "  Smoke 1 2 3 4 5 6 7 8 DIFFUSE LVL_LIN 0 1 ATM_PLIN 0.1 0.9 txSmoke\n"
          "  Plain 1 2 3 4 5 6 7 8 EMISSIVE LVL_LIN 0 1 ATM_PLIN 0.1 0.9 NONE\n"
          "  Bare  1 2 3 4 5 6 7 8 EMISSIVE LVL_LIN 0 1 ATM_PLIN 0.1 0.9\n"
          "  Lost  1 2 3 4 5 6 7 8 EMISSIVE LVL_LIN 0 1 ATM_PLIN 0.1 0.9 txNowhere\n"
          "}\n");
    ProbeVessel &p = Load();

    // Whatever surface the texture record holds is the one the stream is drawn with.
    TEXTURE_REC *texture = p.TextureTable.Find("txSmoke");
    ASSERT_NE(texture, nullptr);
    char file[] = "Smoke";
    texture->surface = oapiRegisterParticleTexture(file);
    ASSERT_NE(texture->surface, nullptr);
    p.ParticleTable.CreateRecord("Smoke");

    const PARTICLE_REC *smoke = p.ParticleTable.Find("Smoke");
    EXPECT_EQ(smoke->name, "Smoke");
    EXPECT_EQ(smoke->tex, "txSmoke");
    EXPECT_EQ(smoke->spec.tex, texture->surface);
    EXPECT_EQ(smoke->spec.ltype, PARTICLESTREAMSPEC::DIFFUSE);
    for (const char *name : {"Plain", "Bare", "Lost"}) {
        const PARTICLE_REC *other = p.ParticleTable.Find(name);
        ASSERT_NE(other, nullptr) << name;
        EXPECT_EQ(other->spec.tex, nullptr) << name;
        EXPECT_EQ(other->spec.srcrate, 3.0) << name;
    }
    EXPECT_EQ(p.ParticleTable.Find("Plain")->tex, "");

    // Parsed again without a texture, the record loses the surface.
    p.ParticleTable.AddLine("Smoke 1 2 3 4 5 6 7 8 DIFFUSE LVL_LIN 0 1 ATM_PLIN 0.1 0.9 NONE", false);
    p.ParticleTable.CreateRecord("Smoke");
    EXPECT_EQ(smoke->spec.tex, nullptr);
}
