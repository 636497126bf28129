// The main engine of the stage: ullage, ignition, the firing count, every
// refusal, shutdown, the scheduled failure and its reload, and the gimbal.
#include <cmath>

#include "stage_fixture.h"

namespace {

using EngineTest = StageTest;

TEST_F(EngineTest, UllageCountsDownThenIgnitesAndDropsTheTimeAcceleration) {
    Korvan &k = Load();
    k.OnFocusGained(nullptr);
    world->accel = 10.0;
    Run(1.0, 0.1); // the first frame of a vessel does nothing
    k.IgniteMain();
    EXPECT_EQ(Message(k), "Ullage started. Ignition in 10 sec");
    EXPECT_TRUE(k.ullageInProgress);
    // Held down, the key asks again every frame: nothing more happens.
    k.SetThrusterGroupLevel(k.groupFwd, 0.0);
    k.ShowMessage("");
    k.IgniteMain();
    EXPECT_EQ(Message(k), "");
    // 1 s frames: the countdown reaches 0 after ten and ends below 0 at the eleventh.
    world->accel = 10.0;
    for (int frame = 1; frame <= 10; ++frame) {
        world->Frame(0.1);
        ASSERT_TRUE(k.ullageInProgress) << frame;
        EXPECT_EQ(GroupLevel(k, "Fwd"), 1.0);
    }
    EXPECT_NEAR(k.ullageLeft, 0.0, 1e-9);
    world->Frame(0.1);
    EXPECT_FALSE(k.ullageInProgress);
    EXPECT_EQ(GroupLevel(k, "Fwd"), 0.0);
    EXPECT_EQ(GroupLevel(k, "Main"), 1.0);
    EXPECT_EQ(k.ignitionsUsed, 1);
    EXPECT_EQ(world->accel, 1.0);
    world->Frame(1.0);
    EXPECT_TRUE(k.mainRunning);
    // Asked again while it burns: no message, no change.
    k.ShowMessage("");
    k.IgniteMain();
    EXPECT_EQ(Message(k), "");
    k.ShutdownMain();
    EXPECT_EQ(Message(k), "Main engine shutdown. 29 engine firings left.");
    EXPECT_EQ(GroupLevel(k, "Main"), 0.0);
}

TEST_F(EngineTest, EveryRefusalShowsItsTextAndChangesNothing) {
    Korvan &k = Load();
    k.OnFocusGained(nullptr);
    const TANK_REC *main = k.TankTable.Find("Main");
    ASSERT_NE(main, nullptr);
    const auto refused = [&](const char *text) {
        k.ShowMessage("");
        k.IgniteMain();
        EXPECT_EQ(Message(k), text);
        EXPECT_FALSE(k.ullageInProgress) << text;
        EXPECT_EQ(k.ignitionsUsed, 0) << text;
    };
    k.maxIgnitions = 0;
    refused("Ignitions limit for main engine is reached!");
    k.maxIgnitions = 30;
    k.SetPropellantMass(main->handle, 0.4999);
    refused("Main tank depleted!");
    k.SetPropellantMass(main->handle, 0.5);
    k.sozDropped = true;
    refused("Main engine ignition is not possible without SOZ!");
    k.sozDropped = false;
    k.SetPropellantMass(k.rcsTank, 5.0999);
    refused("Not enough ullage fuel for main engine ignition!");
    k.SetPropellantMass(k.rcsTank, 5.1);
    const PROPELLANT_HANDLE rcs = k.rcsTank;
    k.rcsTank = nullptr; // as if the configuration had no RCS tank
    refused("Main engine ignition is not possible: the stage has no main engine!");
    k.rcsTank = rcs;
    k.SetThrusterGroupLevel(k.groupMain, 0.5); // lit, and the watch hasn't seen it yet
    refused("Main engine firing is already in progress.");
    k.SetThrusterGroupLevel(k.groupMain, 0.0);
    // The strict comparisons let exactly 0.5 kg and 5.1 kg pass.
    k.IgniteMain();
    EXPECT_TRUE(k.ullageInProgress);
}

TEST_F(EngineTest, ShutdownTextsAndAnAbortedUllageThatCostsNoFiring) {
    Korvan &k = Load();
    k.ShutdownMain(); // nothing to stop: nothing said
    EXPECT_EQ(Message(k), "");
    k.IgniteMain();
    Run(2.0);
    k.ShutdownMain();
    EXPECT_EQ(Message(k), "Main engine shutdown. 30 engine firings left.");
    EXPECT_EQ(k.ignitionsUsed, 0);
    EXPECT_FALSE(k.HasUpdater(static_cast<VesselCall>(&Korvan::K_IGNITE)));
    EXPECT_EQ(GroupLevel(k, "Fwd"), 0.0);

    k.IgniteMain();
    k.sozDropped = true; // gone during the ullage: no firing follows this one
    k.ShutdownMain();
    EXPECT_EQ(Message(k), "Main engine shutdown");
    k.sozDropped = false;
    k.MainEngineFailed = true;
    k.IgniteMain();
    k.ShutdownMain();
    EXPECT_EQ(Message(k), "Main engine ignition failure!");
}

TEST_F(EngineTest, ScheduledFailureStrikesItsIgnitionAndSurvivesAReload) {
    Korvan &k = Load({"IGNITE 0 1", "IGN_FAIL 2"});
    EXPECT_FALSE(k.MainEngineFailed);
    Run(1.0);
    const auto fire = [&] {
        k.IgniteMain();
        Run(12.0); // a timer list that empties itself may hold the countdown back a step
    };
    fire(); // the second ignition works
    EXPECT_EQ(GroupLevel(k, "Main"), 1.0);
    k.ShutdownMain();
    Run(1.0); // the watch sees the engine stopped
    fire();
    EXPECT_EQ(k.ignitionsUsed, 3);
    EXPECT_TRUE(k.MainEngineFailed);
    EXPECT_EQ(GroupLevel(k, "Main"), 0.0);
    EXPECT_EQ(Message(k), "Ignition failure detected!");

    Korvan &again = Load({"IGNITE 0 3", "IGN_FAIL 2"}, false, "Korvan-2");
    EXPECT_TRUE(again.MainEngineFailed);
}

TEST_F(EngineTest, SaveDuringUllageGoesOnAfterReload) {
    Korvan &k = Load();
    Run(1.0);
    k.IgniteMain();
    Run(4.0);
    const std::vector<std::string> saved = Saved(k);
    EXPECT_THAT(saved, ::testing::Contains("IGNITE 1 0"));
    EXPECT_THAT(saved, ::testing::Contains("OPERATE 6.0000"));

    Korvan &again = Load(saved, false, "Korvan-2");
    EXPECT_TRUE(again.ullageInProgress);
    EXPECT_TRUE(again.HasUpdater(static_cast<VesselCall>(&Korvan::K_IGNITE)));
    Run(8.0); // one frame is skipped after creation, and the end is below 0
    EXPECT_EQ(again.ignitionsUsed, 1);
    EXPECT_EQ(GroupLevel(again, "Main"), 1.0);
}

TEST_F(EngineTest, GimbalDeflectsTheThrustByHalfTheControlAngle) {
    Korvan &k = Load();
    ASSERT_NE(k.pitchControl, nullptr);
    VECTOR3 dir;
    k.UpdateMainGimbal(k.pitchControl);
    k.GetThrusterDir(k.mainThruster, dir);
    EXPECT_NEAR(dir.z, 1.0, 1e-12);
    // The pitch control moves under the animation updater; the yaw one is set.
    k.yawControl->state = -1.0;
    k.SetControllerTarget(k.pitchControl, 0.5, false);
    Run(3.0, 0.1);
    ASSERT_EQ(k.pitchControl->state, 0.5);
    k.GetThrusterDir(k.mainThruster, dir);
    const double rad = 3.0 * 0.017453292519943295;
    EXPECT_NEAR(dir.y, -std::sin(0.5 * rad) / 2.0, 1e-12);
    EXPECT_NEAR(dir.x, std::sin(rad) / 2.0, 1e-12);
    EXPECT_NEAR(length(dir), 1.0, 1e-12);
}

} // namespace
