// The shipped fleet loaded through its modules: the stage's thruster groups,
// its records, whose layouts are each seen to reach their last field, its
// engine gimbal, and the meshes of every class and variant.
#include "fleet_fixture.h"
#include "numbers.h"
#include "visual/visual.h"

using ::testing::ElementsAre;

namespace {

class KorvanTest : public FleetTest {
  protected:
    KorvanTest() : k(LoadKorvan()) {}
    // The host thruster made for a thruster record.
    hullhost::Thruster *HostThruster(const char *name) {
        const THRUSTER_REC *rec = k.ThrusterTable.Find(name);
        return rec ? reinterpret_cast<hullhost::Thruster *>(rec->handle) : nullptr;
    }
    HULLKIT &k;
};

} // namespace

// Every group name the stage uses gets its type and its slice of thrusters;
// seventeen configured thrusters and the two of the reentry glow.
TEST_F(KorvanTest, GroupsSliceTheThrustersByTheirNames) {
    EXPECT_EQ(vessel->thrusters.size(), 19u);
    const struct {
        THGROUP_HANDLE handle;
        THGROUP_TYPE type;
        const char *first, *second;
    } groups[] = {
        {k.groupMain, THGROUP_MAIN, "Main0", nullptr},
        {k.groupFwd, THGROUP_ATT_FORWARD, "Ull0", "Ull1"},
        {k.groupPitchUp, THGROUP_ATT_PITCHUP, "PitchUp0", "PitchUp1"},
        {k.groupPitchDown, THGROUP_ATT_PITCHDOWN, "PitchDown0", "PitchDown1"},
        {k.groupYawLeft, THGROUP_ATT_YAWLEFT, "YawLeft0", "YawLeft1"},
        {k.groupYawRight, THGROUP_ATT_YAWRIGHT, "YawRight0", "YawRight1"},
        {k.groupRollLeft, THGROUP_ATT_BANKLEFT, "RollLeft0", "RollLeft1"},
        {k.groupRollRight, THGROUP_ATT_BANKRIGHT, "RollRight0", "RollRight1"},
        {k.ThrusterGroupTable.Find("Vent")->handle, THGROUP_USER, "Vent0", "Vent1"},
        {k.ThrusterGroupTable.Find("Shine")->handle, THGROUP_USER, "ShinePlus", "ShineMinus"},
    };
    ASSERT_EQ(vessel->groups.size(), std::size(groups));
    for (const auto &e : groups) {
        SCOPED_TRACE(e.first);
        auto *g = reinterpret_cast<hullhost::ThrusterGroup *>(e.handle);
        ASSERT_NE(g, nullptr);
        EXPECT_EQ(g->type, e.type);
        std::vector<hullhost::Thruster *> members{HostThruster(e.first)};
        if (e.second)
            members.push_back(HostThruster(e.second));
        EXPECT_EQ(g->thrusters, members);
    }
    EXPECT_EQ(k.groupBack, nullptr);
}

TEST_F(KorvanTest, DescriptiveRecordsReachTheirLastFields) {
    const CAMERA_REC *aft = k.CameraTable.Find("aft");
    EXPECT_THAT(Of(aft->dir), Are({0, -0.342, -0.940}));
    EXPECT_FALSE(aft->disabled);
    EXPECT_EQ(aft->limRotDown, 0.8);

    const CHILD_REC *payload2 = k.ChildTable.Find("Payload2");
    EXPECT_THAT(Of(payload2->ConfigPos, payload2->dir, payload2->rot), Are({0, 1.45, 0.3, 0, 1, 0, 0, 0, 1}));
    EXPECT_EQ(payload2->scnVar, "PAYLOAD2");
    const SEPARATION_REC *fairing = k.SeparationTable.Find("sepFairing");
    EXPECT_THAT((Numbers{fairing->vFrom, fairing->vSpan}), Are({0.8, 0.4}));
    EXPECT_THAT(Of(fairing->f2Pos), Are({0, -1.3, -0.8}));

    EXPECT_EQ(k.WreckTable.Find("EnginePart")->file, "Fleet\\KorvanWreckEngine");
    const AERO_REC *aero = k.AeroTable.Find("aDefault");
    ASSERT_NE(aero, nullptr);
    EXPECT_THAT((Numbers{aero->centerOfPressure.z, aero->wingS, aero->cdragSpan}), Are({-1.2, 8.5, 1.2}));
    EXPECT_EQ(k.SoundTable.NameAt(0), "Filler");
    EXPECT_EQ(k.SoundTable.Find("Engine")->mode, 3);
    EXPECT_EQ(k.SoundTable.Find("Thud")->file, "Sound\\_CustomVesselsSounds\\Fleet\\Korvan\\Thud.wav");
    EXPECT_EQ(k.TextureTable.Count(), 6);
    EXPECT_TRUE(vessel->beacons.empty());
}

TEST_F(KorvanTest, StreamsCarryTheirTexturesAndLevels) {
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
    EXPECT_EQ(vessel->streams[1]->thruster, HostThruster("Vent0"));
    EXPECT_EQ(vessel->streams[3]->level, &k.ContrailLevel);
    EXPECT_EQ(vessel->streams[3]->spec.tex, k.ParticleTable.Find("Contrail")->spec.tex);
    EXPECT_EQ(vessel->streams[4]->level, &k.HeatContrailLevel);
    EXPECT_EQ(vessel->streams[5]->level, &k.DustLevel);
}

