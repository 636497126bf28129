// One frame of the flight model: every free vessel integrated with the
// classical Runge-Kutta method over substeps short enough for the orbit, the
// air, the rotation, the thrust and the ground; landed vessels turned with
// their body; carried vessels placed on their parents.
#include <algorithm>
#include <cmath>

#include "core/body.h"
#include "core/world.h"
#include "physics/aerodynamics.h"
#include "physics/ephemeris.h"
#include "physics/flight_model.h"
#include "physics/free_rotation.h"
#include "physics/gravity.h"
#include "physics/ground_contact.h"
#include "physics/landed.h"
#include "physics/propulsion.h"
#include "physics/rotation.h"
#include "physics/vessel_dynamics.h"

namespace hullhost::physics {

namespace {

constexpr double kStepsPerOrbit = 1000.0; // of the osculating circular orbit at the current radius
constexpr double kMaxStep = 60.0;         // [s]
constexpr double kMinStep = 1e-6;         // [s]
constexpr double kThrustStep = 1.0;       // [s] while thrust or module forces act
constexpr double kTurnPerStep = 0.05;     // [rad] of rotation per step
constexpr double kContactRange = 1000.0;  // [m] below which the touchdown points are watched
constexpr double kRestSpeed = 0.05;       // [m/s] against the ground, to count as landed
constexpr double kRestRate = 0.005;       // [rad/s] against the ground's rotation
constexpr double kFreeTurnPressure = 1.0; // [Pa] of dynamic pressure below which the air can't turn a vessel
constexpr double kTouchDepth = 0.001;     // [m] into the ground at the end of a touchdown's frame

struct ModuleForces {
    VECTOR3 force{0, 0, 0};
    VECTOR3 torque{0, 0, 0};
};

ModuleForces SumModuleForces(const Vessel &v) {
    ModuleForces m;
    for (const AppliedForce &f : v.forces) {
        m.force += f.force;
        m.torque += crossp(f.force, f.pos);
    }
    return m;
}

double AeroStep(const Vessel &v, const AirData &air, double mass, const VECTOR3 &aeroForce) {
    if (air.dynPressure <= 0.0 || mass <= 0.0) {
        return kMaxStep;
    }
    double h = kMaxStep;
    const double accel = length(aeroForce) / mass;
    if (accel > 0.0) {
        h = std::min(h, 0.01 * std::max(air.airspeed, 1.0) / accel);
    }
    // Aerodynamic moments swing the vessel like a pendulum of this frequency.
    const double area = std::max({v.crossSections.x, v.crossSections.y, v.crossSections.z});
    const double inertia = mass * std::max(1e-3, std::min({v.pmi.x, v.pmi.y, v.pmi.z}));
    const double frequency = std::sqrt(air.dynPressure * area * std::max(v.size, 1.0) / inertia);
    return std::min(h, 0.2 / frequency);
}

// `turning`: the rotation is integrated with the motion, so the step must
// follow it too.
double ChooseStep(const Vessel &v, const Body *ref, const RigidState &s, const StepLoads &loads,
                  const AirData &air, const VECTOR3 &aeroForce, double gap, bool turning) {
    double h = kMaxStep;
    if (ref) {
        const double r = length(s.r);
        h = std::min(h, PI2 * std::sqrt(r * r * r / ref->gm) / kStepsPerOrbit);
    }
    if (loads.massFlow > 0.0 || length(loads.force) > 0.0 || length(loads.torque) > 0.0) {
        h = std::min(h, kThrustStep);
    }
    h = std::min(h, AeroStep(v, air, loads.mass, aeroForce));
    const double rate = length(s.w);
    if (turning && rate > 0.0) {
        h = std::min(h, kTurnPerStep / rate);
    }
    if (loads.contact && ref) {
        const double contactStep = 1.0 / std::max(ContactFrequency(v, *ref, loads.mass), 1e-3);
        // Above the ground, a step may cover half the gap: falling from rest
        // under gravity and the vessel's own forces, or at its speed.
        const double approach = length(s.v - SurfaceVelocity(*ref, s.r));
        const double accel = SurfaceGravity(*ref) + length(loads.force) / std::max(loads.mass, 1e-6);
        const double reach =
            gap > 0.5 ? gap / (approach + std::sqrt(approach * approach + accel * gap)) : 0.0;
        h = std::min(h, std::max(contactStep, reach));
    }
    return std::max(h, kMinStep);
}

RigidState Advanced(const RigidState &s, const RigidRate &d, double h) {
    return {s.r + d.dr * h, s.v + d.dv * h,
            MATRIX3{s.R.m11 + d.dR.m11 * h, s.R.m12 + d.dR.m12 * h, s.R.m13 + d.dR.m13 * h,
                    s.R.m21 + d.dR.m21 * h, s.R.m22 + d.dR.m22 * h, s.R.m23 + d.dR.m23 * h,
                    s.R.m31 + d.dR.m31 * h, s.R.m32 + d.dR.m32 * h, s.R.m33 + d.dR.m33 * h},
            s.w + d.dw * h};
}

RigidRate Combined(const RigidRate &k1, const RigidRate &k2, const RigidRate &k3, const RigidRate &k4) {
    auto mix = [](double a, double b, double c, double d) { return (a + 2.0 * b + 2.0 * c + d) / 6.0; };
    auto mixv = [](const VECTOR3 &a, const VECTOR3 &b, const VECTOR3 &c, const VECTOR3 &d) {
        return (a + (b + c) * 2.0 + d) / 6.0;
    };
    RigidRate r;
    r.dr = mixv(k1.dr, k2.dr, k3.dr, k4.dr);
    r.dv = mixv(k1.dv, k2.dv, k3.dv, k4.dv);
    r.dw = mixv(k1.dw, k2.dw, k3.dw, k4.dw);
    const MATRIX3 &a = k1.dR, &b = k2.dR, &c = k3.dR, &d = k4.dR;
    r.dR = {
        mix(a.m11, b.m11, c.m11, d.m11), mix(a.m12, b.m12, c.m12, d.m12), mix(a.m13, b.m13, c.m13, d.m13),
        mix(a.m21, b.m21, c.m21, d.m21), mix(a.m22, b.m22, c.m22, d.m22), mix(a.m23, b.m23, c.m23, d.m23),
        mix(a.m31, b.m31, c.m31, d.m31), mix(a.m32, b.m32, c.m32, d.m32), mix(a.m33, b.m33, c.m33, d.m33)};
    return r;
}

// A state carried along with the body's rotation (`spin`, global) for `dt`.
RigidState CoRotated(const RigidState &s, const VECTOR3 &spin, double dt) {
    const double rate = length(spin);
    if (rate <= 0.0 || dt <= 0.0) {
        return s;
    }
    // The ground moves at crossp(r, spin): a turn by -rate * dt about the axis
    // in the right-handed form.
    const VECTOR3 k = spin / rate;
    const double a = -rate * dt, c = std::cos(a), sn = std::sin(a), t = 1.0 - c;
    const MATRIX3 turn{t * k.x * k.x + c,        t * k.x * k.y - sn * k.z, t * k.x * k.z + sn * k.y,
                       t * k.x * k.y + sn * k.z, t * k.y * k.y + c,        t * k.y * k.z - sn * k.x,
                       t * k.x * k.z - sn * k.y, t * k.y * k.z + sn * k.x, t * k.z * k.z + c};
    return {mul(turn, s.r), mul(turn, s.v), mul(turn, s.R), s.w};
}

bool AtRest(const Vessel &v, const Body &ref, const RigidState &s) {
    const double speed = length(s.v - SurfaceVelocity(ref, s.r));
    const double turn = length(s.w - tmul(s.R, SpinVector(ref)));
    return speed < kRestSpeed && turn < kRestRate && LowestPointHeight(v, ref, s.r, s.R) < 0.0;
}

// Integrates a free vessel from t0 over simdt. Returns early, landed, if the
// vessel comes to rest on the ground.
void IntegrateFree(World &world, const FrameSnapshots &snapshots, Vessel &v, double t0, double simdt) {
    const Body *ref = world.bodies.empty() ? nullptr : DominantBody(world, v.pos);
    v.ref = const_cast<Body *>(ref);
    RigidState s{v.pos, v.vel, v.rot, v.omega};
    if (ref) {
        s.r -= ref->pos;
        s.v -= ref->vel;
    }
    const ModuleForces module = SumModuleForces(v);
    BodySnapshot start = snapshots.At(t0);
    double tau = 0.0;
    while (tau < simdt) {
        const AirData air = AirDataAt(ref, s.r, s.v, s.R);
        const ThrustLoad thrust = TotalThrust(v, air.air.pressure);
        const double gap = ref ? LowestPointHeight(v, *ref, s.r, s.R) : HUGE_VAL;
        StepLoads loads;
        loads.force = thrust.force + module.force;
        loads.torque = thrust.torque + module.torque;
        loads.mass = v.Mass();
        loads.massFlow = thrust.massFlow;
        loads.air = air.air.density > 0.0;
        loads.contact = gap < kContactRange;
        const AeroLoad aero = loads.air ? AerodynamicLoad(v, air) : AeroLoad{};

        // Without thrust, forces of the module or the ground, and in air too
        // thin to turn it, the motion doesn't care how the vessel turns, and
        // the turn is integrated on its own: a spinning piece then costs no
        // more steps than a still one.
        const bool torqueFree = !loads.contact && air.dynPressure < kFreeTurnPressure &&
                                loads.torque.x == 0.0 && loads.torque.y == 0.0 && loads.torque.z == 0.0 &&
                                loads.force.x == 0.0 && loads.force.y == 0.0 && loads.force.z == 0.0;
        double h =
            std::min(ChooseStep(v, ref, s, loads, air, aero.lift + aero.drag, gap, !torqueFree), simdt - tau);
        if (thrust.timeToEmpty < h) {
            h = thrust.timeToEmpty; // the burn ends within the step: end the step with it
        }
        BodySnapshot end;
        const RigidState before = s;
        const auto stepped = [&](double dt) {
            const BodySnapshot mid = snapshots.At(t0 + tau + 0.5 * dt);
            end = snapshots.At(t0 + tau + dt);
            const RigidRate k1 = Derivative(v, ref, start, loads, 0.0, s);
            const RigidRate k2 = Derivative(v, ref, mid, loads, 0.5 * dt, Advanced(s, k1, 0.5 * dt));
            const RigidRate k3 = Derivative(v, ref, mid, loads, 0.5 * dt, Advanced(s, k2, 0.5 * dt));
            const RigidRate k4 = Derivative(v, ref, end, loads, dt, Advanced(s, k3, dt));
            RigidState next = Advanced(s, Combined(k1, k2, k3, k4), dt);
            if (torqueFree) {
                next.R = before.R;
                next.w = before.w;
                RotateFree(next.R, next.w, PrincipalMoments(v, loads.mass), dt);
            } else {
                next.R = Orthonormalised(next.R);
            }
            return next;
        };
        RigidState next = stepped(h);
        // A touchdown ends the vessel's flight in the frame at the moment of
        // contact, a millimetre into the ground, so that its module sees the
        // speeds it came down with rather than what the ground left of them.
        bool touchdown = false;
        if (ref && gap > 0.0) {
            const double after = LowestPointHeight(v, *ref, next.r, next.R);
            if (after <= 0.0) {
                const double fraction = std::min(1.0, (gap + kTouchDepth) / (gap - after));
                if (fraction < 1.0) {
                    h *= fraction;
                    next = stepped(h);
                }
                touchdown = LowestPointHeight(v, *ref, next.r, next.R) <= 0.0;
            }
        }
        s = next;
        BurnPropellant(v, h);
        tau = simdt - tau - h < kMinStep ? simdt : tau + h;
        start = end;
        if (touchdown) {
            // The rest of the frame the vessel keeps its place and its
            // velocity against the turning ground.
            s = CoRotated(s, SpinVector(*ref), simdt - tau);
            tau = simdt;
        }
        if (loads.contact && ref && AtRest(v, *ref, s)) {
            LandHere(v, *v.ref, s.r, s.R, t0 + tau);
            PlaceLanded(v, t0 + simdt);
            return;
        }
    }
    VECTOR3 refPos{0, 0, 0}, refVel{0, 0, 0};
    if (ref) {
        snapshots.EndState(*ref, refPos, refVel);
    }
    v.pos = refPos + s.r;
    v.vel = refVel + s.v;
    v.rot = s.R;
    v.omega = s.w;
}

// A landed vessel stays where it is, unless its forces lift it off.
bool StaysLanded(Vessel &v) {
    if (!v.ref) {
        return false;
    }
    const AirData air = AirDataAt(v.ref, v.pos - v.ref->pos, v.vel - v.ref->vel, v.rot);
    const ThrustLoad thrust = TotalThrust(v, air.air.pressure);
    const ModuleForces module = SumModuleForces(v);
    return !LeavesGround(v, mul(v.rot, thrust.force + module.force), v.Mass());
}

void PlaceChain(Vessel &v, int depth) {
    if (!v.parent || depth > 32) {
        return;
    }
    PlaceChain(*v.parent, depth + 1);
    PlaceOnParent(v);
}

} // namespace

void Advance(World &world, double simdt) {
    const double t0 = EphemerisTime(world, -simdt);
    const double t1 = EphemerisTime(world);
    const FrameSnapshots snapshots(world, t0, t1);
    for (const auto &vp : world.Vessels()) {
        Vessel &v = *vp;
        if (simdt <= 0.0) {
            break;
        }
        if (v.parent) {
            BurnPropellant(v, simdt);
            continue;
        }
        if (v.landed && StaysLanded(v)) {
            BurnPropellant(v, simdt);
            PlaceLanded(v, t1);
            continue;
        }
        v.landed = false;
        IntegrateFree(world, snapshots, v, t0, simdt);
    }
    PlaceBodies(world, t1);
    for (const auto &vp : world.Vessels()) {
        PlaceChain(*vp, 0);
        vp->forces.clear();
    }
}

} // namespace hullhost::physics
