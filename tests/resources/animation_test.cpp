// Animation components as the host receives them, and the controllers that
// move their states.
#include <cmath>

#include "anim_fixture.h"
#include "numbers.h"

using ::testing::ElementsAre;

namespace {

const char *kComponents = "  Door   ROTATE    Body  (0,0,1)  xplus    90  0    1  0.25 NEW   NONE   1 2\n"
                          "  Slide  TRANSLATE Arm   (0,0,2)  xyz0     0   0.5  1  0    Door  NONE   3\n"
                          "  Hinge  ROTATE    Body  xyz0     yplus    10  0    1  0    NEW   NONE   -1\n"
                          "  Limb   SCALE     Body  (1,0,0)  (2,2,2)  0   0    1  0    NEW   Hinge\n"
                          "  Early  ROTATE    Body  xyz0     xplus    5   0    1  0    Late  Late   7\n"
                          "  Late   ROTATE    Body  xyz0     xplus    5   0    1  0    NEW   NONE   8\n"
                          "  Ghost  ROTATE    Nowhere xyz0   xplus    5   0    1  0    NEW   NONE\n";

// DoorCtl: keys A down, Shift+S up; Wheel and Limber share the toggle Ctrl+D;
// Held moves while F or G is held.
const char *kControls =
    "  DoorCtl  Door   0.5 0   false 30 false false 31 false true  false Whirr Clunk Clank\n"
    "  Twin     Door   0.2 0.1 false\n"
    "  Wheel    Hinge  1.0 0   true  32 true  false 32 true  false false\n"
    "  Limber   Limb   1.0 0   false 32 true  false 32 true  false false\n"
    "  Held     Late   0.5 0   false 33 false false 34 false false true\n"
    "  Lost     Nowhere 1  0   false\n";

} // namespace

TEST_F(AnimTest, ComponentsReachTheHostWithTheirGroupsAndLinks) {
    AnimProbe &p = LoadAnimated(kComponents, kControls);
    hullhost::Vessel &v = Host();
    const ANIM_REC &door = *p.AnimTable.Find("Door");
    const ANIM_REC &slide = *p.AnimTable.Find("Slide");

    // Slide joins Door's animation; a name standing later in the table, or
    // none at all, gives a new animation without a parent.
    ASSERT_EQ(v.animations.size(), 6u);
    EXPECT_EQ(slide.animation, door.animation);
    const hullhost::Animation &shared = *v.animations[door.animation];
    EXPECT_DOUBLE_EQ(shared.defaultState, 0.25);
    ASSERT_EQ(shared.components.size(), 2u);
    EXPECT_EQ(shared.components[0]->Handle(), door.component);
    EXPECT_EQ(shared.components[1]->Handle(), p.FindAnimComponent("Slide"));
    EXPECT_DOUBLE_EQ(shared.components[1]->state0, 0.5);

    // The rotation: reference, axis, angle in radians, the groups in the store.
    ASSERT_NE(door.rotate, nullptr);
    EXPECT_EQ(shared.components[0]->transform, door.rotate);
    EXPECT_THAT(Of(door.rotate->ref, door.rotate->axis), Are({0, 0, 1, 1, 0, 0}));
    EXPECT_FLOAT_EQ(door.rotate->angle, static_cast<float>(PI / 2));
    EXPECT_EQ(door.rotate->grp, p.AnimGroupStore);
    EXPECT_EQ(door.rotate->ngrp, 2u);
    ASSERT_NE(slide.translate, nullptr);
    EXPECT_EQ(slide.translate->grp, p.AnimGroupStore + 2);
    EXPECT_EQ(slide.translate->mesh, p.MeshTable.Find("Arm")->index);
    EXPECT_DOUBLE_EQ(slide.translate->shift.z, 2.0);
    EXPECT_THAT(std::vector<uint32_t>(p.AnimGroupStore, p.AnimGroupStore + p.AnimGroupCount),
                ElementsAre(1u, 2u, 3u, 7u, 8u));

    // A parent node that moves no group, and its child without groups.
    const ANIM_REC &hinge = *p.AnimTable.Find("Hinge");
    const ANIM_REC &limb = *p.AnimTable.Find("Limb");
    EXPECT_NE(hinge.groupArray, nullptr);
    EXPECT_EQ(hinge.rotate->ngrp, 0u);
    EXPECT_EQ(limb.groupArray, nullptr);
    ASSERT_NE(limb.scale, nullptr);
    EXPECT_DOUBLE_EQ(limb.scale->scale.y, 2.0);
    const hullhost::AnimationComponent &limbHost = *v.animations[limb.animation]->components[0];
    EXPECT_EQ(limbHost.parent->Handle(), hinge.component);

    const ANIM_REC &early = *p.AnimTable.Find("Early");
    EXPECT_NE(early.animation, p.AnimTable.Find("Late")->animation);
    EXPECT_EQ(v.animations[early.animation]->components[0]->parent, nullptr);
    // Without its mesh a record has an animation but no component.
    EXPECT_EQ(p.AnimTable.Find("Ghost")->component, nullptr);
    EXPECT_EQ(p.FindAnimComponent("Nobody"), nullptr);
}

