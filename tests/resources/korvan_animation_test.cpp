// The stage's engine gimbal as the host holds it after loading: two rotations
// of the nozzle, the yaw hung on the pitch, driven by their controls.
#include "fleet_fixture.h"

using ::testing::ElementsAre;
using KorvanGimbal = FleetTest;

TEST_F(KorvanGimbal, PitchAndYawTurnTheNozzleOneUnderTheOther) {
    HULLKIT &k = LoadKorvan();
    const ANIM_REC &pitch = *k.AnimTable.Find("MainPitch");
    const ANIM_REC &yaw = *k.AnimTable.Find("MainYaw");
    ASSERT_NE(pitch.rotate, nullptr);
    ASSERT_NE(yaw.rotate, nullptr);
    EXPECT_NE(pitch.animation, yaw.animation);
    EXPECT_EQ(pitch.rotate->ngrp, 0u);
    EXPECT_THAT(k.AnimTable.GetIntList("MainYaw", "Groups"), ElementsAre(4, 5));
    EXPECT_THAT(std::vector<UINT>(yaw.rotate->grp, yaw.rotate->grp + yaw.rotate->ngrp), ElementsAre(4u, 5u));
    EXPECT_EQ(pitch.rotate->axis.x, 1.0);
    EXPECT_EQ(yaw.rotate->axis.y, 1.0);
    EXPECT_EQ(yaw.rotate->ref.z, -1.0); // the gimbal point

    const hullhost::Animation &hostYaw = *vessel->animations.at(yaw.animation);
    ASSERT_EQ(hostYaw.components.size(), 1u);
    ASSERT_NE(hostYaw.components[0]->parent, nullptr);
    EXPECT_EQ(hostYaw.components[0]->parent->Handle(), pitch.component);
    EXPECT_EQ(hostYaw.components[0]->state0, -1.0);

    // The controls start centred in their range of -1 to 1.
    ANIM_CTRL_REC *pitchControl = k.AnimCtrlTable.Find("acMainPitch");
    ANIM_CTRL_REC *yawControl = k.AnimCtrlTable.Find("acMainYaw");
    ASSERT_NE(pitchControl, nullptr);
    ASSERT_NE(yawControl, nullptr);
    EXPECT_EQ(pitchControl->animation, pitch.animation);
    EXPECT_EQ(pitchControl->from, -1.0);
    EXPECT_EQ(pitchControl->state, 0.0);

    // The module's own updater moves a control over the frames (the first
    // frame after creation is skipped): 2 per second over 0.1 s.
    pitchControl->direction = 1;
    world_->Frame(0.1);
    world_->Frame(0.1);
    EXPECT_DOUBLE_EQ(vessel->animations.at(pitch.animation)->state, 0.2);

    // One immediate step toward a command.
    k.SimStep = 0.1;
    k.SetControllerTarget(yawControl, -0.5, true);
    EXPECT_DOUBLE_EQ(hostYaw.state, -0.2);
    EXPECT_DOUBLE_EQ(vessel->animations.at(pitch.animation)->state, 0.2);
}
