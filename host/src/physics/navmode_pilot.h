// The host's own flying of the navigation modes that a vessel leaves to it:
// KILLROT stops the rotation; PROGRADE, RETROGRADE, NORMAL and ANTINORMAL
// point the nose (+z) along or against the velocity or the orbit normal
// (position cross velocity) against the surface reference; HLEVEL holds the
// up axis (+y) on the local vertical. Each of them damps the axes it doesn't
// point. HOLDALT is shown as active but not flown.
//
// The pilot fires the vessel's attitude thruster groups for one frame, like
// the user's keys: each axis gets a wanted rate from its angle error (square
// root near the thrust's braking curve, linear close in, at most kMaxRate)
// and a command that closes the rate gap over at least kRateTime or two
// frames, so that no frame can overshoot.
#pragma once

namespace hullhost {
class Vessel;
class World;
} // namespace hullhost

namespace hullhost::physics {

// The largest rate the pilot turns a vessel at [rad/s].
constexpr double kMaxRate = 0.1;
// The shortest time over which a rate gap is closed [s].
constexpr double kRateTime = 0.5;
// A rate gap below which the pilot doesn't fire [rad/s].
constexpr double kRateDeadband = 1e-6;

// Sets the host's firing of the vessel's attitude thrusters for a frame of
// `dt` simulation seconds; true when it fired any.
bool FlyNavmodes(const World &world, Vessel &v, double dt);

} // namespace hullhost::physics
