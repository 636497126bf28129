// Textures by their load method, and the changes that live in the visual:
// replaced textures, hidden groups and the shadow edit, before and after
// the visual exists.
#include <algorithm>

#include "mesh_fixture.h"

TEST_F(MeshTest, TexturesAreLoadedByTheirType) {
    env.Write("Textures/Test/Pic.bmp", "BM");
    Meshes("Textures = {\n"
           "  tEx  EXHAUST     Test\\Flame\n"
           "  tPa  PARTICLE    Test\\Smoke\n"
           "  tDy  DYNAMIC     Test\\Panel\n"
           "  tSu  SURFHANDLE  Textures\\Test\\Pic.bmp\n"
           "  tBm  HBITMAP     Textures\\Test\\Pic.bmp\n"
           "  tNo  exhaust     Test\\Flame\n"
           "  tMi  SURFHANDLE  Textures\\Test\\Missing.bmp\n"
           "}\n"
           "Tanks = {\n  Main 10\n}\n"
           "Thrusters = {\n"
           "  T0 (0,0,-1) zplus 100 Main 3000 0 tNo 1 1 0\n"
           "  T1 (0,0,-1) zplus 100 Main 3000 0 tEx 1 1 0\n"
           "}\n");
    ProbeVessel &p = Load();
    auto surface = [&](const char *name) { return p.TextureTable.Find(name)->surface; };

    EXPECT_EQ(SurfaceOf(surface("tEx"))->kind, hullhost::SurfaceKind::Exhaust);
    EXPECT_EQ(SurfaceOf(surface("tEx"))->name, "Test\\Flame");
    EXPECT_EQ(SurfaceOf(surface("tPa"))->kind, hullhost::SurfaceKind::Particle);
    EXPECT_EQ(SurfaceOf(surface("tDy"))->kind, hullhost::SurfaceKind::Dynamic);
    ASSERT_NE(surface("tSu"), nullptr);
    EXPECT_EQ(SurfaceOf(surface("tSu"))->kind, hullhost::SurfaceKind::Bitmap);
    // The bitmap handle itself, kept by the world's bitmaps; the surface's
    // bitmap was handed over to the surface.
    auto &bitmaps = env.world->bitmaps;
    ASSERT_EQ(bitmaps.size(), 1u);
    EXPECT_EQ(reinterpret_cast<void *>(surface("tBm")), reinterpret_cast<void *>(bitmaps[0].get()));
    EXPECT_EQ(surface("tNo"), nullptr);
    EXPECT_EQ(surface("tMi"), nullptr);

    // The thruster on the unknown type gets no flame.
    ASSERT_EQ(Host().exhausts.size(), 1u);
    EXPECT_EQ(Host().exhausts[0].tex, surface("tEx"));
}

TEST_F(MeshTest, ReplacedTexturesReachTheVisualNowAndEachNewOne) {
    Meshes(kMeshes);
    ProbeVessel &p = Load();
    const SURFHANDLE exhaust = p.TextureTable.Find("tEx")->surface;
    const SURFHANDLE particle = p.TextureTable.Find("tPa")->surface;
    ASSERT_NE(p.visual, nullptr);
    const SURFHANDLE skin = Device(0)->textures[0];

    EXPECT_FALSE(p.SetMeshTexture("Nobody", 1, "tEx", true));
    EXPECT_FALSE(p.SetMeshTexture("Hull", 1, "tNobody", true));
    EXPECT_TRUE(p.meshTextures.empty());

    EXPECT_TRUE(p.SetMeshTexture("Glass", 2, "tPa", true));
    EXPECT_EQ(Device(1)->textures[1], particle);
    EXPECT_NE(Host().meshes[1].templ->textures[1], particle); // the template stays
    EXPECT_TRUE(p.SetMeshTexture("Glass", 2, "tEx", true));   // replaces the entry
    EXPECT_EQ(Device(1)->textures[1], exhaust);
    // A mesh outside the host is remembered and leaves mesh 0 alone.
    EXPECT_TRUE(p.SetMeshTexture("Door", 1, "tEx", true));
    EXPECT_EQ(Device(0)->textures[0], skin);

    // Without a visual only the list changes; the next visual gets it all.
    hullhost::DestroyVisual(*env.world, Host());
    EXPECT_EQ(p.visual, nullptr);
    EXPECT_TRUE(p.SetMeshTexture("Hull", 1, "tPa", true));
    ASSERT_EQ(p.meshTextures.size(), 3u);
    EXPECT_EQ(p.meshTextures[0].mesh, "Glass");
    EXPECT_EQ(p.meshTextures[0].texture, "tEx");
    hullhost::CreateVisual(*env.world, Host());
    EXPECT_EQ(Device(0)->textures[0], particle);
    EXPECT_EQ(Device(1)->textures[1], exhaust);

    // Without `now` the visual waits for the next one.
    EXPECT_TRUE(p.SetMeshTexture("Hull", 2, "tEx", false));
    EXPECT_NE(Device(0)->textures[1], exhaust);
    RenewVisual();
    EXPECT_EQ(Device(0)->textures[1], exhaust);
}

