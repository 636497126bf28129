// The animation controllers' step: speed, end stops or wrap, target, and the
// new state in the host and in every controller of the same animation.
#include "frame/hullkit.h"

namespace {

constexpr int kSoundOnce = 0;
constexpr int kSoundLoop = 1;
constexpr int kSoundStop = 3;
constexpr int kFullVolume = 255;

} // namespace

void HULLKIT::H_ANIM() {
    for (int32_t i = 0; i < AnimCtrlTable.Count(); ++i)
        StepController(AnimCtrlTable.At(i));
}

void HULLKIT::StepController(ANIM_CTRL_REC *c) {
    if (!c || c->direction == 0 || c->externalDrive || c->animIndex < 0)
        return;
    const double dt = SimStep;
    if (c->accel != 0.0)
        c->vel += c->accel * dt;

    const double old = c->state;
    c->state += c->direction * c->vel * dt;
    double reached = c->state;
    const double range = c->to - c->from;

    if (c->state > c->to) {
        if (c->noHardStop) {
            c->state -= range;
            reached = c->state;
        } else {
            c->state = c->to;
            c->direction = 0;
            c->vel = c->vel0;
            if (old < c->to) {
                if (c->sndPlusStopIndex >= 0)
                    PlayVesselSound(c->sndPlusStopIndex, kSoundOnce, kFullVolume);
                OnControllerEndStop(c);
            }
        }
    } else if (c->state < c->from) {
        if (c->noHardStop) {
            c->state += range;
            reached = c->state;
        } else {
            c->state = c->from;
            c->direction = 0;
            c->vel = c->vel0;
            if (old > c->from) {
                if (c->sndMinusStopIndex >= 0)
                    PlayVesselSound(c->sndMinusStopIndex, kSoundOnce, kFullVolume);
                OnControllerEndStop(c);
            }
        }
    }

    if (c->target >= 0.0 &&
        ((c->direction > 0 && reached > c->target) || (c->direction < 0 && reached < c->target))) {
        c->state = c->target;
        c->direction = 0;
        c->target = -1.0;
        c->vel = c->vel0;
        OnControllerTargetReached(c);
    }

    SetAnimation(c->animation, c->state);

    if (c->state != old) {
        if (c->sndMoveIndex >= 0)
            PlayVesselSound(c->sndMoveIndex, kSoundLoop, kFullVolume);
        // Controllers that share the animation share its state.
        for (int32_t i = 0; i < AnimCtrlTable.Count(); ++i) {
            ANIM_CTRL_REC *other = AnimCtrlTable.At(i);
            if (other && other->animIndex >= 0 && other->animation == c->animation)
                other->state = c->state;
        }
        OnControllerMoved(c);
    }
    if (c->direction == 0 && c->sndMoveIndex >= 0)
        PlayVesselSound(c->sndMoveIndex, kSoundStop, kFullVolume);
}
