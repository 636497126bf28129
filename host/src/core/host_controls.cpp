#include "host_controls.h"

#include "manual_control.h"
#include "vessel.h"
#include "world.h"

namespace hullhost {

namespace {

void SetLevel(Vessel &v, ThrusterGroup *group, double level) {
    if (group)
        v.SetGroupLevel(*group, level);
}

double Level(const Vessel &v, const ThrusterGroup *group) { return group ? v.GroupLevel(*group) : 0.0; }

void Throttle(Vessel &v, const char *keys, double realDt) {
    ThrusterGroup *main = v.GroupOfType(THGROUP_MAIN);
    ThrusterGroup *retro = v.GroupOfType(THGROUP_RETRO);
    const double step = kThrottleRate * realDt;
    if (KEYDOWN(keys, OAPI_KEY_MULTIPLY)) {
        SetLevel(v, main, 0.0);
        SetLevel(v, retro, 0.0);
    } else if (KEYDOWN(keys, OAPI_KEY_ADD)) {
        if (KEYMOD_CONTROL(keys) && main) {
            SetLevel(v, main, 1.0);
            SetLevel(v, retro, 0.0);
        } else if (Level(v, retro) > 0.0) {
            SetLevel(v, retro, Level(v, retro) - step);
        } else {
            SetLevel(v, main, Level(v, main) + step);
        }
    } else if (KEYDOWN(keys, OAPI_KEY_SUBTRACT)) {
        if (Level(v, main) > 0.0)
            SetLevel(v, main, Level(v, main) - step);
        else
            SetLevel(v, retro, Level(v, retro) + step);
    }
}

void SwitchRcsMode(World &world, Vessel &v, const char *keys, const char *before) {
    if (!KEYDOWN(keys, OAPI_KEY_DIVIDE) || KEYDOWN(before, OAPI_KEY_DIVIDE))
        return;
    const int mode = KEYMOD_CONTROL(keys) ? (v.attitudeMode == RCS_NONE ? RCS_ROT : RCS_NONE)
                                          : (v.attitudeMode == RCS_ROT ? RCS_LIN : RCS_ROT);
    v.attitudeMode = mode;
    if (v.iface) {
        CallbackScope scope(world, &v);
        static_cast<VESSEL2 *>(v.iface)->clbkRCSMode(mode);
    }
}

bool FireAttitudeThrusters(Vessel &v, const char *keys) {
    bool fired = false;
    for (int type = THGROUP_ATT_PITCHUP; type <= THGROUP_ATT_BACK; ++type) {
        const auto group = static_cast<THGROUP_TYPE>(type);
        const double level = ManualControlLevel(keys, v.attitudeMode, group, MANCTRL_ATTMODE);
        ThrusterGroup *g = level > 0.0 ? v.GroupOfType(group) : nullptr;
        if (!g)
            continue;
        for (Thruster *t : g->thrusters)
            t->manualLevel = std::max(t->manualLevel, level);
        fired = true;
    }
    return fired;
}

// A press of a navigation mode's key switches the mode on, or off again.
void ToggleNavmodes(Vessel &v, const char *keys, const char *before) {
    if (!v.iface || KEYMOD_CONTROL(keys) || KEYMOD_SHIFT(keys) || KEYMOD_ALT(keys))
        return;
    for (const NavmodeKey &k : kNavmodeKeys)
        if (KEYDOWN(keys, k.key) && !KEYDOWN(before, k.key))
            v.iface->ToggleNavmode(k.mode);
}

} // namespace

bool ActOnHostKeys(World &world, Vessel &v, const char *keys, const char *before, double realDt) {
    Throttle(v, keys, realDt);
    SwitchRcsMode(world, v, keys, before);
    ToggleNavmodes(v, keys, before);
    return FireAttitudeThrusters(v, keys);
}

void EndManualFiring(World &world) {
    for (const auto &v : world.Vessels())
        for (const auto &t : v->thrusters)
            t->manualLevel = 0.0;
}

} // namespace hullhost
