// Animations moving the groups of a vessel's visual. The box mesh's group 0
// ("Arm") has the vertices (0,1,0), (1,0,0), (0,0,1).
#include <cmath>

#include "sim/state_json.h"
#include "visual/visual.h"
#include "visual_fixture.h"

using hosttest::ShowVessel;

namespace {

class Animations : public hosttest::VisualWorld {
  protected:
    void ExpectVertex(ShowVessel &v, size_t idx, VECTOR3 want) {
        VECTOR3 got = Vertex(v, 0, idx);
        EXPECT_NEAR(got.x, want.x, 1e-6);
        EXPECT_NEAR(got.y, want.y, 1e-6);
        EXPECT_NEAR(got.z, want.z, 1e-6);
    }
    UINT arm[1] = {0};
};

TEST_F(Animations, RotationTurnsVerticesAndNormalsAboutItsAxis) {
    ShowVessel &a = Make("A");
    MGROUP_ROTATE turn(0, arm, 1, {0, 0, 0}, {2, 0, 0}, static_cast<float>(PI05));
    UINT anim = a.CreateAnimation(0.0);
    ASSERT_NE(a.AddAnimationComponent(anim, 0.0, 1.0, &turn), nullptr);

    EXPECT_TRUE(a.SetAnimation(anim, 1.0));
    ExpectVertex(a, 0, {0, 0, 1}); // about +x, +y turns toward +z
    ExpectVertex(a, 2, {0, -1, 0});
    EXPECT_NEAR(Host(a).visual->At(0)->groups[0].vertices[0].nz, 1.0, 1e-6);

    a.SetAnimation(anim, 0.5);
    ExpectVertex(a, 0, {0, std::sqrt(0.5), std::sqrt(0.5)});
    a.SetAnimation(anim, 7.0); // past the component's end: fully turned
    ExpectVertex(a, 0, {0, 0, 1});
    a.SetAnimation(anim, 0.0);
    ExpectVertex(a, 0, {0, 1, 0});

    // About an axis through (0,0,1): (0,1,0) goes round to (0,1,2).
    turn.ref = {0, 0, 1};
    a.SetAnimation(anim, 1.0);
    ExpectVertex(a, 0, {0, 1, 2});
    EXPECT_DOUBLE_EQ(a.GetAnimation(anim), 1.0);
}

TEST_F(Animations, TheFileShowsTheInitialState) {
    ShowVessel &a = Make("A");
    MGROUP_TRANSLATE slide(0, arm, 1, {2, 0, 0});
    MGROUP_SCALE grow(0, arm, 1, {0, 0, 0}, {3, 1, 1});
    UINT anim = a.CreateAnimation(0.5);
    a.AddAnimationComponent(anim, 0.0, 1.0, &slide);
    ExpectVertex(a, 1, {1, 0, 0});
    a.SetAnimation(anim, 1.0);
    ExpectVertex(a, 1, {2, 0, 0});
    a.SetAnimation(anim, 0.0);
    ExpectVertex(a, 1, {0, 0, 0});

    // Scaling at 0.5 of the way to x3 is x2 in the file; at 1 the vertex
    // stands at 3/2 of its place.
    UINT scale = a.CreateAnimation(0.5);
    a.AddAnimationComponent(scale, 0.0, 1.0, &grow);
    a.SetAnimation(anim, 0.5);
    a.SetAnimation(scale, 1.0);
    ExpectVertex(a, 1, {1.5, 0, 0});
}

// The parent slides along x, the child turns a quarter about z through the
// origin; (1,0,0) turns to (0,1,0) and only then slides, to (1,1,0). The
// other order would give (0,2,0).
TEST_F(Animations, ChildMovesFirstThenItsParent) {
    ShowVessel &a = Make("A");
    MGROUP_TRANSLATE slide(0, nullptr, 0, {1, 0, 0});
    MGROUP_ROTATE turn(0, arm, 1, {0, 0, 0}, {0, 0, 1}, static_cast<float>(PI05));
    UINT parentAnim = a.CreateAnimation(0.0);
    UINT childAnim = a.CreateAnimation(0.0);
    ANIMATIONCOMPONENT_HANDLE parent = a.AddAnimationComponent(parentAnim, 0, 1, &slide);
    ANIMATIONCOMPONENT_HANDLE child = a.AddAnimationComponent(childAnim, 0, 1, &turn, parent);
    ASSERT_NE(child, nullptr);

    a.SetAnimation(parentAnim, 1.0);
    ExpectVertex(a, 1, {2, 0, 0});
    a.SetAnimation(childAnim, 1.0);
    ExpectVertex(a, 1, {1, 1, 0});

    auto json = hullhost::sim::VesselState(world, Host(a))["animations"];
    EXPECT_EQ(json[1]["components"][0]["parent"], nlohmann::json::parse("[0, 0]"));
    EXPECT_EQ(json[1]["components"][0]["type"], "rotate");
    EXPECT_EQ(json[1]["state"], 1.0);

    // Without its parent the child turns alone; without the child the
    // geometry is the file's.
    EXPECT_TRUE(a.DelAnimation(parentAnim));
    ExpectVertex(a, 1, {0, 1, 0});
    EXPECT_TRUE(a.DelAnimationComponent(childAnim, child));
    ExpectVertex(a, 1, {1, 0, 0});
    EXPECT_FALSE(a.DelAnimationComponent(childAnim, child));
    EXPECT_EQ(a.GetAnimationCount(), 2u);
}

TEST_F(Animations, BadRequestsAreRefusedOrIgnored) {
    ShowVessel &a = Make("A");
    UINT far[2] = {0, 99};
    MGROUP_TRANSLATE offMesh(5, arm, 1, {1, 0, 0});
    MGROUP_TRANSLATE offGroup(0, far, 2, {1, 0, 0});
    UINT anim = a.CreateAnimation(0.0);
    EXPECT_EQ(a.AddAnimationComponent(anim + 1, 0, 1, &offMesh), nullptr);
    EXPECT_EQ(a.AddAnimationComponent(anim, 0, 1, nullptr), nullptr);
    EXPECT_EQ(a.AddAnimationComponent(anim, 0, 1, &offMesh, reinterpret_cast<ANIMATIONCOMPONENT_HANDLE>(&a)),
              nullptr);
    EXPECT_NE(a.AddAnimationComponent(anim, 0, 1, &offMesh), nullptr);
    EXPECT_NE(a.AddAnimationComponent(anim, 0, 1, &offGroup), nullptr);
    EXPECT_TRUE(a.SetAnimation(anim, 1.0));
    ExpectVertex(a, 1, {2, 0, 0}); // group 0 moved once; mesh 5 and group 99 don't exist
    EXPECT_FALSE(a.SetAnimation(anim + 1, 1.0));
    EXPECT_DOUBLE_EQ(a.GetAnimation(anim + 1), -1.0);

    // Deleting the mesh takes its components with it, unless asked to keep them.
    EXPECT_TRUE(a.DelMesh(0));
    EXPECT_TRUE(hullhost::sim::VesselState(world, Host(a))["animations"][0]["components"][0]["mesh"] == 5);
}

} // namespace
