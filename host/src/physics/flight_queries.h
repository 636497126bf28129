// What the host reports about a vessel's flight, from its present state.
#pragma once

#include "OrbiterAPI.h"
#include "physics/aerodynamics.h"
#include "physics/horizon.h"
#include "physics/kepler.h"

namespace hullhost {
class Body;
class Vessel;
class World;
} // namespace hullhost

namespace hullhost::physics {

// The body whose gravity is strongest where the vessel is.
const Body *SurfaceRef(const World &world, const Vessel &v);
// The body whose frame the vessel's motion is integrated and reported in
// (its sphere of influence holds the vessel).
const Body *GravityRef(const World &world, const Vessel &v);

// Air data against the surface reference.
AirData VesselAirData(const World &world, const Vessel &v);

// The horizon frame under the vessel (on its surface reference), and the
// vessel's attitude in it.
MATRIX3 VesselHorizon(const World &world, const Vessel &v);
Attitude VesselAttitude(const World &world, const Vessel &v);

// Altitude above the surface reference's mean radius (which is its ground).
double VesselAltitude(const World &world, const Vessel &v);

bool InGroundContact(const World &world, const Vessel &v);

struct ForceBreakdown {
    VECTOR3 thrust{0, 0, 0}; // vessel frame [N]
    VECTOR3 weight{0, 0, 0};
    VECTOR3 lift{0, 0, 0};
    VECTOR3 drag{0, 0, 0};
    VECTOR3 total{0, 0, 0}; // all of these with the module's forces and the ground's
};
ForceBreakdown VesselForces(const World &world, const Vessel &v);

// Osculating orbit around `ref`, in the ecliptic (FRAME_ECL) or the body's
// equatorial frame (FRAME_EQU).
Orbit VesselOrbit(const Vessel &v, const Body &ref, int frame);

} // namespace hullhost::physics
