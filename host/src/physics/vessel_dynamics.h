// The equations of motion of a free vessel: translation relative to its
// reference body, and rigid-body rotation (Euler's equations, in the host's
// left-handed convention: I dw/dt = torque + crossp(w, I w)).
#pragma once

#include "OrbiterAPI.h"
#include "physics/gravity.h"

namespace hullhost {
class Body;
class Vessel;
} // namespace hullhost

namespace hullhost::physics {

struct RigidState {
    VECTOR3 r{0, 0, 0};                   // position relative to the reference body, global axes
    VECTOR3 v{0, 0, 0};                   // velocity relative to the reference body
    MATRIX3 R{1, 0, 0, 0, 1, 0, 0, 0, 1}; // vessel to global
    VECTOR3 w{0, 0, 0};                   // angular velocity, vessel frame
};

struct RigidRate {
    VECTOR3 dr, dv;
    MATRIX3 dR;
    VECTOR3 dw;
};

// What stays fixed over one integration step: thrust and the module's forces
// (vessel frame), the mass at the start and the rate at which it falls.
// The moments of inertia along the vessel's axes at `mass`, each above 0.
VECTOR3 PrincipalMoments(const Vessel &v, double mass);

struct StepLoads {
    VECTOR3 force{0, 0, 0};
    VECTOR3 torque{0, 0, 0};
    double mass = 0.0;
    double massFlow = 0.0;
    bool air = false;     // the air is worth evaluating
    bool contact = false; // the ground is near enough to touch
};

// Rotation drag: torque -rotDrag * w (per axis) scaled by the air density
// against its sea-level value, so it acts in air only.
VECTOR3 RotationDragTorque(const Vessel &v, const VECTOR3 &w, double density);

// Rate of change of the state `tau` seconds into a step, with the bodies at
// their places `snap`.
RigidRate Derivative(const Vessel &v, const Body *ref, const BodySnapshot &snap, const StepLoads &loads,
                     double tau, const RigidState &s);

} // namespace hullhost::physics