TEST_F(MeshTest, GroupVisibilityReachesTheUserFlagsAndIsKeptWhileItDiffers) {
    Meshes(kMeshes);
    ProbeVessel &p = Load();
    ASSERT_EQ(Device(0)->groups[1].userFlag, 0u);

    p.SetGroupVisSaved("Hull", 1, true, false);
    EXPECT_EQ(Device(0)->groups[1].userFlag, 7u);
    EXPECT_EQ(Device(1)->groups[1].userFlag, 0u);
    ASSERT_EQ(p.meshGroupVis.size(), 1u);
    p.SetGroupVisSaved("Hull", 1, true, false); // no second entry
    EXPECT_EQ(p.meshGroupVis.size(), 1u);
    p.SetGroupVisSaved("Hull", 1, false, false); // back to its default
    EXPECT_EQ(Device(0)->groups[1].userFlag, 0u);
    EXPECT_TRUE(p.meshGroupVis.empty());

    // A group hidden by default and shown is kept too.
    p.SetGroupVisSaved("Glass", 0, false, true);
    EXPECT_EQ(Device(1)->groups[0].userFlag, 0u);
    ASSERT_EQ(p.meshGroupVis.size(), 1u);
    EXPECT_FALSE(p.meshGroupVis[0].hidden);

    // Groups and meshes that aren't there change nothing.
    p.SetGroupVis("Hull", 3, true);
    p.SetGroupVis("Hull", -1, true);
    p.SetGroupVis("Door", 0, true);
    p.SetGroupVis("Nobody", 0, true);
    EXPECT_EQ(Device(0)->groups[0].userFlag, 2u);

    // Entries filled before a visual, as the scenario's lines do, reach it;
    // an entry that says the opposite of a later change follows the change.
    p.meshGroupVis.push_back({"Hull", 2, true});
    p.meshGroupVis.push_back({"Hull", 0, false});
    p.SetGroupVisSaved("Hull", 0, true, false);
    EXPECT_TRUE(p.meshGroupVis.back().hidden);
    RenewVisual();
    EXPECT_EQ(Device(0)->groups[2].userFlag, 7u);
    EXPECT_EQ(Device(0)->groups[0].userFlag, 7u);
    EXPECT_EQ(Device(1)->groups[0].userFlag, 0u);
}

TEST_F(MeshTest, ShadowEditEndsAtTheFirstMeshNotLoaded) {
    Meshes(std::string("HideShadows = true\n") + kMeshes);
    Load();
    EXPECT_EQ(Device(0)->groups[0].userFlag, 3u); // its own flag 2, and no shadow
    EXPECT_EQ(Device(0)->groups[1].userFlag, 1u);
    EXPECT_EQ(Device(0)->groups[2].userFlag, 1u);
    EXPECT_EQ(Device(1)->groups[1].userFlag, 0u);
    EXPECT_EQ(Host().meshes[0].templ->groups[1].userFlag, 0u);

    // Without the flag nothing is edited.
    Class("NoReentryGlow = true\nMeshes = {\n  Hull Test\\Box xyz0\n}\n");
    LoadProbe("P2", {"STATUS Orbiting Earth"});
    EXPECT_EQ(env.world->FindVessel("P2")->visual->At(0)->groups[1].userFlag, 0u);
}
