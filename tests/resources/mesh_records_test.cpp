// Mesh records in the host: order, offsets, visibility and load requests,
// and the operations that show, hide and load meshes later.
#include "mesh_fixture.h"
#include "numbers.h"

using ::testing::ElementsAre;

namespace {

// The offsets and visibility modes of the host's mesh slots.
Numbers Offsets(const hullhost::Vessel &v) {
    Numbers n;
    for (const auto &slot : v.meshes)
        n.insert(n.end(), {slot.offset.x, slot.offset.y, slot.offset.z});
    return n;
}
std::vector<WORD> Modes(const hullhost::Vessel &v) {
    std::vector<WORD> modes;
    for (const auto &slot : v.meshes)
        modes.push_back(slot.visibility);
    return modes;
}

} // namespace

TEST_F(MeshTest, MeshesReachTheHostInTableOrderWithTheirOffsetsAndModes) {
    Meshes("Meshes = {\n"
           "  Hull   Test\\Box  xyz0\n"
           "  Door   Test\\Box  (1,2,3)  NEVER   LATER\n"
           "  Glass  Test\\Box  (0,0,1)  EXTPASS LOAD\n"
           "  Odd    Test\\Box  (0,0,2)  always\n"
           "}\n"
           "Mesh0 = Plume Test\\Box (0,0,-5) COCKPIT\n");
    // The variant moves the first mesh without changing its place.
    Variant("V", "Meshes = {\n  Hull Test\\Box (0,0,9) VC\n}\n");
    ProbeVessel &p = Load({"SUBTYPE V"});
    hullhost::Vessel &v = Host();

    ASSERT_EQ(v.meshes.size(), 4u);
    EXPECT_EQ(v.meshes[0].file, "Test\\Box");
    EXPECT_THAT(Offsets(v), Are({0, 0, 9, 0, 0, 1, 0, 0, 2, 0, 0, -5}));
    // A word in small letters isn't one.
    EXPECT_THAT(Modes(v), ElementsAre(MESHVIS_VC, 0x13, MESHVIS_NEVER, MESHVIS_COCKPIT));

    const MESH_REC *glass = p.MeshTable.Find("Glass");
    EXPECT_EQ(glass->index, 1u);
    EXPECT_EQ(glass->vis0, 0x13);
    const MESH_REC *door = p.MeshTable.Find("Door");
    EXPECT_FALSE(door->load || door->load0);
    EXPECT_EQ(door->handle, nullptr);
    EXPECT_EQ(door->vis0, MESHVIS_NEVER);
    EXPECT_FALSE(p.HasGlowMaterials || p.HasAlphaMaterials);
}

// Show, hide and modes reach only their own mesh; a mesh outside the host
// keeps its mode for its loading, which happens once, when asked for.
TEST_F(MeshTest, MeshesChangeModesAndLoadLaterOnce) {
    Meshes(kMeshes);
    ProbeVessel &p = Load();
    hullhost::Vessel &v = Host();
    p.HideMesh("Glass");
    EXPECT_EQ(v.meshes[1].visibility, MESHVIS_NEVER);
    p.ShowMesh("Glass");
    EXPECT_EQ(v.meshes[1].visibility, MESHVIS_ALWAYS);
    p.SetMeshVis("Glass", MESHVIS_VC);
    p.HideMesh("Door");
    p.HideMesh("Nobody");
    EXPECT_THAT(Modes(v), ElementsAre(MESHVIS_ALWAYS, MESHVIS_VC));

    p.LoadMeshByName("Nobody", true, false);
    p.LoadMeshByName("Door", false, false); // not asked to: stays out
    ASSERT_EQ(v.meshes.size(), 2u);
    p.LoadMeshByName("Door", true, false);
    const MESH_REC *door = p.MeshTable.Find("Door");
    ASSERT_EQ(v.meshes.size(), 3u);
    EXPECT_TRUE(door->load);
    EXPECT_EQ(door->index, 2u);
    EXPECT_NE(door->handle, nullptr);
    EXPECT_THAT(Offsets(v), Are({0, 0, 0, 0, 0, 1, 1, 2, 3}));
    EXPECT_THAT(Modes(v), ElementsAre(MESHVIS_ALWAYS, MESHVIS_VC, MESHVIS_NEVER));
    EXPECT_NE(Device(2), nullptr); // the visual follows

    // A second request keeps the one mesh and only sets the external pass.
    p.LoadMeshByName(std::string("Door"), true, true);
    ASSERT_EQ(v.meshes.size(), 3u);
    EXPECT_EQ(v.meshes[2].visibility, 0x13);
    EXPECT_EQ(door->vis, 0x13);
}

TEST_F(MeshTest, MaterialsTakeTheirMeshAndSetTheVesselFlags) {
    Meshes(std::string(kMeshes) + "Materials = {\n"
                                  "  mGlow  Glass   ReentryGlow  0 1\n"
                                  "  mFade  Hull    ReentryAlpha 1\n"
                                  "  mOut   Door    ReentryAlpha 0\n"
                                  "  mNone  Nobody  Other\n"
                                  "}\n");
    ProbeVessel &p = Load();

    const MATERIAL_REC *glow = p.MaterialTable.Find("mGlow");
    EXPECT_EQ(glow->kind, 0);
    EXPECT_EQ(glow->meshIndex, 1u);
    EXPECT_EQ(glow->meshHandle, p.MeshTable.Find("Glass")->handle);
    EXPECT_THAT(glow->matList, ElementsAre(0, 1));
    EXPECT_TRUE(glow->hiddenState);
    const MATERIAL_REC *fade = p.MaterialTable.Find("mFade");
    EXPECT_EQ(fade->kind, 1);
    EXPECT_EQ(fade->meshIndex, 0u);
    EXPECT_EQ(p.MaterialTable.Find("mOut")->meshHandle, nullptr);
    EXPECT_EQ(p.MaterialTable.Find("mNone")->meshHandle, nullptr);
    EXPECT_TRUE(p.HasGlowMaterials);
    EXPECT_TRUE(p.HasAlphaMaterials);
}