// Two rotations of the nozzle, the yaw hung on the pitch, driven by controls
// centred in their range of -1 to 1 under the module's own updater.
TEST_F(KorvanTest, GimbalTurnsTheNozzleYawUnderPitch) {
    const ANIM_REC &pitch = *k.AnimTable.Find("MainPitch");
    const ANIM_REC &yaw = *k.AnimTable.Find("MainYaw");
    ASSERT_NE(pitch.rotate, nullptr);
    ASSERT_NE(yaw.rotate, nullptr);
    EXPECT_NE(pitch.animation, yaw.animation);
    EXPECT_EQ(pitch.rotate->ngrp, 0u);
    EXPECT_THAT(std::vector<UINT>(yaw.rotate->grp, yaw.rotate->grp + yaw.rotate->ngrp), ElementsAre(4u, 5u));
    EXPECT_THAT(Of(pitch.rotate->axis, yaw.rotate->axis, yaw.rotate->ref), Are({1, 0, 0, 0, 1, 0, 0, 0, -1}));

    const hullhost::Animation &hostYaw = *vessel->animations.at(yaw.animation);
    ASSERT_EQ(hostYaw.components.size(), 1u);
    ASSERT_NE(hostYaw.components[0]->parent, nullptr);
    EXPECT_EQ(hostYaw.components[0]->parent->Handle(), pitch.component);
    EXPECT_EQ(hostYaw.components[0]->state0, -1.0);

    ANIM_CTRL_REC *control = k.AnimCtrlTable.Find("acMainPitch");
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(k.AnimCtrlTable.Count(), 2);
    EXPECT_EQ(control->animation, pitch.animation);
    EXPECT_THAT((Numbers{control->from, control->state}), Are({-1, 0}));
    // The first frame after creation is skipped; then 2 per second over 0.1 s.
    control->direction = 1;
    world_->Frame(0.1);
    world_->Frame(0.1);
    EXPECT_DOUBLE_EQ(vessel->animations.at(pitch.animation)->state, 0.2);
}

// Each mesh record stands in the host at its index, with its file, offset and
// mode, and with a device mesh in the visual.
TEST_F(FleetTest, EachClassAndVariantShowsItsOwnMeshes) {
    const struct {
        const char *className, *subtype;
        std::vector<std::string> files;
    } cases[] = {
        {"Fleet\\Korvan",
         "",
         {"Fleet\\Korvan", "Fleet\\KorvanFairing", "Fleet\\KorvanSOZL", "Fleet\\KorvanSOZR"}},
        {"Fleet\\Korvan",
         "TwoPayloads",
         {"Fleet\\Korvan", "Fleet\\KorvanFairing", "Fleet\\KorvanSOZL", "Fleet\\KorvanSOZR",
          "Fleet\\KorvanDispenser"}},
        {"Fleet\\Generic", "", {"Fleet\\Debris"}},
        {"Fleet\\Generic", "SOZL", {"Fleet\\KorvanSOZL"}},
        {"Fleet\\Generic", "SOZR", {"Fleet\\KorvanSOZR"}},
        {"Fleet\\Generic", "FairingKMidK", {"Fleet\\KorvanFairing"}},
        {"Fleet\\Generic", "Payload", {"Fleet\\KorvanPayload"}},
    };
    int n = 0;
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.className) + " " + c.subtype);
        HULLKIT &k = Load(("V-" + std::to_string(n++)).c_str(), c.className, c.subtype);
        ASSERT_EQ(vessel->meshes.size(), c.files.size());
        ASSERT_EQ(static_cast<size_t>(k.MeshTable.Count()), c.files.size());
        ASSERT_NE(k.visual, nullptr);
        for (int32_t i = 0; i < k.MeshTable.Count(); ++i) {
            const MESH_REC *rec = k.MeshTable.At(i);
            const hullhost::MeshSlot &slot = vessel->meshes[rec->index];
            EXPECT_EQ(rec->index, static_cast<uint32_t>(i));
            EXPECT_EQ(slot.file, c.files[static_cast<size_t>(i)]);
            ASSERT_NE(slot.templ, nullptr) << slot.file;
            EXPECT_FALSE(slot.templ->groups.empty()) << slot.file;
            EXPECT_THAT(Of(slot.offset), Are(Of(rec->pos)));
            EXPECT_EQ(slot.visibility, MESHVIS_ALWAYS);
            EXPECT_NE(k.GetDevMesh(k.visual, rec->index), nullptr);
        }
    }
    // The fairing, an ullage block and the dispenser at their places.
    const auto &meshes = world_->FindVessel("V-1")->meshes;
    EXPECT_THAT((Numbers{meshes[1].offset.z, meshes[2].offset.x, meshes[4].offset.z}),
                Are({-1.75, -1.42, 1.55}));
}

// A generic piece has no contrail but its wake and dust; its default camera's
// "true" falls on the tilt in the shipped layout, which reads it as 0.0, so
// the camera is usable.
TEST_F(FleetTest, GenericPiecesHaveTheirWakeDustAndADefaultCamera) {
    HULLKIT &g = Load("V-1", "Fleet\\Generic", "SOZL");
    ASSERT_EQ(vessel->streams.size(), 2u);
    EXPECT_EQ(vessel->streams[0]->level, &g.HeatContrailLevel);
    EXPECT_EQ(vessel->streams[1]->level, &g.DustLevel);
    EXPECT_THAT(g.CameraTable.names, ElementsAre("fwd"));
    EXPECT_EQ(g.CameraTable.Find("fwd")->tilt, 0.0);
    EXPECT_FALSE(g.CameraTable.Find("fwd")->disabled);
}
