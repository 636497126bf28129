// Shared set-up for the flight model's tests: a world with or without the
// solar system, bare vessels and a clock.
#pragma once

#include <cmath>
#include <memory>
#include <string>

#include "core/body.h"
#include "core/world.h"

namespace hullhost::testing {

// A world whose only body is a non-rotating, airless Earth at rest at the
// origin: two-body motion without tides.
inline void KeepOnlyPlainEarth(World &world, double j2 = 0.0) {
    world.bodies.clear();
    auto earth = std::make_unique<Body>("Earth");
    earth->gm = 3.986004418e14;
    earth->mass = earth->gm / 6.67259e-11;
    earth->radius = 6371010.0;
    earth->j2 = j2;
    world.bodies.push_back(std::move(earth));
}

// A vessel of `mass` kg at the given state relative to the world's Earth (or
// the origin when there are no bodies).
inline Vessel &AddVessel(World &world, const std::string &name, double mass, const VECTOR3 &rpos,
                         const VECTOR3 &rvel) {
    Vessel &v = world.AddBareVessel(name);
    Body *earth = world.Earth();
    v.ref = earth;
    v.emptyMass = mass;
    v.pos = earth ? earth->pos + rpos : rpos;
    v.vel = earth ? earth->vel + rvel : rvel;
    return v;
}

// Runs frames of `frame` seconds of real time at the world's time
// acceleration until `duration` seconds of simulation time have passed.
inline void RunFor(World &world, double duration, double frame = 1.0 / 60.0) {
    const double end = world.simt + duration;
    while (world.simt < end - 1e-9) {
        const double step = std::min(frame * world.accel, end - world.simt);
        world.Frame(step / world.accel);
    }
}

// A global vector in the vessel frame from the orientation angles, written
// out as a vessel module does it.
inline VECTOR3 BodyVector(const VECTOR3 &arot, const VECTOR3 &v) {
    const double cx = std::cos(arot.x), sx = std::sin(arot.x), cy = std::cos(arot.y), sy = std::sin(arot.y);
    const double cz = std::cos(arot.z), sz = std::sin(arot.z);
    return {v.x * cz * cy + v.y * (cz * sy * sx - sz * cx) + v.z * (sz * sx + cz * sy * cx),
            v.x * sz * cy + v.y * (cz * cx + sz * sy * sx) + v.z * (sz * sy * cx - cz * sx),
            -v.x * sy + v.y * cy * sx + v.z * cy * cx};
}

// A 100 kg tank and, for each attitude group, a pair of thrusters of `thrust`
// newtons 5 m from the vessel's centre, named for the turn they make.
inline void AddAttitudeGroups(Vessel &v, double thrust, double isp) {
    auto tank = std::make_unique<Propellant>();
    tank->maxMass = tank->mass = 100.0;
    Propellant *p = tank.get();
    v.propellants.push_back(std::move(tank));
    const struct {
        THGROUP_TYPE type;
        VECTOR3 p1, d1, p2, d2;
    } pairs[] = {{THGROUP_ATT_PITCHUP, {0, 0, 5}, {0, 1, 0}, {0, 0, -5}, {0, -1, 0}},
                 {THGROUP_ATT_PITCHDOWN, {0, 0, 5}, {0, -1, 0}, {0, 0, -5}, {0, 1, 0}},
                 {THGROUP_ATT_YAWRIGHT, {0, 0, 5}, {1, 0, 0}, {0, 0, -5}, {-1, 0, 0}},
                 {THGROUP_ATT_YAWLEFT, {0, 0, 5}, {-1, 0, 0}, {0, 0, -5}, {1, 0, 0}},
                 {THGROUP_ATT_BANKRIGHT, {5, 0, 0}, {0, -1, 0}, {-5, 0, 0}, {0, 1, 0}},
                 {THGROUP_ATT_BANKLEFT, {5, 0, 0}, {0, 1, 0}, {-5, 0, 0}, {0, -1, 0}}};
    for (const auto &pair : pairs) {
        auto group = std::make_unique<ThrusterGroup>();
        group->type = pair.type;
        for (auto [pos, dir] : {std::pair{pair.p1, pair.d1}, std::pair{pair.p2, pair.d2}}) {
            auto th = std::make_unique<Thruster>();
            th->pos = pos;
            th->dir = dir;
            th->maxThrust0 = thrust;
            th->isp0 = isp;
            th->propellant = p;
            group->thrusters.push_back(th.get());
            v.thrusters.push_back(std::move(th));
        }
        v.groups.push_back(std::move(group));
    }
}

inline constexpr double kEarthMu = 3.986004418e14;
inline constexpr double kEarthRadius = 6371010.0;

} // namespace hullhost::testing
