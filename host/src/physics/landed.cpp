#include "physics/landed.h"

#include <cmath>

#include "core/body.h"
#include "core/vessel.h"
#include "physics/ephemeris.h"
#include "physics/ground_contact.h"
#include "physics/horizon.h"
#include "physics/kepler.h"
#include "physics/rotation.h"

namespace hullhost::physics {

RestingPose RestingPoseOf(const Vessel &v) {
    RestingPose pose;
    const double mass = 1.0, g = 1.0; // only positions are needed
    const VECTOR3 p1 = TouchdownPoint(v, 0, mass, g).pos;
    const VECTOR3 p2 = TouchdownPoint(v, 1, mass, g).pos;
    const VECTOR3 p3 = TouchdownPoint(v, 2, mass, g).pos;
    VECTOR3 n = crossp(p2 - p1, p3 - p1);
    if (length(n) < 1e-12) {
        n = {0, 1, 0};
    }
    n = unit(n);
    double c = dotp(n, p1);
    if (c > 0.0 || (c == 0.0 && n.y < 0.0)) {
        n = -n;
        c = -c;
    }
    pose.up = n;
    pose.height = -c;
    VECTOR3 f = VECTOR3{0, 0, 1} - n * n.z;
    if (length(f) < 1e-6) {
        const VECTOR3 belly{0, n.z > 0.0 ? -1.0 : 1.0, 0};
        f = belly - n * dotp(belly, n);
    }
    pose.forward = unit(f);
    return pose;
}

MATRIX3 LandedOrientation(const Vessel &v, const Body &body, const VECTOR3 &r, double hdg) {
    const RestingPose pose = RestingPoseOf(v);
    const VECTOR3 way{std::sin(hdg), 0.0, std::cos(hdg)};
    const MATRIX3 toHorizon = RotationBetweenBases(pose.forward, pose.up, way, VECTOR3{0, 1, 0});
    return mul(HorizonFrame(body, r), toHorizon);
}

void PlaceLanded(Vessel &v, double t) {
    Body &body = *v.ref;
    const MATRIX3 bodyRot = BodyRotationAt(body, t);
    const double height = RestingPoseOf(v).height;
    const VECTOR3 r = PositionOf(bodyRot, v.surfLng, v.surfLat, body.radius + height);
    VECTOR3 bodyPos, bodyVel;
    BodyStateAt(body, t, bodyPos, bodyVel);
    v.pos = bodyPos + r;
    v.vel = bodyVel + SurfaceVelocity(body, r);
    v.rot = LandedOrientation(v, body, r, v.surfHdg);
    v.omega = tmul(v.rot, SpinVector(body));
}

void SetLanded(Vessel &v, Body &body, double lng, double lat, double hdg, double t) {
    v.landed = true;
    v.ref = &body;
    v.surfLng = lng;
    v.surfLat = lat;
    v.surfHdg = NormalAngle(hdg);
    PlaceLanded(v, t);
}

void LandHere(Vessel &v, Body &body, const VECTOR3 &r, const MATRIX3 &R, double t) {
    const MATRIX3 bodyRot = BodyRotationAt(body, t);
    const Surface s = SurfaceOf(bodyRot, r);
    const VECTOR3 way = tmul(HorizonFrame(body, r), mul(R, RestingPoseOf(v).forward));
    SetLanded(v, body, s.lng, s.lat, std::atan2(way.x, way.z), t);
}

bool LeavesGround(const Vessel &v, const VECTOR3 &force, double mass) {
    const Body &body = *v.ref;
    const VECTOR3 r = v.pos - body.pos;
    const VECTOR3 up = unit(r);
    const VECTOR3 spin = SpinVector(body);
    // The ground must supply what turns the vessel with the surface, less
    // gravity and the other forces. Only a pull away from the ground frees
    // it: what the ground holds sideways is its business, whatever the
    // friction of the points, or a frictionless vessel at any latitude but
    // the equator would slide off under the centripetal pull alone.
    const VECTOR3 centripetal = crossp(crossp(r, spin), spin);
    const VECTOR3 gravity = up * (-body.gm / dotp(r, r));
    const VECTOR3 support = (centripetal - gravity) * mass - force;
    return dotp(support, up) <= 0.0;
}

} // namespace hullhost::physics