TEST_F(AnimTest, ControllersTakeTheirAnimationAndRunUnderTheUpdater) {
    AnimProbe &p = LoadAnimated(kComponents, kControls);
    const ANIM_CTRL_REC &door = *Ctl("DoorCtl");
    EXPECT_EQ(door.animIndex, 0);
    EXPECT_EQ(door.animation, p.AnimTable.Find("Door")->animation);
    EXPECT_THAT((Numbers{door.state, door.vel0, door.target}), Are({0.25, 0.5, -1}));
    EXPECT_EQ(door.direction, 0);
    EXPECT_EQ(door.sndPlusStop, "Clank");
    EXPECT_TRUE(Ctl("Wheel")->noHardStop);
    EXPECT_TRUE(Ctl("Held")->keepKDown);
    EXPECT_EQ(Ctl("Lost")->animIndex, -1);
    EXPECT_TRUE(p.HasUpdater(&HULLKIT::H_ANIM));

    // 0.75 of the range at 0.5 per second: the door stands at its end within
    // two seconds of frames, in the record and in the host.
    Ctl("DoorCtl")->direction = 1;
    env.Run(2.0, 0.25);
    EXPECT_EQ(door.direction, 0);
    EXPECT_THAT((Numbers{door.state, HostState(&door)}), Are({1, 1}));

    // A controller of an animation that doesn't exist never moves.
    Ctl("Lost")->direction = 1;
    Step(Ctl("Lost"), 1.0);
    EXPECT_DOUBLE_EQ(Ctl("Lost")->state, 0.0);
}

// Without wrap a controller stops at its ends; with it, it goes round both ways.
TEST_F(AnimTest, ControllersStopAtTheirEndsOrWrap) {
    AnimProbe &p = LoadAnimated(kComponents, kControls);
    ANIM_CTRL_REC *c = Ctl("Twin");
    c->direction = 1;
    // Accelerating from 0.2 by 0.1 per second squared, in steps of 0.5 s.
    Step(c, 0.5);
    EXPECT_THAT((Numbers{c->vel, c->state}), Are({0.25, 0.375}));
    Step(c, 0.5, 3);
    EXPECT_NEAR(c->state, 0.9, 1e-12);
    Step(c, 0.5);
    EXPECT_THAT((Numbers{c->state, c->vel}), Are({1, 0.2}));
    EXPECT_EQ(c->direction, 0);
    // Both controllers of the animation see its state; the end stop is
    // reported once, and a controller at rest at its end reports nothing.
    EXPECT_DOUBLE_EQ(Ctl("DoorCtl")->state, 1.0);
    EXPECT_THAT(p.hooks, ElementsAre("moved Twin", "moved Twin", "moved Twin", "moved Twin", "stop Twin",
                                     "moved Twin"));
    p.hooks.clear();
    c->direction = 1;
    Step(c, 0.5);
    EXPECT_TRUE(p.hooks.empty());

    c->direction = -1;
    Step(c, 10.0);
    EXPECT_THAT((Numbers{c->state, HostState(c)}), Are({0, 0}));
    EXPECT_THAT(p.hooks, ElementsAre("stop Twin", "moved Twin"));

    ANIM_CTRL_REC *wheel = Ctl("Wheel");
    wheel->state = 0.9;
    wheel->direction = 1;
    Step(wheel, 0.2);
    EXPECT_NEAR(wheel->state, 0.1, 1e-12);
    EXPECT_EQ(wheel->direction, 1);
    wheel->direction = -1;
    Step(wheel, 0.3);
    EXPECT_THAT((Numbers{wheel->state, HostState(wheel)}), Are({0.8, 0.8}));
}

TEST_F(AnimTest, TargetsStopTheControllerTheShortWayRound) {
    AnimProbe &p = LoadAnimated(kComponents, kControls);
    ANIM_CTRL_REC *door = Ctl("DoorCtl");
    p.SetControllerTarget(door, 0.6, false);
    EXPECT_EQ(door->direction, 1);
    Step(door, 0.5);
    EXPECT_DOUBLE_EQ(door->state, 0.5);
    Step(door, 0.5);
    EXPECT_THAT((Numbers{door->state, door->target}), Are({0.6, -1}));
    EXPECT_EQ(door->direction, 0);
    EXPECT_EQ(std::vector(p.hooks.end() - 2, p.hooks.end()),
              (std::vector<std::string>{"target DoorCtl", "moved DoorCtl"}));
    // A target equal to the state leaves the direction alone.
    door->direction = -1;
    p.SetControllerTarget(door, 0.6, false);
    EXPECT_EQ(door->direction, -1);

    // Across the wrap: from 0.9 up to 0.1 and from 0.1 down to 0.9.
    ANIM_CTRL_REC *wheel = Ctl("Wheel");
    wheel->state = 0.9;
    p.SetControllerTarget(wheel, 0.1, false);
    EXPECT_EQ(wheel->direction, 1);
    wheel->state = 0.1;
    p.SetControllerTarget(wheel, 0.9, false);
    EXPECT_EQ(wheel->direction, -1);
    wheel->state = 0.1;
    p.SetControllerTarget(wheel, 0.3, false);
    EXPECT_EQ(wheel->direction, 1);
    p.SetControllerTarget(nullptr, 0.3, true);
}

TEST_F(AnimTest, ImmediateDrivingTakesTheControllerOutOfTheUpdater) {
    AnimProbe &p = LoadAnimated(kComponents, kControls);
    ANIM_CTRL_REC *door = Ctl("DoorCtl");
    p.SimStep = 0.1;
    p.SetControllerDirection(door, 1, true);
    EXPECT_THAT((Numbers{door->state, HostState(door)}), Are({0.3, 0.3}));
    EXPECT_TRUE(door->externalDrive);

    // The updater passes it over; only further calls move it.
    p.H_ANIM();
    EXPECT_DOUBLE_EQ(door->state, 0.3);
    p.SetControllerTarget(door, 0.0, true);
    EXPECT_THAT((Numbers{door->state, HostState(door)}), Are({0.25, 0.25}));
    p.SetControllerDirection(nullptr, 1, true);
}
