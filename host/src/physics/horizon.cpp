#include "physics/horizon.h"

#include <cmath>

#include "core/body.h"
#include "physics/ephemeris.h"
#include "physics/kepler.h"
#include "physics/rotation.h"

namespace hullhost::physics {

MATRIX3 HorizonFrame(const Body &body, const VECTOR3 &r) {
    const VECTOR3 up = unit(r);
    const VECTOR3 pole = Column(body.equatorial, 1);
    VECTOR3 east = crossp(up, pole);
    if (length(east) < 1e-12) {
        // At a pole every direction is south (or north); take the body's
        // longitude 0 meridian as north.
        east = crossp(up, Column(body.rot, 0));
    }
    east = unit(east);
    const VECTOR3 north = crossp(east, up);
    return Columns(east, up, north);
}

Surface SurfaceOf(const MATRIX3 &bodyRot, const VECTOR3 &r) {
    const VECTOR3 local = tmul(bodyRot, r);
    Surface s;
    s.radius = length(local);
    s.lng = std::atan2(local.z, local.x);
    s.lat = s.radius > 0.0 ? std::asin(std::fmax(-1.0, std::fmin(1.0, local.y / s.radius))) : 0.0;
    return s;
}

VECTOR3 PositionOf(const MATRIX3 &bodyRot, double lng, double lat, double radius) {
    const VECTOR3 local{std::cos(lat) * std::cos(lng), std::sin(lat), std::cos(lat) * std::sin(lng)};
    return mul(bodyRot, local * radius);
}

Attitude AttitudeIn(const MATRIX3 &horizon, const MATRIX3 &R) {
    const MATRIX3 h = mul(transpose(horizon), R); // vessel to horizon
    const VECTOR3 nose = Column(h, 2), right = Column(h, 0), top = Column(h, 1);
    Attitude a;
    a.pitch = std::asin(std::fmax(-1.0, std::fmin(1.0, nose.y)));
    a.bank = std::atan2(right.y, top.y);
    // A vertical nose has no heading of its own; its top then shows the way.
    const VECTOR3 dir = std::hypot(nose.x, nose.z) > 1e-9 ? nose : top * (nose.y > 0 ? -1.0 : 1.0);
    a.heading = NormalAngle(std::atan2(dir.x, dir.z));
    return a;
}

} // namespace hullhost::physics
