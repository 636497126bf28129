// The landed state: a vessel resting on its touchdown points at a fixed
// longitude, latitude and heading on a body, turning with it. The plane of
// the first three touchdown points lies on the ground; the heading is that of
// the vessel's nose, or for a vessel standing on its tail that of its belly
// (-y), the way it would pitch over.
#pragma once

#include "OrbiterAPI.h"

namespace hullhost {
class Body;
class Vessel;
} // namespace hullhost

namespace hullhost::physics {

struct RestingPose {
    VECTOR3 up{0, 1, 0};      // vessel frame: away from the ground
    VECTOR3 forward{0, 0, 1}; // vessel frame: along the ground, the heading's direction
    double height = 0.0;      // of the centre of mass above the ground [m]
};
RestingPose RestingPoseOf(const Vessel &v);

// Vessel-to-global orientation of a vessel resting at r (relative to the
// body, global axes) with heading hdg.
MATRIX3 LandedOrientation(const Vessel &v, const Body &body, const VECTOR3 &r, double hdg);

// Places a landed vessel (landed, ref, surfLng/Lat/Hdg set) for time t:
// position, velocity, orientation and angular velocity.
void PlaceLanded(Vessel &v, double t);

// Lands the vessel on `body` at the place and heading given, for time t.
void SetLanded(Vessel &v, Body &body, double lng, double lat, double hdg, double t);

// Lands the vessel where it is now, at r relative to `body` with orientation R.
void LandHere(Vessel &v, Body &body, const VECTOR3 &r, const MATRIX3 &R, double t);

// Whether forces other than gravity and the ground (global frame, sum
// `force`) lift a vessel of mass `mass` off the ground where it rests: they
// must outweigh it.
bool LeavesGround(const Vessel &v, const VECTOR3 &force, double mass);

} // namespace hullhost::physics
