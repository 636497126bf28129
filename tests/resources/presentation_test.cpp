// What the user sees of a vessel: the camera walk, the message line, the
// mission time and the mark on the head-up display.

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

TEST_F(PresentationTest, CameraWalkSkipsDisabledRecordsAndWraps) {
    ProbeVessel &p = LoadCameras("  a (1,0,0) zplus 0 0\n"
                                 "  b (2,0,0) zplus 0 1\n"
                                 "  c (3,0,0) yplus 0 0\n"
                                 "  d (4,0,0) zplus 0 1\n");
    EXPECT_EQ(p.CurrentCamera, "a");
    p.NextCamera();
    EXPECT_EQ(p.CurrentCamera, "c");
    VECTOR3 offset;
    p.GetCameraOffset(offset);
    EXPECT_DOUBLE_EQ(offset.x, 3.0);
    p.NextCamera(); // past the disabled last record back to the first
    EXPECT_EQ(p.CurrentCamera, "a");
    // Standing on a disabled record, the walk goes on to the next enabled one.
    p.CurrentCamera = "b";
    p.NextCamera();
    EXPECT_EQ(p.CurrentCamera, "c");
}

TEST_F(PresentationTest, CameraWalkWithOneRecordReappliesIt) {
    ProbeVessel &one = LoadCameras("  only (5,0,0) zplus 0 0\n");
    one.NextCamera();
    EXPECT_EQ(one.CurrentCamera, "only");
    VECTOR3 offset;
    one.GetCameraOffset(offset);
    EXPECT_DOUBLE_EQ(offset.x, 5.0);
}

TEST_F(PresentationTest, RotationRangeIsSetOnlyWithEveryLimitStrictlyInside) {
    ProbeVessel &p = LoadCameras("  in (0,0,0) zplus 0 0 0.5 0.6 0.7 0.8\n"
                                 "  edge (0,0,0) zplus 0 0 0.5 0.6 1.5707963267948966 0.8\n");
    p.ApplyCamera();
    const auto &camera = Host().camera;
    EXPECT_DOUBLE_EQ(camera.rangeLeft, 0.5);
    EXPECT_DOUBLE_EQ(camera.rangeDown, 0.8);
    p.CurrentCamera = "edge";
    p.ApplyCamera();
    EXPECT_DOUBLE_EQ(camera.rangeUp, 0.7); // pi/2 is out of bounds: the range stays
}

TEST_F(PresentationTest, ReselectPrefersSavedThenFwdThenFirst) {
    ProbeVessel &p = LoadCameras("  a (0,0,0) zplus\n  fwd (0,0,0) zplus\n  c (0,0,0) zplus\n");
    p.SavedCamera = "c";
    p.ReselectCamera();
    EXPECT_EQ(p.CurrentCamera, "c");
    p.SavedCamera = "gone";
    p.ReselectCamera();
    EXPECT_EQ(p.CurrentCamera, "fwd");
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
    HULLKIT::FormatMissionTime(-3661.5, text, sizeof text);
    EXPECT_STREQ(text, "-01:01:01");
    HULLKIT::FormatMissionTime(59.9, text, sizeof text);
    EXPECT_STREQ(text, "00:00:59");
    HULLKIT::FormatMissionTime(360000.0, text, sizeof text);
    EXPECT_STREQ(text, "100:00:00");
    HULLKIT::FormatMissionTime(1e300, text, 4); // cut to the buffer, no overflow
    EXPECT_EQ(std::string(text).size(), 3u);
}

TEST_F(PresentationTest, HudMarkStandsBelowTheOverriddenModeButton) {
    ProbeVessel &p = Load();
    p.clbkLoadGenericCockpit();
    HUDPAINTSPEC spec{1000, 800, 500, 400, 400.0, 16};
    hullhost::HudSketchpad off;
    EXPECT_TRUE(p.clbkDrawHUD(HUD_SURFACE, &spec, &off));
    EXPECT_TRUE(off.Shapes().empty());

    p.NavOverrideEnabled = true;
    p.NavOverrideMode = 3;
    hullhost::HudSketchpad pad;
    EXPECT_TRUE(p.clbkDrawHUD(HUD_SURFACE, &spec, &pad));
    ASSERT_EQ(pad.Shapes().size(), 1u);
    const hullhost::HudShape &mark = pad.Shapes()[0];
    EXPECT_EQ(mark.kind, hullhost::HudShape::RECTANGLE);
    // a = 373, b = 36, y = 764; mode 3 stands at a + 2b + 4.
    EXPECT_EQ((std::vector{mark.x0, mark.y0, mark.x1, mark.y1, mark.width}), (std::vector{449, 764, 485, 800, 4}));
    EXPECT_EQ(mark.colour, 0xffu);

    p.NavOverrideMode = 2;
    hullhost::HudSketchpad second;
    p.clbkDrawHUD(HUD_SURFACE, &spec, &second);
    ASSERT_EQ(second.Shapes().size(), 1u);
    EXPECT_EQ(second.Shapes()[0].x0, 0);
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
