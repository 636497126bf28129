// The local horizon of a body and a vessel's attitude against it. The horizon
// frame has x east, y up and z north (left-handed, like every host frame).
#pragma once

#include "OrbiterAPI.h"

namespace hullhost {
class Body;
} // namespace hullhost

namespace hullhost::physics {

// Horizon frame to global frame at the position r relative to the body
// (global axes). Its columns are east, up and north.
MATRIX3 HorizonFrame(const Body &body, const VECTOR3 &r);

struct Surface {
    double lng = 0.0; // east longitude [rad]
    double lat = 0.0; // [rad]
    double radius = 0.0;
};
// Longitude, latitude and distance of the relative position r, in the body's
// rotating frame `bodyRot` (body to global).
Surface SurfaceOf(const MATRIX3 &bodyRot, const VECTOR3 &r);
// The relative position (global axes) at a longitude, latitude and distance.
VECTOR3 PositionOf(const MATRIX3 &bodyRot, double lng, double lat, double radius);

// Attitude of a vessel (vessel to global matrix R) in a horizon frame H.
struct Attitude {
    double pitch = 0.0;   // nose above the horizon, positive up [rad]
    double bank = 0.0;    // positive with the right side raised [rad]
    double heading = 0.0; // of the nose's horizontal direction, from north toward east, [0, 2 pi)
};
Attitude AttitudeIn(const MATRIX3 &horizon, const MATRIX3 &R);

} // namespace hullhost::physics
