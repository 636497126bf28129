// What the user sees of a vessel: the camera walk, the message line, the
// mission time and the mark on the head-up display.

#include "numbers.h"
#include "resource_fixture.h"
#include "screen/hud_sketchpad.h"

namespace {

constexpr const char *kCameraHeader =
    "CAMERA_REC = Camera Cameras SName VPos VDir DTilt IDisabled DLimRotLeft DLimRotRight DLimRotUp "
    "DLimRotDown\n";

std::string MessageText(const hullhost::World &world, NOTEHANDLE note) {
    for (const auto &n : world.annotations)
        if (n.get() == reinterpret_cast<const hullhost::Annotation *>(note))
            return n->text;
    return "<none>";
}

} // namespace

class PresentationTest : public ResourceTest {
  protected:
    ProbeVessel &LoadCameras(const std::string &records) {
        Common(kCameraHeader);
        Class("Cameras = {\n" + records + "}\n");
        return Load();
    }
};

// The walk skips disabled records and wraps; a reselection prefers the saved
// camera, then "fwd", then the first; rotation limits apply only when every
// one of them lies strictly inside a right angle.
TEST_F(PresentationTest, CameraWalkReselectionAndRotationRange) {
    ProbeVessel &p = LoadCameras("  a   (1,0,0) zplus 0 0 0.5 0.6 0.7 0.8\n"
                                 "  b   (2,0,0) zplus 0 1\n"
                                 "  fwd (3,0,0) yplus 0 0 0.5 0.6 1.5707963267948966 0.8\n"
                                 "  d   (4,0,0) zplus 0 1\n");
    const auto &camera = Host().camera;
    EXPECT_EQ(p.CurrentCamera, "a");
    p.ApplyCamera();
    EXPECT_THAT((Numbers{camera.rangeLeft, camera.rangeUp, camera.rangeDown}), Are({0.5, 0.7, 0.8}));
    VECTOR3 offset;
    for (const char *next : {"fwd", "a"}) {
        p.NextCamera();
        EXPECT_EQ(p.CurrentCamera, next);
    }
    p.CurrentCamera = "b";
    p.NextCamera();
    EXPECT_EQ(p.CurrentCamera, "fwd");
    p.GetCameraOffset(offset);
    EXPECT_DOUBLE_EQ(offset.x, 3.0);
    EXPECT_DOUBLE_EQ(camera.rangeUp, 0.7); // pi/2 is out of bounds: the range stays

    p.SavedCamera = "a";
    p.ReselectCamera();
    EXPECT_EQ(p.CurrentCamera, "a");
    p.SavedCamera = "gone";
    p.ReselectCamera();
    EXPECT_EQ(p.CurrentCamera, "fwd");

    // With one record the walk applies it again.
    Class("Cameras = {\n  only (5,0,0) zplus 0 0\n}\n");
    ProbeVessel &one = LoadProbe("P2", {"STATUS Orbiting Earth"});
    one.NextCamera();
    EXPECT_EQ(one.CurrentCamera, "only");
    one.GetCameraOffset(offset);
    EXPECT_DOUBLE_EQ(offset.x, 5.0);
}

TEST_F(PresentationTest, MessageLineEmptiesFourSecondsAfterTheFirstText) {
    ProbeVessel &p = Load();
    env.Run(0.1);
    p.ShowMessage("first");
    env.Run(1.0);
    p.ShowMessage("second");
    EXPECT_EQ(MessageText(*env.world, p.MessageNote), "second");
    env.Run(2.8);
    EXPECT_EQ(MessageText(*env.world, p.MessageNote), "second");
    env.Run(0.4);
    EXPECT_EQ(MessageText(*env.world, p.MessageNote), "");
}

