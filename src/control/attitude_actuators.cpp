// The attitude command, applied twice: to the attitude thruster groups and to
// the gimbal controllers of the main engine, whether it burns or not.
#include <cmath>

#include "frame/hullkit.h"

void HULLKIT::ApplyThrusters() {
    const THGROUP_HANDLE negative[3] = {groupPitchDown, groupYawLeft, groupRollLeft};
    const THGROUP_HANDLE positive[3] = {groupPitchUp, groupYawRight, groupRollRight};
    for (int axis = 0; axis < 3; ++axis) {
        const double command = AttCommand[axis];
        if (negative[axis])
            SetThrusterGroupLevel(negative[axis], command < 0.0 ? std::fabs(command) : 0.0);
        if (positive[axis])
            SetThrusterGroupLevel(positive[axis], command > 0.0 ? command : 0.0);
    }
}

void HULLKIT::ApplyGimbal() {
    SetControllerTarget(pitchControl, AttCommand.x, true);
    SetControllerTarget(yawControl, AttCommand.y, true);
    SetControllerTarget(rollControl, AttCommand.z, true);
}
