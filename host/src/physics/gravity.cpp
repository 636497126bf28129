#include "physics/gravity.h"

#include <cmath>

#include "core/body.h"
#include "core/world.h"
#include "physics/ephemeris.h"
#include "physics/rotation.h"

namespace hullhost::physics {

BodySnapshot SnapshotAt(const World &world, double t) {
    BodySnapshot s;
    for (const auto &b : world.bodies) {
        if (s.count == kMaxBodies) {
            break;
        }
        VECTOR3 vel;
        s.body[s.count] = b.get();
        BodyStateAt(*b, t, s.pos[s.count], vel);
        s.north[s.count] = Column(EquatorialFrame(*b), 1);
        ++s.count;
    }
    return s;
}

BodySnapshot CurrentSnapshot(const World &world) {
    BodySnapshot s;
    for (const auto &b : world.bodies) {
        if (s.count == kMaxBodies) {
            break;
        }
        s.body[s.count] = b.get();
        s.pos[s.count] = b->pos;
        s.north[s.count] = Column(b->equatorial, 1);
        ++s.count;
    }
    return s;
}

VECTOR3 BodyGravity(const Body &body, const VECTOR3 &north, const VECTOR3 &d) {
    const double r2 = dotp(d, d);
    const double r = std::sqrt(r2);
    VECTOR3 a = d * (-body.gm / (r2 * r));
    if (body.j2 != 0.0) {
        const double z = dotp(d, north);
        const double f = -1.5 * body.j2 * body.gm * body.radius * body.radius / (r2 * r2 * r);
        a += (d * (1.0 - 5.0 * z * z / r2) + north * (2.0 * z)) * f;
    }
    return a;
}

double BodyPotential(const Body &body, const VECTOR3 &north, const VECTOR3 &d) {
    const double r = length(d);
    double u = -body.gm / r;
    if (body.j2 != 0.0) {
        const double s = dotp(d, north) / r;
        u += body.gm / r * body.j2 * (body.radius / r) * (body.radius / r) * 0.5 * (3.0 * s * s - 1.0);
    }
    return u;
}

VECTOR3 RelativeGravity(const BodySnapshot &snap, const Body *ref, const VECTOR3 &r) {
    int refIndex = -1;
    for (int k = 0; k < snap.count; ++k) {
        if (snap.body[k] == ref) {
            refIndex = k;
        }
    }
    if (refIndex < 0) {
        return TotalGravity(snap, r);
    }
    const VECTOR3 refPos = snap.pos[refIndex];
    VECTOR3 a = BodyGravity(*ref, snap.north[refIndex], r);
    for (int k = 0; k < snap.count; ++k) {
        if (k == refIndex) {
            continue;
        }
        const VECTOR3 toRef = refPos - snap.pos[k];
        a += BodyGravity(*snap.body[k], snap.north[k], toRef + r) -
             BodyGravity(*snap.body[k], snap.north[k], toRef);
    }
    return a;
}

VECTOR3 TotalGravity(const BodySnapshot &snap, const VECTOR3 &p) {
    VECTOR3 a{0, 0, 0};
    for (int k = 0; k < snap.count; ++k) {
        a += BodyGravity(*snap.body[k], snap.north[k], p - snap.pos[k]);
    }
    return a;
}

const Body *StrongestGravitySource(const World &world, const VECTOR3 &p) {
    const Body *best = nullptr;
    double strongest = -1.0;
    for (const auto &b : world.bodies) {
        const double d2 = dotp(p - b->pos, p - b->pos);
        const double g = d2 > 0.0 ? b->gm / d2 : HUGE_VAL;
        if (g > strongest) {
            strongest = g;
            best = b.get();
        }
    }
    return best;
}

const Body *DominantBody(const World &world, const VECTOR3 &p) {
    const Body *best = nullptr;
    double bestRadius = HUGE_VAL;
    for (const auto &b : world.bodies) {
        if (!b->parent) {
            if (!best) {
                best = b.get();
            }
            continue;
        }
        const double soi = b->orbit.a * std::pow(b->mass / b->parent->mass, 0.4);
        if (soi < bestRadius && dist(p, b->pos) < soi) {
            bestRadius = soi;
            best = b.get();
        }
    }
    if (!best && !world.bodies.empty()) {
        best = world.bodies.front().get();
    }
    return best;
}

} // namespace hullhost::physics
