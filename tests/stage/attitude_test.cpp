// The stage's attitude loop under the autopilot, each mode flown from the
// 200 km orbit; the stuck channel under thrust; the taking over of the
// host's navigation modes; the mission clock and the ascent reference.
#include <cmath>
#include <map>

#include "stage_fixture.h"

namespace {

using AttitudeTest = StageTest;

constexpr double kRad = 0.017453292519943295;

VECTOR3 Unit(const VECTOR3 &v) { return v / length(v); }

// Where the mode wants the nose, in the global frame.
VECTOR3 Wanted(Korvan &k, int mode) {
    VECTOR3 p, v, moon;
    k.GetRelativePos(k.EarthHandle, p);
    k.GetRelativeVel(k.EarthHandle, v);
    k.GetRelativePos(k.MoonHandle, moon);
    const VECTOR3 n = crossp(p, v), t = crossp(v, n);
    const std::map<int, VECTOR3> wanted = {{3, v},  {4, -v}, {5, n},      {6, -n},
                                           {9, -t}, {10, t}, {11, -moon}, {12, moon}};
    return Unit(wanted.at(mode));
}

TEST_F(AttitudeTest, EveryModeTurnsTheNoseToItsTargetAndHoldsIt) {
    const int modes[] = {3, 4, 5, 6, 9, 10, 11, 12};
    std::vector<Korvan *> stages;
    for (int mode : modes) {
        Korvan &k = Load({"UPDATERS K_FLIGHT"}, true, ("K" + std::to_string(mode)).c_str());
        k.NavOverrideMode = mode;
        k.NavTargetObject = k.MoonHandle;
        stages.push_back(&k);
    }
    Run(400, 0.1);
    for (Korvan *k : stages) {
        SCOPED_TRACE("mode " + std::to_string(k->NavOverrideMode));
        VECTOR3 nose, rate;
        k->GlobalRot(_V(0, 0, 1), nose);
        k->GetAngularVel(rate);
        // Turning with the orbit, the nose trails its target a little.
        EXPECT_GT(dotp(nose, Wanted(*k, k->NavOverrideMode)), std::cos(1.5 * kRad));
        EXPECT_LT(length(rate), 0.2 * kRad);
        EXPECT_LT(std::fabs(k->AttErrorDeg.x) + std::fabs(k->AttErrorDeg.y), 1.5);
    }
}

TEST_F(AttitudeTest, ModeZeroCommandsNothingAndAStuckChannelIsFeltOnlyUnderThrust) {
    Korvan &k = Load({}, true);
    k.SetAngularVel(_V(0.1, 0.1, 0.1));
    k.K_FLIGHT();
    for (const char *g : {"PitchUp", "PitchDown", "YawLeft", "YawRight", "RollLeft", "RollRight"})
        EXPECT_EQ(GroupLevel(k, g), 0.0) << g;
    EXPECT_EQ(k.pitchControl->target, 0.0);

    k.SetAngularVel(_V(0, 0, 0));
    k.NavOverrideMode = 3; // the nose is on the velocity already
    k.PitchStuckAngle = 0.3;
    k.K_FLIGHT();
    EXPECT_NEAR(k.AttError.x, 0.0, 1e-9);
    k.SetThrusterGroupLevel(k.groupMain, 1.0);
    k.K_FLIGHT();
    EXPECT_NEAR(k.AttError.x, 0.3, 1e-9);
    EXPECT_EQ(GroupLevel(k, "PitchDown"), 1.0);
    EXPECT_EQ(k.pitchControl->target, -1.0); // the gimbal follows the command
    k.AutopilotActive = false;               // by hand the failure isn't felt
    k.K_FLIGHT();
    EXPECT_NEAR(k.AttError.x, 0.0, 1e-9);
    // With the focus, the user's input on one axis replaces the command on all three.
    k.SetThrusterGroupLevel(k.groupMain, 0.0);
    k.SetAngularVel(_V(0, 0.05, 0.05));
    world->SetFocus(world->Vessels().at(0).get());
    world->keyState[OAPI_KEY_NUMPAD2] = static_cast<char>(0x80); // pitch up
    world->Frame(0.1);
    k.K_FLIGHT();
    EXPECT_FALSE(k.HasFocus);       // without a controller nobody tells the stage
    EXPECT_EQ(k.AttCommand.y, 1.0); // so the loop brakes the yaw
    k.HasFocus = true;
    k.K_FLIGHT();
    EXPECT_EQ(k.AttCommand.x, 1.0);
    EXPECT_EQ(k.AttCommand.y, 0.0);
    EXPECT_EQ(k.AttCommand.z, 0.0);
    k.HasFocus = false;

    // Modes without a branch keep the error of the step before.
    k.NavOverrideMode = 2;
    k.AttError = _V(0.01, 0.02, 0.03);
    k.K_FLIGHT();
    EXPECT_EQ(k.AttError.y, 0.02);
    EXPECT_NEAR(k.AttErrorDeg.z, 0.03 / kRad, 1e-12);
    // The body modes without an object command nothing.
    k.NavOverrideMode = 11;
    k.K_FLIGHT();
    EXPECT_EQ(k.AttCommand.x, 0.0);
    EXPECT_EQ(k.AttError.y, 0.0);
}

TEST_F(AttitudeTest, TheOverrideTakesTheHostsModesAndHandsThemBack) {
    Korvan &k = Load();
    k.ActivateNavmode(NAVMODE_PROGRADE);
    EXPECT_EQ(k.NavOverrideMode, 3);
    EXPECT_FALSE(k.GetNavmodeState(NAVMODE_PROGRADE));
    k.ActivateNavmode(NAVMODE_KILLROT); // one mode to the next in one call
    EXPECT_EQ(k.NavOverrideMode, 1);
    k.ActivateNavmode(NAVMODE_KILLROT); // a second press ends it
    EXPECT_EQ(k.NavOverrideMode, 0);

    k.ActivateNavmode(NAVMODE_HLEVEL); // not in the stage's Navmodes
    EXPECT_EQ(Message(k), "HLEVEL Navmode is not implemented!");
    EXPECT_FALSE(k.GetNavmodeState(NAVMODE_HLEVEL));
    k.Attached = true;
    k.ActivateNavmode(NAVMODE_NORMAL);
    EXPECT_EQ(Message(k), "Navmodes are disabled until separation.");
    k.Attached = false;
    k.AutopilotActive = true;
    k.ActivateNavmode(NAVMODE_NORMAL);
    EXPECT_EQ(Message(k), "Manual controls disabled. To enable, use M key.");
    EXPECT_EQ(k.NavOverrideMode, 0);
    k.AutopilotActive = false;

    // Shift+N: off hands the mode to the host, on takes it back.
    k.ActivateNavmode(NAVMODE_RETROGRADE);
    k.ToggleNavOverride();
    EXPECT_EQ(Message(k), "NAVMODES override is disabled");
    EXPECT_TRUE(k.GetNavmodeState(NAVMODE_RETROGRADE));
    EXPECT_EQ(k.NavOverrideMode, 0);
    k.ToggleNavOverride();
    EXPECT_EQ(k.NavOverrideMode, 4);
    EXPECT_FALSE(k.GetNavmodeState(NAVMODE_RETROGRADE));
    k.NavOverrideMode = 9; // the program's modes aren't the host's
    k.ToggleNavOverride();
    EXPECT_EQ(k.NavOverrideMode, 0);
    for (int mode = 1; mode <= 7; ++mode)
        EXPECT_FALSE(k.GetNavmodeState(mode)) << mode;
}

TEST_F(AttitudeTest, MissionClockAndAscentReference) {
    Korvan &k = Load();
    Run(1); // the first step after the creation does nothing
    k.StartMissionClock();
    k.ShowMet = k.ShowClock = true;
    Run(10);
    EXPECT_DOUBLE_EQ(k.MissionTime, 10.0);
    EXPECT_STREQ(oapiDebugString(), "T+10");

    // The nose is on the pitch reference (0, 0, 1), square to the yaw one;
    // the thin air at 200 km has turned it by a few arc seconds.
    EXPECT_NEAR(k.PitchAngle(), M_PI / 2, 1e-4);
    EXPECT_NEAR(k.YawAngle(), 0.0, 1e-4);
    EXPECT_NEAR(k.RollAngle(), 0.0, 1e-4);
    k.PitchProfile = {{PITCH_CONST, 0, 100, 5, 0}, {PITCH_LIN, 100, 200, 10, 20}};
    k.MissionTime = 150;
    EXPECT_NEAR(k.AttitudeStep(), 15 * kRad, 1e-12);
    k.MissionTime = 250; // past the end of both
    EXPECT_EQ(k.AttitudeStep(), 0.0);
    k.AttError.x = k.PitchAngle();
    k.AttitudeControlStep();
    EXPECT_NEAR(k.AttErrorDeg.x, -90.0, 0.01);
    // The capture, above its 150 km target without thrust, latches at once
    // and then holds the level flight path.
    k.OrbitInsertRadius = 6371000.0 + 150000.0;
    k.PitchProfile = {{PITCH_PERI, 0, -1, 10, 5}};
    EXPECT_NEAR(k.AttitudeStep(), 0.0, 1e-3);
    EXPECT_TRUE(k.PeriLatched);
    k.PitchFailed = true;
    k.PitchStuckAngle = 0.2;
    EXPECT_EQ(k.AttitudeStep(), 0.2);
    EXPECT_EQ(k.PitchAngle(), 0.2);
}

} // namespace
