// Gravity of the bodies: point masses, with the second zonal harmonic where a
// body has one.
#pragma once

#include <array>

#include "OrbiterAPI.h"

namespace hullhost {
class Body;
class World;
} // namespace hullhost

namespace hullhost::physics {

inline constexpr int kMaxBodies = 16;

// The bodies' positions at one moment, for the force evaluations of a step.
struct BodySnapshot {
    int count = 0;
    std::array<const Body *, kMaxBodies> body{};
    std::array<VECTOR3, kMaxBodies> pos{};
    std::array<VECTOR3, kMaxBodies> north{}; // spin axis, global frame
};

BodySnapshot SnapshotAt(const World &world, double t);
// The bodies where they stand now.
BodySnapshot CurrentSnapshot(const World &world);

// Acceleration of one body's gravity at the position `d` relative to it.
VECTOR3 BodyGravity(const Body &body, const VECTOR3 &north, const VECTOR3 &d);
// Potential energy per unit mass of that gravity [J/kg].
double BodyPotential(const Body &body, const VECTOR3 &north, const VECTOR3 &d);

// Acceleration of a point at `r` relative to the reference body (global
// axes), in that body's free-falling frame: the reference body's gravity plus
// the tides of all others. With no reference, r is global and the result the
// plain sum.
VECTOR3 RelativeGravity(const BodySnapshot &snap, const Body *ref, const VECTOR3 &r);

// Sum of all bodies' gravity at a global position.
VECTOR3 TotalGravity(const BodySnapshot &snap, const VECTOR3 &globalPos);

// The body whose gravity is strongest at a global position.
const Body *StrongestGravitySource(const World &world, const VECTOR3 &globalPos);

// The body within whose sphere of influence a global position lies (the
// smallest one), or the root body: the frame in which a vessel's motion is
// integrated and reported.
const Body *DominantBody(const World &world, const VECTOR3 &globalPos);

} // namespace hullhost::physics
