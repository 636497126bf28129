#include "physics/ground_contact.h"

#include <algorithm>
#include <cmath>

#include "core/body.h"
#include "core/vessel.h"
#include "physics/ephemeris.h"

namespace hullhost::physics {

namespace {

constexpr double kRestDeflection = 0.05; // [m] under the vessel's weight
// Stiffer points are softened to this deflection under the vessel's weight,
// and their damping held at critical: a stiffer spring would need substeps
// too short to afford, and an explicit integrator with longer ones blows up.
constexpr double kMinDeflection = 0.005; // [m]
constexpr double kSlipSpeed = 0.05;      // below this friction fades linearly [m/s]

VECTOR3 DefaultPoint(const Vessel &v, int i) {
    const double s = v.size > 0.0 ? v.size : 1.0;
    switch (i) {
    case 0:
        return VECTOR3{0, -0.5, 0.5} * s;
    case 1:
        return VECTOR3{-0.5, -0.5, -0.5} * s;
    default:
        return VECTOR3{0.5, -0.5, -0.5} * s;
    }
}

} // namespace

int TouchdownCount(const Vessel &v) { return std::max<int>(3, static_cast<int>(v.touchdown.size())); }

double SurfaceGravity(const Body &body) { return body.gm / (body.radius * body.radius); }

TOUCHDOWNVTX TouchdownPoint(const Vessel &v, int i, double mass, double gravity) {
    TOUCHDOWNVTX p{};
    if (i < static_cast<int>(v.touchdown.size())) {
        p = v.touchdown[static_cast<size_t>(i)];
    } else {
        p.pos = DefaultPoint(v, i);
    }
    const double share = std::max(mass, 1.0) / 3.0;
    if (p.stiffness <= 0.0) {
        p.stiffness = share * gravity / kRestDeflection;
        p.damping = 2.0 * std::sqrt(p.stiffness * share);
        p.mu = v.frictionLat;
        p.mu_lng = v.frictionLng;
        return p;
    }
    p.stiffness = std::min(p.stiffness, share * gravity / kMinDeflection);
    p.damping = std::clamp(p.damping, 0.0, 2.0 * std::sqrt(p.stiffness * share));
    return p;
}

double LowestPointHeight(const Vessel &v, const Body &body, const VECTOR3 &r, const MATRIX3 &R) {
    double lowest = HUGE_VAL;
    const int n = TouchdownCount(v);
    for (int i = 0; i < n; ++i) {
        const VECTOR3 p = i < static_cast<int>(v.touchdown.size()) ? v.touchdown[static_cast<size_t>(i)].pos
                                                                   : DefaultPoint(v, i);
        lowest = std::min(lowest, length(r + mul(R, p)) - body.radius);
    }
    return lowest;
}

ContactLoad GroundLoad(const Vessel &v, const Body &body, const VECTOR3 &r, const VECTOR3 &vel,
                       const MATRIX3 &R, const VECTOR3 &w, double mass) {
    ContactLoad load;
    const double g = SurfaceGravity(body);
    const VECTOR3 nose = VECTOR3{R.m13, R.m23, R.m33};
    const int n = TouchdownCount(v);
    for (int i = 0; i < n; ++i) {
        const TOUCHDOWNVTX tp = TouchdownPoint(v, i, mass, g);
        const VECTOR3 offset = mul(R, tp.pos);
        const VECTOR3 p = r + offset;
        const double pl = length(p);
        const double depth = body.radius - pl;
        if (depth <= 0.0) {
            continue;
        }
        load.touching = true;
        const VECTOR3 up = p / pl;
        const VECTOR3 pointVel = vel + mul(R, crossp(tp.pos, w)) - SurfaceVelocity(body, p);
        const double vn = dotp(pointVel, up);
        const double normal = std::max(0.0, tp.stiffness * depth - tp.damping * vn);
        VECTOR3 f = up * normal;

        const VECTOR3 slide = pointVel - up * vn;
        const double speed = length(slide);
        if (speed > 0.0 && normal > 0.0) {
            VECTOR3 along = nose - up * dotp(nose, up);
            const double al = length(along);
            along = al > 1e-9 ? along / al : VECTOR3{0, 0, 0};
            const double vl = dotp(slide, along);
            const VECTOR3 lateral = slide - along * vl;
            const double scale = normal / std::max(speed, kSlipSpeed);
            f -= (along * (tp.mu_lng * vl) + lateral * tp.mu) * scale;
        }
        load.force += f;
        load.torque += crossp(tmul(R, f), tp.pos);
    }
    return load;
}

double ContactFrequency(const Vessel &v, const Body &body, double mass) {
    const double g = SurfaceGravity(body);
    const double share = std::max(mass, 1.0) / 3.0;
    // A point far from the centre of mass acts on the rotation as well, more
    // strongly the smaller the moments of inertia.
    const double gyration = std::max(1e-3, std::min({v.pmi.x, v.pmi.y, v.pmi.z}));
    double fastest = 0.0;
    const int n = TouchdownCount(v);
    for (int i = 0; i < n; ++i) {
        const TOUCHDOWNVTX tp = TouchdownPoint(v, i, mass, g);
        const double lever = std::max(1.0, dotp(tp.pos, tp.pos) / gyration);
        const double friction = std::max(tp.mu, tp.mu_lng) * share * g / kSlipSpeed;
        const double rate = std::sqrt(tp.stiffness * lever / share) + (tp.damping + friction) * lever / share;
        fastest = std::max(fastest, rate);
    }
    return fastest;
}

} // namespace hullhost::physics