TEST_F(PresentationTest, AutoSwitchToggleNeedsItsFlagAndSecondaryToggleReportsEnabled) {
    ProbeVessel &p = Load();
    p.ToggleAutoSwitchFocus();
    EXPECT_FALSE(p.AutoSwitchFocus);
    p.CanAutoSwitchFocus = true;
    p.ToggleAutoSwitchFocus();
    EXPECT_TRUE(p.AutoSwitchFocus);
    EXPECT_EQ(MessageText(*env.world, p.MessageNote), "Switch focus to the next separated element? YES!");
    // Only a primary item in the world: nothing to switch, the message says ENABLED.
    p.ToggleSecondaryFocus();
    EXPECT_EQ(MessageText(*env.world, p.MessageNote),
              "Focus is ENABLED on all secondary items in the scenario.");
    // A secondary item: the first one found decides the direction.
    p.NoFocus = true;
    p.ToggleSecondaryFocus();
    EXPECT_FALSE(p.FocusEnabled);
    EXPECT_FALSE(Host().focusEnabled);
    EXPECT_EQ(MessageText(*env.world, p.MessageNote),
              "Focus is DISABLED on all secondary items in the scenario.");
    p.ToggleSecondaryFocus();
    EXPECT_TRUE(p.FocusEnabled);
    EXPECT_TRUE(Host().focusEnabled);
    // A hidden item is never touched.
    p.Hidden = true;
    p.ToggleSecondaryFocus();
    EXPECT_TRUE(p.FocusEnabled);
}

TEST(MissionTime, FormatsHoursMinutesSecondsWithSign) {
    char text[16];
    for (const auto &[time, want] :
         {std::pair{-3661.5, "-01:01:01"}, {59.9, "00:00:59"}, {360000.0, "100:00:00"}}) {
        HULLKIT::FormatMissionTime(time, text, sizeof text);
        EXPECT_STREQ(text, want);
    }
    HULLKIT::FormatMissionTime(1e300, text, 4); // cut to the buffer, no overflow
    EXPECT_EQ(std::string(text).size(), 3u);
}

// a = 373, b = 36, y = 764: mode 1 stands at a, mode 2 at 0, modes 3 to 6 at
// a + (mode - 1) b + 4; without the override, or out of range, no mark.
TEST_F(PresentationTest, HudMarkStandsBelowTheOverriddenModeButton) {
    ProbeVessel &p = Load();
    p.clbkLoadGenericCockpit();
    HUDPAINTSPEC spec{1000, 800, 500, 400, 400.0, 16};
    for (const auto &[enabled, mode, x] :
         {std::tuple{false, 3, -1}, {true, 3, 449}, {true, 1, 373}, {true, 2, 0}, {true, 7, -1}}) {
        SCOPED_TRACE(mode);
        p.NavOverrideEnabled = enabled;
        p.NavOverrideMode = mode;
        hullhost::HudSketchpad pad;
        EXPECT_TRUE(p.clbkDrawHUD(HUD_SURFACE, &spec, &pad));
        ASSERT_EQ(pad.Shapes().size(), x < 0 ? 0u : 1u);
        if (x >= 0) {
            const hullhost::HudShape &mark = pad.Shapes()[0];
            EXPECT_EQ(mark.kind, hullhost::HudShape::RECTANGLE);
            EXPECT_EQ((std::vector{mark.x0, mark.y0, mark.x1, mark.y1, mark.width}),
                      (std::vector{x, 764, x + 36, 800, 4}));
            EXPECT_EQ(mark.colour, 0xffu);
        }
    }
}

TEST_F(PresentationTest, VirtualCockpitKeyIsPressedOnlyWithTheFocusInTheCockpit) {
    Class("VC = true\n");
    ProbeVessel &p = Load();
    EXPECT_TRUE(p.clbkLoadVC(0));
    EXPECT_TRUE(p.HasUpdater(&HULLKIT::H_VC));
    auto &keys = env.world->bufferedKeys;
    keys.clear();
    p.H_VC(); // no focus reported by the controller: nothing happens
    EXPECT_FALSE(p.VcSwitchPending);
    p.OnFocusGained(nullptr);
    p.H_VC();
    EXPECT_TRUE(p.VcSwitchPending);
    EXPECT_TRUE(keys.empty());
    p.H_VC();
    EXPECT_FALSE(p.VcSwitchPending);
    ASSERT_EQ(keys.size(), 2u);
    EXPECT_EQ(keys[0].key, 66u);
    EXPECT_TRUE(keys[0].down);
    EXPECT_FALSE(keys[1].down);
    env.world->camera.cockpitMode = 3; // in the virtual cockpit: done
    p.H_VC();
    EXPECT_FALSE(p.VcSwitchPending);
}
