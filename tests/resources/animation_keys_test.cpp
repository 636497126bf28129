// The controllers' keys: presses with and without modifiers, toggles shared
// by several controllers, and keys that move a controller only while held.
#include "anim_fixture.h"

using ::testing::ElementsAre;

namespace {

const char *kComponents = "  Door  ROTATE Body xyz0 xplus 90 0 1 0 NEW NONE 1\n"
                          "  Lid   ROTATE Body xyz0 xplus 90 0 1 0 NEW NONE 2\n"
                          "  Hatch ROTATE Body xyz0 xplus 90 0 1 0 NEW NONE 3\n";

// Door: A down, Shift+S up. Lid and Hatch: the toggle Ctrl+D. Crank: F down,
// G up, only while held.
const char *kControls = "  DoorCtl Door  0.5 0 false 30 false false 31 false true false\n"
                        "  LidCtl  Lid   1.0 0 false 32 true  false 32 true  false false\n"
                        "  Hatch   Hatch 1.0 0 false 32 true  false 32 true  false false\n"
                        "  Crank   Door  0.5 0 false 33 false false 34 false false true\n";

constexpr DWORD kA = 30, kS = 31, kD = 32, kF = 33, kG = 34;

class AnimKeys : public AnimTest {
  protected:
    AnimProbe &Load() { return LoadAnimated(kComponents, kControls); }
    // The key state with only the listed keys down.
    char *Down(std::initializer_list<int> held) {
        std::fill(std::begin(kstate), std::end(kstate), 0);
        for (int k : held)
            kstate[k] = static_cast<char>(0x80);
        return kstate;
    }
    // Presses `key` with the listed keys held.
    int Press(DWORD key, std::initializer_list<int> held = {}) {
        return probe->AnimKeyEvent(key, Down(held));
    }
    void Hold(std::initializer_list<int> held) { probe->DriveHeldKeys(Down(held)); }
    char kstate[256];
};

} // namespace

TEST_F(AnimKeys, KeysSetTheDirectionOnlyWithTheirModifiers) {
    AnimProbe &p = Load();
    ANIM_CTRL_REC *door = Ctl("DoorCtl");
    EXPECT_EQ(Press(kA, {OAPI_KEY_LSHIFT}), 0);
    EXPECT_EQ(Press(kS), 0);
    EXPECT_EQ(Press(kS, {OAPI_KEY_RSHIFT, OAPI_KEY_LCONTROL}), 0);
    EXPECT_EQ(Press(50), 0);
    EXPECT_EQ(door->direction, 0);

    EXPECT_EQ(Press(kS, {OAPI_KEY_RSHIFT}), 1);
    EXPECT_EQ(door->direction, 1);
    // A press on a moving controller keeps its speed and its target.
    door->vel = 0.7;
    door->target = 0.4;
    EXPECT_EQ(Press(kA), 1);
    EXPECT_EQ(door->direction, -1);
    EXPECT_DOUBLE_EQ(door->vel, 0.7);
    EXPECT_DOUBLE_EQ(door->target, 0.4);

    // A controller that the vessel refuses lets the key pass.
    p.refused = "DoorCtl";
    EXPECT_EQ(Press(kS, {OAPI_KEY_LSHIFT}), 0);
    EXPECT_EQ(door->direction, -1);
}

TEST_F(AnimKeys, AToggleKeyRunsEveryControllerThatSharesIt) {
    AnimProbe &p = Load();
    ANIM_CTRL_REC *lid = Ctl("LidCtl");
    ANIM_CTRL_REC *hatch = Ctl("Hatch");
    hatch->state = 1.0;
    EXPECT_EQ(Press(kD), 0);
    EXPECT_EQ(lid->direction, 0);

    // At its upper end a controller runs down, anywhere else up.
    EXPECT_EQ(Press(kD, {OAPI_KEY_RCONTROL}), 0);
    EXPECT_EQ(lid->direction, 1);
    EXPECT_EQ(hatch->direction, -1);
    hatch->state = 0.5;
    p.refused = "LidCtl";
    lid->direction = 0;
    Press(kD, {OAPI_KEY_LCONTROL});
    EXPECT_EQ(lid->direction, 0);
    EXPECT_EQ(hatch->direction, 1);

    // A controller that moves only while its key is held takes no presses.
    EXPECT_EQ(Press(kF), 0);
    EXPECT_EQ(Ctl("Crank")->direction, 0);
}

TEST_F(AnimKeys, HeldKeysMoveTheirControllerOnlyWhileDown) {
    AnimProbe &p = Load();
    ANIM_CTRL_REC *crank = Ctl("Crank");
    Hold({kF, kG});
    EXPECT_EQ(crank->direction, -1);
    Hold({kG});
    EXPECT_EQ(crank->direction, 1);
    Hold({kA});
    EXPECT_EQ(crank->direction, 0);
    EXPECT_EQ(Ctl("DoorCtl")->direction, 0);

    // Under the autopilot the keys are refused with a message, and a release
    // doesn't stop what the autopilot drives.
    p.HaveAutopilot = p.AutopilotActive = true;
    crank->direction = 1;
    Hold({kF});
    EXPECT_EQ(crank->direction, 1);
    EXPECT_THAT(p.messages, ElementsAre("Manual controls disabled. To enable, use M key."));
    Hold({});
    EXPECT_EQ(crank->direction, 1);
}
