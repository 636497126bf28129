#include "physics/ephemeris.h"

#include "core/body.h"
#include "core/world.h"
#include "physics/kepler.h"
#include "physics/rotation.h"

namespace hullhost::physics {

double EphemerisTime(const World &world, double offset) {
    return (world.mjd0 - kEpochMjd) * 86400.0 + world.simt + offset;
}

double OrbitalMu(const Body &body) {
    const double parentMass = body.parent ? body.parent->mass : 0.0;
    return kGravitationalConstant * (parentMass + body.mass);
}

void BodyStateAt(const Body &body, double t, VECTOR3 &pos, VECTOR3 &vel) {
    if (!body.parent) {
        pos = body.pos;
        vel = body.vel;
        return;
    }
    VECTOR3 ppos, pvel;
    BodyStateAt(*body.parent, t, ppos, pvel);
    VECTOR3 r, v;
    const double dt = t - (body.orbit.epochMjd - kEpochMjd) * 86400.0;
    StateFromElements(ELEMENTS{body.orbit.a, body.orbit.e, body.orbit.i, body.orbit.theta, body.orbit.omegab,
                               body.orbit.L0},
                      OrbitalMu(body), dt, r, v);
    pos = ppos + r;
    vel = pvel + v;
}

MATRIX3 EquatorialFrame(const Body &body) { return Mirror(RotX(-body.obliquity)); }

MATRIX3 BodyRotationAt(const Body &body, double t) {
    double angle = body.rotationOffset;
    if (body.siderealPeriod > 0.0) {
        const double dt = t - (body.rotationEpochMjd - kEpochMjd) * 86400.0;
        angle += PI2 * std::fmod(dt / body.siderealPeriod, 1.0);
    }
    return Mirror(mul(RotX(-body.obliquity), RotZ(angle)));
}

VECTOR3 SpinVector(const Body &body) {
    if (body.siderealPeriod <= 0.0) {
        return {0, 0, 0};
    }
    const MATRIX3 eq = EquatorialFrame(body);
    return Column(eq, 1) * (PI2 / body.siderealPeriod);
}

} // namespace hullhost::physics
