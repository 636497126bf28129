// Air around a vessel and the forces it makes.
//
// The air turns with its body. A vessel without airfoils feels drag only, from
// its cross sections and drag coefficients (cw): the air's dynamic pressure
// times the sum over the axes of |component of the flow direction| * area *
// coefficient, along the flow. A vessel with airfoils feels the airfoils
// instead: each gives lift, drag and a moment from its callback's
// coefficients at the angle of attack (LIFT_VERTICAL, in the vessel's y-z
// plane) or of sideslip (LIFT_HORIZONTAL, in its x-z plane).
#pragma once

#include "OrbiterAPI.h"
#include "physics/atmosphere.h"

namespace hullhost {
class Body;
class Vessel;
} // namespace hullhost

namespace hullhost::physics {

struct AirData {
    AirState air;                    // ambient; all zero in vacuum
    VECTOR3 airspeedGlobal{0, 0, 0}; // velocity against the air, global axes [m/s]
    VECTOR3 airspeedLocal{0, 0, 0};  // the same in the vessel frame
    double airspeed = 0.0;
    double dynPressure = 0.0; // [Pa]
    double mach = 0.0;
};

// Air data for a vessel at r, v relative to `body` (global axes) with
// orientation R. A body without atmosphere gives vacuum, but still the
// velocity against its turning surface.
AirData AirDataAt(const Body *body, const VECTOR3 &r, const VECTOR3 &v, const MATRIX3 &R);

struct AeroLoad {
    VECTOR3 lift{0, 0, 0};   // vessel frame [N]
    VECTOR3 drag{0, 0, 0};   // vessel frame [N]
    VECTOR3 torque{0, 0, 0}; // vessel frame [N m]
};

AeroLoad AerodynamicLoad(const Vessel &v, const AirData &air);

// Angle of attack and of sideslip of a vessel-frame airspeed vector: positive
// with the nose above, and to the right of, the direction of flight.
double AngleOfAttack(const VECTOR3 &airspeedLocal);
double SlipAngle(const VECTOR3 &airspeedLocal);

} // namespace hullhost::physics
