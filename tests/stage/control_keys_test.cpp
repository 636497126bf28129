// The two control modes and the keys: M with its refusals, the keypad taken
// from the host under the autopilot, the stage's engine keys, the modifiers
// of the buffered keys, and the focus walk.
#include "stage_fixture.h"

namespace {

using KeysTest = StageTest;

// A key state with the keys `down` held.
struct Keys {
    char state[256] = {};
    Keys(std::initializer_list<int> down) {
        for (int key : down)
            state[key] = static_cast<char>(0x80);
    }
};

TEST_F(KeysTest, MSwitchesModesUnlessAttachedOrTheProgramIsMissing) {
    Korvan &k = Load({}, true);
    Keys none{};
    EXPECT_EQ(k.clbkConsumeBufferedKey(OAPI_KEY_M, true, none.state), 1);
    EXPECT_FALSE(k.AutopilotActive);
    EXPECT_EQ(Message(k), "Manual controls enabled. To return to autopilot, use M key");
    // Back to the autopilot: a stage without a flight program refuses.
    k.clbkConsumeBufferedKey(OAPI_KEY_M, true, none.state);
    EXPECT_FALSE(k.AutopilotActive);
    EXPECT_EQ(Message(k), "Cannot switch to autopilot: flight program is not set!");
    k.program->steps.push_back(ProgramStep{});
    k.MainEngineFailed = true;
    k.ToggleControlMode();
    EXPECT_EQ(Message(k), "Cannot switch to autopilot: main engine failure!");
    k.MainEngineFailed = false;
    k.ToggleControlMode();
    EXPECT_TRUE(k.AutopilotActive);
    EXPECT_EQ(Message(k), "Manual controls disabled. To enable, use M key");
    // On a carrier neither way is open.
    k.Attached = true;
    k.ToggleControlMode();
    EXPECT_TRUE(k.AutopilotActive);
    EXPECT_EQ(Message(k), "Manual/Autopilot controls can't be toggled until separation!");
    k.AutopilotActive = false;
    k.ToggleControlMode();
    EXPECT_FALSE(k.AutopilotActive);
}

TEST_F(KeysTest, KeypadBelongsToTheAutopilotAndTheEngineKeysToTheStage) {
    Korvan &k = Load({}, true);
    Keys plus{OAPI_KEY_ADD}, minus{OAPI_KEY_SUBTRACT}, both{OAPI_KEY_ADD, OAPI_KEY_MULTIPLY}, none{};
    EXPECT_EQ(k.clbkConsumeDirectKey(plus.state), 1);
    EXPECT_FALSE(k.ullageInProgress);
    EXPECT_EQ(Message(k), "Manual controls disabled. To enable, use M key.");
    EXPECT_EQ(k.clbkConsumeDirectKey(none.state), 0);

    k.AutopilotActive = false;
    EXPECT_EQ(k.clbkConsumeDirectKey(both.state), 1); // keypad + wins
    EXPECT_TRUE(k.ullageInProgress);
    EXPECT_EQ(k.clbkConsumeDirectKey(minus.state), 1); // the shutdown, tested with the engine
    EXPECT_FALSE(k.ullageInProgress);
    // J under the autopilot says why it does nothing.
    k.AutopilotActive = true;
    EXPECT_EQ(k.clbkConsumeBufferedKey(OAPI_KEY_J, true, none.state), 1);
    EXPECT_EQ(Message(k), "Manual controls disabled. To enable, use M key");
}

TEST_F(KeysTest, ModifiersPickTheTableAndUnknownKeysReachTheHost) {
    Korvan &k = Load({}, true);
    Keys ctrlShift{OAPI_KEY_LCONTROL, OAPI_KEY_RSHIFT}, alt{OAPI_KEY_LALT}, ctrl{OAPI_KEY_RCONTROL}, none{};
    EXPECT_EQ(k.clbkConsumeBufferedKey(OAPI_KEY_M, true, ctrlShift.state), 1); // counts as M
    EXPECT_FALSE(k.AutopilotActive);
    EXPECT_EQ(k.clbkConsumeBufferedKey(OAPI_KEY_M, true, alt.state), 0);   // Alt+M is not used
    EXPECT_EQ(k.clbkConsumeBufferedKey(OAPI_KEY_M, false, none.state), 0); // releases pass
    EXPECT_EQ(k.clbkConsumeBufferedKey(OAPI_KEY_Q, true, none.state), 0);
    EXPECT_FALSE(k.AutopilotActive);
    // Ctrl+D without a self-destructor is the host's; Alt+1 shrinks and restores.
    EXPECT_EQ(k.clbkConsumeBufferedKey(OAPI_KEY_D, true, ctrl.state), 0);
    const double size = k.GetSize();
    EXPECT_EQ(k.clbkConsumeBufferedKey(OAPI_KEY_1, true, alt.state), 1);
    EXPECT_EQ(k.GetSize(), 1.0);
    k.OnFocusLost(nullptr); // leaving the focus gives the size back
    EXPECT_EQ(k.GetSize(), size);
}

TEST_F(KeysTest, TabWalksTheFocusOverFrameworkVesselsThatTakeIt) {
    Korvan &a = Load({}, false, "A");
    Keys shift{OAPI_KEY_LSHIFT}, none{};
    EXPECT_EQ(a.clbkConsumeBufferedKey(OAPI_KEY_TAB, true, none.state), 1); // alone: nothing, but consumed
    Korvan &b = Load({}, false, "B");
    Korvan &c = Load({}, false, "C");
    b.SetEnableFocus(false);
    world->SetFocus(world->FindVessel("A"));
    a.clbkConsumeBufferedKey(OAPI_KEY_TAB, true, shift.state); // forward, past B
    EXPECT_EQ(oapiGetFocusObject(), c.GetHandle());
    c.clbkConsumeBufferedKey(OAPI_KEY_TAB, true, shift.state); // wraps to A
    EXPECT_EQ(oapiGetFocusObject(), a.GetHandle());
    a.clbkConsumeBufferedKey(OAPI_KEY_TAB, true, none.state); // backward, wrapping to C
    EXPECT_EQ(oapiGetFocusObject(), c.GetHandle());
}

} // namespace
