#include "physics/navmode_pilot.h"

#include <algorithm>
#include <cmath>

#include "core/body.h"
#include "core/vessel.h"
#include "core/world.h"
#include "physics/flight_queries.h"

namespace hullhost::physics {

namespace {

// The groups that turn a vessel about one body axis: which one turns it
// positively, which negatively, and the angular acceleration at full level.
struct Axis {
    ThrusterGroup *plus = nullptr, *minus = nullptr;
    double accelPlus = 0.0, accelMinus = 0.0; // [rad/s^2], both positive
};

// The torque of a group at full level about `axis` (0, 1, 2), per unit of inertia.
double GroupAccel(const Vessel &v, const ThrusterGroup *g, int axis) {
    if (!g)
        return 0.0;
    VECTOR3 torque{0, 0, 0};
    for (const Thruster *t : g->thrusters)
        if (t->propellant && t->propellant->mass > 0.0)
            torque += crossp(t->dir * t->maxThrust0, t->pos);
    const double inertia = std::max(v.pmi[axis] * v.Mass(), 1e-9);
    return torque[axis] / inertia;
}

Axis AxisGroups(const Vessel &v, int axis) {
    static constexpr THGROUP_TYPE kPairs[3][2] = {{THGROUP_ATT_PITCHUP, THGROUP_ATT_PITCHDOWN},
                                                  {THGROUP_ATT_YAWLEFT, THGROUP_ATT_YAWRIGHT},
                                                  {THGROUP_ATT_BANKLEFT, THGROUP_ATT_BANKRIGHT}};
    Axis a;
    // Which group of the pair turns which way is read from its torque, not assumed.
    for (THGROUP_TYPE type : kPairs[axis]) {
        ThrusterGroup *g = v.GroupOfType(type);
        const double accel = GroupAccel(v, g, axis);
        if (accel > a.accelPlus) {
            a.plus = g;
            a.accelPlus = accel;
        } else if (-accel > a.accelMinus) {
            a.minus = g;
            a.accelMinus = -accel;
        }
    }
    return a;
}

// The rotation (axis times angle, body frame) that brings the body vector
// `from` onto `to`; a half turn goes about the body's x axis.
VECTOR3 TurnBetween(const VECTOR3 &to, const VECTOR3 &from) {
    const VECTOR3 c = crossp(to, from);
    const double s = length(c), angle = std::atan2(s, dotp(to, from));
    if (s < 1e-9)
        return angle > 1.0 ? VECTOR3{angle, 0, 0} : VECTOR3{0, 0, 0};
    return c * (angle / s);
}

// The body-frame turn that the mode asks for; axes it leaves free are 0.
VECTOR3 ModeTurn(const World &world, const Vessel &v, int mode) {
    const Body *ref = SurfaceRef(world, v);
    if (!ref || mode == NAVMODE_KILLROT)
        return {0, 0, 0};
    const VECTOR3 r = v.pos - ref->pos, vel = v.vel - ref->vel;
    VECTOR3 target{0, 0, 0};
    switch (mode) {
    case NAVMODE_PROGRADE:
        target = vel;
        break;
    case NAVMODE_RETROGRADE:
        target = -vel;
        break;
    case NAVMODE_NORMAL:
        target = crossp(r, vel);
        break;
    case NAVMODE_ANTINORMAL:
        target = -crossp(r, vel);
        break;
    default: // HLEVEL: the up axis on the local vertical
        target = r;
        break;
    }
    const double len = length(target);
    if (!(len > 0.0))
        return {0, 0, 0};
    const VECTOR3 body = tmul(v.rot, target / len);
    return mode == NAVMODE_HLEVEL ? TurnBetween(body, {0, 1, 0}) : TurnBetween(body, {0, 0, 1});
}

// The command (-1 to 1) that turns an axis by `angle` at the rate `rate`.
double AxisCommand(const Axis &a, double angle, double rate, double dt) {
    const double accel = std::min(a.accelPlus, a.accelMinus) > 0.0 ? std::min(a.accelPlus, a.accelMinus)
                                                                   : std::max(a.accelPlus, a.accelMinus);
    if (!(accel > 0.0))
        return 0.0;
    const double gain = std::min(0.5, 0.3 / dt);
    const double wanted = std::copysign(
        std::min({kMaxRate, std::sqrt(accel * std::fabs(angle)), gain * std::fabs(angle)}), angle);
    const double gap = wanted - rate;
    if (std::fabs(gap) < kRateDeadband)
        return 0.0;
    const double full = gap > 0.0 ? a.accelPlus : a.accelMinus;
    if (!(full > 0.0))
        return 0.0;
    return std::clamp(gap / (full * std::max(kRateTime, 2.0 * dt)), -1.0, 1.0);
}

} // namespace

bool FlyNavmodes(const World &world, Vessel &v, double dt) {
    int mode = 0;
    for (int m : {NAVMODE_KILLROT, NAVMODE_HLEVEL, NAVMODE_PROGRADE, NAVMODE_RETROGRADE, NAVMODE_NORMAL,
                  NAVMODE_ANTINORMAL})
        if (v.navmodes.test(static_cast<size_t>(m)))
            mode = m;
    if (mode == 0 || v.landed || v.parent || !(dt > 0.0))
        return false;
    const VECTOR3 turn = ModeTurn(world, v, mode);
    bool fired = false;
    for (int axis = 0; axis < 3; ++axis) {
        const Axis a = AxisGroups(v, axis);
        const double command = AxisCommand(a, turn[axis], v.omega[axis], dt);
        ThrusterGroup *g = command > 0.0 ? a.plus : a.minus;
        if (!g || command == 0.0)
            continue;
        for (Thruster *t : g->thrusters)
            t->manualLevel = std::max(t->manualLevel, std::fabs(command));
        fired = true;
    }
    return fired;
}

} // namespace hullhost::physics
