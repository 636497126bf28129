// Mesh templates, the global cache, mesh slots and the visuals' device
// meshes, through the API that modules call.
#include <algorithm>

#include "sim/state_json.h"
#include "visual/visual.h"
#include "visual_fixture.h"

using hosttest::ShowVessel;

namespace {

class Visuals : public hosttest::VisualWorld {};

size_t LogLinesWith(const hullhost::World &w, const std::string &text) {
    return std::count_if(w.log.begin(), w.log.end(),
                         [&](const std::string &l) { return l.find(text) != std::string::npos; });
}

TEST_F(Visuals, VisualComesAfterPostCreationAndGoesBeforeTheModuleEnds) {
    ShowVessel &a = Make("A");
    ASSERT_NE(a.visual, nullptr);
    EXPECT_NE(a.GetDevMesh(a.visual, 0), nullptr);
    oapiDeleteVessel(a.GetHandle());
    EXPECT_EQ(ShowVessel::Events(), (std::vector<std::string>{"A postCreation", "A visualCreated 1",
                                                              "A visualDestroyed 0", "A exit"}));
}

TEST_F(Visuals, GlobalMeshesAreSharedAndMissingOnesLoggedOnce) {
    MESHHANDLE box = oapiLoadMeshGlobal("Test\\Box");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(oapiLoadMeshGlobal("Test/Box"), box);
    EXPECT_EQ(oapiMeshGroupCount(box), 2u);
    EXPECT_EQ(oapiMeshMaterialCount(box), 2u);
    EXPECT_FLOAT_EQ(oapiMeshMaterial(box, 1)->emissive.b, 1.0f);
    EXPECT_EQ(oapiMeshMaterial(box, 2), nullptr);

    MESHHANDLE own = oapiLoadMesh("Test\\Box");
    EXPECT_NE(own, nullptr);
    EXPECT_NE(own, box);

    EXPECT_EQ(oapiLoadMeshGlobal("Test\\Nothing"), nullptr);
    EXPECT_EQ(oapiLoadMeshGlobal("Test\\Nothing"), nullptr);
    EXPECT_EQ(LogLinesWith(world, "Nothing.msh"), 1u);
    EXPECT_EQ(oapiMeshGroupCount(reinterpret_cast<MESHHANDLE>(&world)), 0u); // not a mesh
}

// A module resolves group labels by reading the mesh file as text.
TEST_F(Visuals, MeshFilesOpenByTheirMeshName) {
    FILEHANDLE f = oapiOpenFile("Test\\Box", FILE_IN, MESHES);
    ASSERT_NE(f, nullptr);
    char *line;
    std::vector<std::string> labels;
    while (oapiReadScenario_nextline(f, line))
        if (std::string(line).find("LABEL") != std::string::npos)
            labels.push_back(line + 6);
    oapiCloseFile(f, FILE_IN);
    EXPECT_EQ(labels, (std::vector<std::string>{"Arm", "Hand"}));
}

TEST_F(Visuals, MeshSlotsKeepTheirIndices) {
    ShowVessel &a = Make("A");
    const VECTOR3 ofs{0, 0, 2};
    EXPECT_EQ(a.AddMesh(oapiLoadMeshGlobal("Test\\Box"), &ofs), 1u);
    EXPECT_EQ(a.AddMesh("Test\\Missing"), 2u); // no template, but a slot all the same
    EXPECT_EQ(a.GetMeshTemplate(2), nullptr);

    EXPECT_TRUE(a.DelMesh(1));
    EXPECT_FALSE(a.DelMesh(1));
    EXPECT_EQ(a.AddMesh("Test\\Box"), 3u);
    EXPECT_EQ(a.GetMeshCount(), 4u);
    EXPECT_EQ(a.GetMeshTemplate(1), nullptr);
    EXPECT_EQ(a.GetMeshTemplate(3), oapiLoadMeshGlobal("Test\\Box"));
    EXPECT_EQ(a.GetDevMesh(a.visual, 1), nullptr);
    EXPECT_NE(a.GetDevMesh(a.visual, 3), nullptr); // added while the visual exists
    EXPECT_EQ(a.GetDevMesh(reinterpret_cast<VISHANDLE>(&world), 3), nullptr);

    EXPECT_TRUE(a.SetMeshVisibilityMode(3, MESHVIS_EXTPASS | MESHVIS_EXTERNAL));
    EXPECT_EQ(a.GetMeshVisibilityMode(3), MESHVIS_EXTPASS | MESHVIS_EXTERNAL);
    EXPECT_FALSE(a.SetMeshVisibilityMode(1, MESHVIS_ALWAYS));
    EXPECT_FALSE(a.SetMeshVisibilityMode(9, MESHVIS_ALWAYS));
    EXPECT_TRUE(a.ShiftMesh(3, {1, 0, 0}));
    EXPECT_TRUE(a.ShiftMesh(3, {1, 0, 0}));
    VECTOR3 got{};
    EXPECT_TRUE(a.GetMeshOffset(3, got));
    EXPECT_DOUBLE_EQ(got.x, 2.0);
    EXPECT_FALSE(a.GetMeshOffset(1, got));

    auto meshes = hullhost::sim::VesselState(world, Host(a))["meshes"];
    ASSERT_EQ(meshes.size(), 4u);
    EXPECT_EQ(meshes[1]["deleted"], true);
    EXPECT_EQ(meshes[2]["file"], "Test\\Missing");
    EXPECT_EQ(meshes[2]["groups"], 0);
    EXPECT_EQ(meshes[3]["groups"], 2);
    EXPECT_EQ(meshes[3]["visibility"], MESHVIS_EXTPASS | MESHVIS_EXTERNAL);
    EXPECT_EQ(meshes[3]["device"]["userFlags"], nlohmann::json::parse("[0, 2]"));

    a.ClearMeshes();
    EXPECT_EQ(a.GetMeshCount(), 0u);
    EXPECT_EQ(a.GetDevMesh(a.visual, 0), nullptr);
}

TEST_F(Visuals, GroupEditsChangeOnlyTheirOwnMesh) {
    ShowVessel &a = Make("A");
    ShowVessel &b = Make("B");
    DEVMESHHANDLE da = a.GetDevMesh(a.visual, 0);
    MESHHANDLE templ = a.GetMeshTemplate(0);
    hullhost::DevMesh &ma = *Host(a).visual->At(0);
    const hullhost::DevMesh &mb = *Host(b).visual->At(0);

    GROUPEDITSPEC set{GRPEDIT_SETUSERFLAG, 7, nullptr, 0, nullptr};
    GROUPEDITSPEC add{GRPEDIT_ADDUSERFLAG, 8, nullptr, 0, nullptr};
    GROUPEDITSPEC del{GRPEDIT_DELUSERFLAG, 3, nullptr, 0, nullptr};
    EXPECT_EQ(oapiEditMeshGroup(da, 0, &set), 0);
    EXPECT_EQ(oapiEditMeshGroup(da, 0, &add), 0);
    EXPECT_EQ(oapiEditMeshGroup(da, 0, &del), 0);
    EXPECT_EQ(ma.groups[0].userFlag, 12u);
    EXPECT_EQ(mb.groups[0].userFlag, 0u);
    EXPECT_EQ(ma.Template().groups[0].userFlag, 0u);
    EXPECT_NE(oapiEditMeshGroup(da, 2, &set), 0);
    EXPECT_NE(oapiEditMeshGroup(da, 0, nullptr), 0);

    EXPECT_EQ(oapiEditMeshGroup(templ, 1, &add), 0);
    EXPECT_EQ(ma.Template().groups[1].userFlag, 10u);
    EXPECT_EQ(ma.groups[1].userFlag, 2u); // copied when the visual was made

    MATERIAL glow = *oapiMeshMaterial(templ, 0);
    glow.emissive = {2, 0, 0, 1};
    EXPECT_EQ(oapiSetMaterial(da, 0, &glow), 0);
    EXPECT_NE(oapiSetMaterial(da, 2, &glow), 0);
    EXPECT_FLOAT_EQ(ma.materials[0].emissive.r, 2.0f);
    EXPECT_FLOAT_EQ(mb.materials[0].emissive.r, 0.0f);
    EXPECT_FLOAT_EQ(oapiMeshMaterial(templ, 0)->emissive.r, 0.0f);

    EXPECT_TRUE(oapiSetMeshProperty(da, MESHPROPERTY_MODULATEMATALPHA, 1));
    EXPECT_FALSE(oapiSetMeshProperty(da, 99, 1));
    EXPECT_EQ(ma.modulateMatAlpha, 1u);
    EXPECT_TRUE(oapiSetMeshProperty(templ, MESHPROPERTY_MODULATEMATALPHA, 1));
    EXPECT_EQ(mb.modulateMatAlpha, 0u);

    SURFHANDLE paint = oapiLoadTexture("Test\\Paint.dds");
    EXPECT_TRUE(oapiSetTexture(da, 1, paint));
    EXPECT_FALSE(oapiSetTexture(da, 0, paint));
    EXPECT_FALSE(oapiSetTexture(da, 2, paint));
    EXPECT_FALSE(oapiSetTexture(da, 1, reinterpret_cast<SURFHANDLE>(&world)));
    auto device = hullhost::sim::VesselState(world, Host(a))["meshes"][0]["device"];
    EXPECT_EQ(device["textures"][0], "Test\\Paint.dds");
    EXPECT_EQ(hullhost::sim::VesselState(world, Host(b))["meshes"][0]["device"]["textures"][0], "Test\\Skin");
}

TEST_F(Visuals, TexturesAreSurfacesEvenWithoutTheirFiles) {
    hosttest::WriteText(root / "Textures/Fleet/Flame.dds", "dds");
    SURFHANDLE flame = oapiRegisterExhaustTexture(const_cast<char *>("Fleet\\Flame"));
    EXPECT_EQ(oapiRegisterExhaustTexture(const_cast<char *>("Fleet\\Flame")), flame);
    EXPECT_TRUE(world.textures.Lookup(flame)->found);
    EXPECT_NE(oapiRegisterParticleTexture(const_cast<char *>("Fleet\\Flame")), flame);

    SURFHANDLE smoke = oapiRegisterParticleTexture(const_cast<char *>("Fleet\\Smoke"));
    ASSERT_NE(smoke, nullptr);
    EXPECT_FALSE(world.textures.Lookup(smoke)->found);
    EXPECT_EQ(LogLinesWith(world, "Smoke"), 1u);

    EXPECT_NE(oapiLoadTexture("Fleet\\Flame", true), oapiLoadTexture("Fleet\\Flame", true));

    hosttest::WriteText(root / "Textures/Fleet/Sign.bmp", "BM");
    auto bmp = static_cast<HBITMAP>(LoadImageA(nullptr, "Textures\\Fleet\\Sign.bmp", IMAGE_BITMAP, 0, 0,
                                               LR_LOADFROMFILE | LR_CREATEDIBSECTION));
    ASSERT_NE(bmp, nullptr);
    SURFHANDLE sign = oapiCreateSurface(bmp, true);
    ASSERT_NE(sign, nullptr);
    EXPECT_EQ(world.textures.Lookup(sign)->kind, hullhost::SurfaceKind::Bitmap);
    EXPECT_EQ(oapiCreateSurface(bmp, true), nullptr); // released with the first surface
}

} // namespace
