// Controllers driven by the vessel itself rather than by keys: to a target
// state or in a direction. An immediate call steps the controller at once and
// from then on keeps H_ANIM off it.
#include <cmath>

#include "frame/hullkit.h"

namespace {

void StepNow(HULLKIT &vessel, ANIM_CTRL_REC *controller) {
    controller->externalDrive = false;
    vessel.StepController(controller);
    controller->externalDrive = true;
}

} // namespace

void HULLKIT::SetControllerTarget(ANIM_CTRL_REC *controller, double value, bool immediate) {
    if (!controller)
        return;
    controller->target = value;
    if (controller->target == controller->state)
        return;
    const double delta = controller->target - controller->state;
    if (!controller->noHardStop)
        controller->direction = delta < 0.0 ? -1 : 1;
    else // the shorter way round, through the wrap if need be
        controller->direction =
            delta * (std::fabs(delta) - (controller->to - controller->from) / 2.0) < 0.0 ? 1 : -1;
    if (immediate)
        StepNow(*this, controller);
}

void HULLKIT::SetControllerDirection(ANIM_CTRL_REC *controller, int32_t direction, bool immediate) {
    if (!controller)
        return;
    controller->direction = direction;
    if (immediate)
        StepNow(*this, controller);
}
