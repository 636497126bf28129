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

// The bodies' places within one frame, from t0 to t1. The ephemeris is
// solved at both ends only; in between, each body follows the cubic that
// matches its place and velocity at both ends, whose error over a frame of
// up to kMaxSpan is far below a millimetre for the Moon's and the planets'
// motion. A longer frame is solved exactly at every moment asked for.
class FrameSnapshots {
  public:
    FrameSnapshots(const World &world, double t0, double t1);
    BodySnapshot At(double t) const;
    // A body's exact state at t1.
    void EndState(const Body &body, VECTOR3 &pos, VECTOR3 &vel) const;

    static constexpr double kMaxSpan = 3600.0; // [s]

  private:
    const World &world_;
    double t0_, t1_;
    BodySnapshot start_, end_;
    std::array<VECTOR3, kMaxBodies> startVel_{}, endVel_{};
};
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
