// Two-body orbits: osculating elements of a state vector, and the state on an
// orbit given by its elements.
//
// Vectors are in the host's left-handed coordinates; the reference plane is
// their x-z plane and +y its north. Internally the work is done in the
// mirrored, right-handed coordinates (y and z exchanged), where an orbit that
// runs counter-clockwise seen from the north is prograde.
#pragma once

#include "OrbiterAPI.h"

namespace hullhost::physics {

// Exchanges y and z: between the host's left-handed coordinates and the
// right-handed ones of textbook celestial mechanics. Its own inverse.
inline VECTOR3 Mirror(const VECTOR3 &v) { return {v.x, v.z, v.y}; }
inline MATRIX3 Mirror(const MATRIX3 &m) {
    return {m.m11, m.m13, m.m12, m.m31, m.m33, m.m32, m.m21, m.m23, m.m22};
}

// Solves Kepler's equation M = E - e sin E (e < 1) for the eccentric anomaly.
double EccentricAnomaly(double meanAnomaly, double e);
// Solves M = e sinh F - F (e > 1) for the hyperbolic anomaly.
double HyperbolicAnomaly(double meanAnomaly, double e);

// Angle reduced to [0, 2 pi).
double NormalAngle(double a);

struct Orbit {
    ELEMENTS el{}; // L is the mean longitude at the state's time
    ORBITPARAM prm{};
};

// Osculating elements of the relative state (r, v) about a centre of
// gravitational parameter mu.
Orbit OrbitFromState(const VECTOR3 &r, const VECTOR3 &v, double mu);

// The relative state on the orbit `el` (whose mean longitude L holds at time
// 0) at time dt [s].
void StateFromElements(const ELEMENTS &el, double mu, double dt, VECTOR3 &r, VECTOR3 &v);

} // namespace hullhost::physics
