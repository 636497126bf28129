// Shared set-up for the flight model's tests: a world with or without the
// solar system, bare vessels and a clock.
#pragma once

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

inline constexpr double kEarthMu = 3.986004418e14;
inline constexpr double kEarthRadius = 6371010.0;

} // namespace hullhost::testing
