// The two keyboard callbacks through which every key of the vessel arrives,
// and the key tables behind them.
#include "frame/hullkit.h"

namespace {

// The keypad keys taken from the host while the autopilot flies.
constexpr int kKeypadKeys[] = {OAPI_KEY_MULTIPLY, OAPI_KEY_SUBTRACT, OAPI_KEY_DIVIDE,  OAPI_KEY_ADD,
                               OAPI_KEY_NUMPAD1,  OAPI_KEY_NUMPAD3,  OAPI_KEY_NUMPAD2, OAPI_KEY_NUMPAD8,
                               OAPI_KEY_NUMPAD4,  OAPI_KEY_NUMPAD6};

} // namespace

int HULLKIT::clbkConsumeDirectKey(char *kstate) {
    if (!HaveAutopilot || !AutopilotActive)
        return 0;
    for (int code : kKeypadKeys)
        if (KEYDOWN(kstate, code)) {
            ShowMessage("Manual controls disabled. To enable, use M key.");
            return 1;
        }
    return 0;
}

int HULLKIT::clbkConsumeBufferedKey(DWORD key, bool down, char *kstate) {
    if (!down)
        return 0;
    if (AnimKeyEvent(key, kstate))
        return 1;
    const bool ctrl = KEYMOD_CONTROL(kstate), shift = KEYMOD_SHIFT(kstate), alt = KEYMOD_ALT(kstate);
    if (ctrl && !shift && !alt)
        return KeyWithControl(key);
    if (shift && !ctrl && !alt)
        return KeyWithShift(key);
    if (alt && !ctrl && !shift)
        return KeyWithAlt(key);
    return KeyPlain(key);
}

int HULLKIT::KeyWithControl(DWORD key) {
    switch (key) {
    case OAPI_KEY_F:
        ToggleSecondaryFocus();
        return 1;
    case OAPI_KEY_D:
        if (!SelfDestructor)
            return 0;
        OnCrash(false);
        return 1;
    case OAPI_KEY_J:
        ToggleAutoSwitchFocus();
        return 1;
    case OAPI_KEY_A:
        RaiseAlert();
        return 1;
    default:
        return 0;
    }
}

int HULLKIT::KeyWithShift(DWORD key) {
    switch (key) {
    case OAPI_KEY_TAB:
        StepFocus(true);
        return 1;
    case OAPI_KEY_N:
        ToggleNavOverride();
        return 1;
    default:
        return 0;
    }
}

int HULLKIT::KeyWithAlt(DWORD key) {
    if (key != OAPI_KEY_1)
        return 0;
    ToggleSize();
    return 1;
}

int HULLKIT::KeyPlain(DWORD key) {
    switch (key) {
    case OAPI_KEY_TAB:
        StepFocus(false);
        return 1;
    case OAPI_KEY_C:
        if (oapiCameraInternal())
            NextCamera();
        return 1;
    case OAPI_KEY_M:
        if (HaveAutopilot)
            ToggleControlMode();
        return 1;
    case OAPI_KEY_J:
        if (AutopilotActive)
            ShowMessage("Manual controls disabled. To enable, use M key");
        else
            JettisonNext();
        return 1;
    default:
        return 0;
    }
}
