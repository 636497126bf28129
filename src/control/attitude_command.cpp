// The attitude loop's command: the law on each axis, or the user's keypad
// input, which replaces the computed command whole.
#include "control/control_law.h"
#include "frame/hullkit.h"

namespace {

constexpr double kDeg = 57.29577951308232;

AxisTuning Tuning(const AttitudeControlBlock &c, int axis) {
    return {c.ErrorLimit[axis],    c.RateLimitFar[axis],  c.CoastRateFar[axis],
            c.RateLimitNear[axis], c.CoastRateNear[axis], c.BlendNear[axis]};
}

} // namespace

void HULLKIT::RunControlLaw() {
    for (int axis = 0; axis < 3; ++axis) {
        const AxisOutcome out = ControlAxis(Tuning(AttControls, axis), AttError[axis], AngVel[axis]);
        AttCommand[axis] = out.command;
        ClampedError[axis] = out.clampedError;
        ClampedErrorDeg[axis] = out.clampedError * kDeg;
        ActiveRateLimit[axis] = out.rateLimit;
        ActiveCoastRate[axis] = out.coastRate;
        ActiveBlend[axis] = out.blend;
    }
}

void HULLKIT::ReadManualInput() {
    if (!HasFocus)
        return;
    const auto level = [this](THGROUP_TYPE type) {
        return GetManualControlLevel(type, MANCTRL_ATTMODE, MANCTRL_ANYDEVICE);
    };
    const VECTOR3 input{level(THGROUP_ATT_PITCHUP) - level(THGROUP_ATT_PITCHDOWN),
                        level(THGROUP_ATT_YAWRIGHT) - level(THGROUP_ATT_YAWLEFT),
                        level(THGROUP_ATT_BANKRIGHT) - level(THGROUP_ATT_BANKLEFT)};
    if (length(input) > 0.0)
        AttCommand = input;
}
