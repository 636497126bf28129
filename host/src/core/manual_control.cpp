#include "manual_control.h"

namespace hullhost {

namespace {

struct KeyBinding {
    THGROUP_TYPE group;
    int key;
    bool rotational;
};

// Rotation: 2/8 pitch up/down, 1/3 yaw left/right, 4/6 bank left/right.
// Translation: 8/2 up/down, 1/3 left/right, 6/9 forward/back.
constexpr KeyBinding kBindings[] = {
    {THGROUP_ATT_PITCHUP, OAPI_KEY_NUMPAD2, true},  {THGROUP_ATT_PITCHDOWN, OAPI_KEY_NUMPAD8, true},
    {THGROUP_ATT_YAWLEFT, OAPI_KEY_NUMPAD1, true},  {THGROUP_ATT_YAWRIGHT, OAPI_KEY_NUMPAD3, true},
    {THGROUP_ATT_BANKLEFT, OAPI_KEY_NUMPAD4, true}, {THGROUP_ATT_BANKRIGHT, OAPI_KEY_NUMPAD6, true},
    {THGROUP_ATT_UP, OAPI_KEY_NUMPAD8, false},      {THGROUP_ATT_DOWN, OAPI_KEY_NUMPAD2, false},
    {THGROUP_ATT_LEFT, OAPI_KEY_NUMPAD1, false},    {THGROUP_ATT_RIGHT, OAPI_KEY_NUMPAD3, false},
    {THGROUP_ATT_FORWARD, OAPI_KEY_NUMPAD6, false}, {THGROUP_ATT_BACK, OAPI_KEY_NUMPAD9, false},
};

bool ModeAllows(bool rotational, int attitudeMode, DWORD mode) {
    switch (mode) {
    case MANCTRL_ANYMODE:
        return true;
    case MANCTRL_ROTMODE:
        return rotational;
    case MANCTRL_LINMODE:
        return !rotational;
    default: // the vessel's current mode
        return rotational ? attitudeMode == RCS_ROT : attitudeMode == RCS_LIN;
    }
}

} // namespace

double ManualControlLevel(const char *keyState, int attitudeMode, THGROUP_TYPE group, DWORD mode) {
    for (const auto &b : kBindings)
        if (b.group == group && ModeAllows(b.rotational, attitudeMode, mode) && KEYDOWN(keyState, b.key))
            return 1.0;
    return 0.0;
}

} // namespace hullhost
