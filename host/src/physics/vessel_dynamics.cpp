#include "physics/vessel_dynamics.h"

#include <algorithm>

#include "core/body.h"
#include "core/vessel.h"
#include "physics/aerodynamics.h"
#include "physics/ground_contact.h"
#include "physics/rotation.h"

namespace hullhost::physics {

namespace {
constexpr double kSeaLevelDensity = 1.225;
}

VECTOR3 RotationDragTorque(const Vessel &v, const VECTOR3 &w, double density) {
    const double f = -density / kSeaLevelDensity;
    return {v.rotDrag.x * w.x * f, v.rotDrag.y * w.y * f, v.rotDrag.z * w.z * f};
}

VECTOR3 PrincipalMoments(const Vessel &v, double mass) {
    const double m = std::max(mass, 1e-9);
    return {std::max(v.pmi.x * m, 1e-9), std::max(v.pmi.y * m, 1e-9), std::max(v.pmi.z * m, 1e-9)};
}

RigidRate Derivative(const Vessel &v, const Body *ref, const BodySnapshot &snap, const StepLoads &loads,
                     double tau, const RigidState &s) {
    const double mass = loads.mass - loads.massFlow * tau;
    VECTOR3 force = loads.force;   // vessel frame
    VECTOR3 torque = loads.torque; // vessel frame
    VECTOR3 globalForce{0, 0, 0};

    if (loads.air && ref) {
        const AirData air = AirDataAt(ref, s.r, s.v, s.R);
        const AeroLoad aero = AerodynamicLoad(v, air);
        force += aero.lift + aero.drag;
        torque += aero.torque + RotationDragTorque(v, s.w, air.air.density);
    }
    if (loads.contact && ref) {
        const ContactLoad ground = GroundLoad(v, *ref, s.r, s.v, s.R, s.w, mass);
        globalForce += ground.force;
        torque += ground.torque;
    }

    RigidRate d;
    d.dr = s.v;
    d.dv = RelativeGravity(snap, ref, s.r);
    if (mass > 0.0) {
        d.dv += (mul(s.R, force) + globalForce) / mass;
    }
    d.dR = mul(s.R, RateMatrix(s.w));
    const VECTOR3 inertia = PrincipalMoments(v, mass);
    const VECTOR3 momentum{inertia.x * s.w.x, inertia.y * s.w.y, inertia.z * s.w.z};
    const VECTOR3 gyro = crossp(s.w, momentum);
    d.dw = {(torque.x + gyro.x) / inertia.x, (torque.y + gyro.y) / inertia.y,
            (torque.z + gyro.z) / inertia.z};
    return d;
}

} // namespace hullhost::physics
