// The ground: each body's surface is the sphere of its mean radius. A vessel
// touches it with its touchdown points, each a spring and damper along the
// local vertical with friction along the ground.
//
// Points given in the three-point form (stiffness 0) get a stiffness that
// lets the vessel's weight press them 5 cm into the ground, critical damping,
// and the vessel's friction coefficients. Points given stiffer than a 5 mm
// deflection under the vessel's weight are softened to it. A vessel without touchdown points
// gets three default ones, scaled by its size.
#pragma once

#include "OrbiterAPI.h"

namespace hullhost {
class Body;
class Vessel;
} // namespace hullhost

namespace hullhost::physics {

int TouchdownCount(const Vessel &v);
// Touchdown point i, with its stiffness, damping and friction resolved for a
// vessel of mass `mass` on a body of surface gravity `gravity`.
TOUCHDOWNVTX TouchdownPoint(const Vessel &v, int i, double mass, double gravity);

double SurfaceGravity(const Body &body);

// Height of the vessel's lowest touchdown point above the ground, for the
// vessel at r relative to the body (global axes) with orientation R.
double LowestPointHeight(const Vessel &v, const Body &body, const VECTOR3 &r, const MATRIX3 &R);

struct ContactLoad {
    VECTOR3 force{0, 0, 0};  // global frame [N]
    VECTOR3 torque{0, 0, 0}; // vessel frame [N m]
    bool touching = false;
};

// Ground forces on a vessel at r, v relative to the body (global axes) with
// orientation R and angular velocity w (vessel frame).
ContactLoad GroundLoad(const Vessel &v, const Body &body, const VECTOR3 &r, const VECTOR3 &vel,
                       const MATRIX3 &R, const VECTOR3 &w, double mass);

// The fastest natural frequency of the touchdown springs [rad/s].
double ContactFrequency(const Vessel &v, const Body &body, double mass);

} // namespace hullhost::physics
