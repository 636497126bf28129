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
        s.north[s.count] = Column(b->equatorial, 1);
        ++s.count;
    }
    return s;
}

FrameSnapshots::FrameSnapshots(const World &world, double t0, double t1) : world_(world), t0_(t0), t1_(t1) {
    for (const auto &b : world.bodies) {
        if (start_.count == kMaxBodies)
            break;
        const int i = start_.count++;
        end_.count = start_.count;
        start_.body[i] = end_.body[i] = b.get();
        start_.north[i] = end_.north[i] = Column(b->equatorial, 1);
        BodyStateAt(*b, t0, start_.pos[i], startVel_[i]);
        BodyStateAt(*b, t1, end_.pos[i], endVel_[i]);
    }
}

BodySnapshot FrameSnapshots::At(double t) const {
    const double h = t1_ - t0_;
    if (t == t0_)
        return start_;
    if (t == t1_)
        return end_;
    if (!(h > 0.0) || h > kMaxSpan)
        return SnapshotAt(world_, t);
    // Cubic Hermite interpolation between the two ends.
    const double s = (t - t0_) / h, s2 = s * s, s3 = s2 * s;
    const double p0 = 2 * s3 - 3 * s2 + 1, v0 = (s3 - 2 * s2 + s) * h, p1 = -2 * s3 + 3 * s2,
                 v1 = (s3 - s2) * h;
    BodySnapshot snap = start_;
    for (int i = 0; i < snap.count; ++i)
        snap.pos[i] = start_.pos[i] * p0 + startVel_[i] * v0 + end_.pos[i] * p1 + endVel_[i] * v1;
    return snap;
}

void FrameSnapshots::EndState(const Body &body, VECTOR3 &pos, VECTOR3 &vel) const {
    for (int i = 0; i < end_.count; ++i)
        if (end_.body[i] == &body) {
            pos = end_.pos[i];
            vel = endVel_[i];
            return;
        }
    BodyStateAt(body, t1_, pos, vel);
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
