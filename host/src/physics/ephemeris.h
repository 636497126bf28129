// Where the bodies are: each moves on a Keplerian orbit around its parent and
// turns uniformly about its axis. Times are seconds since MJD 51544.5.
#pragma once

#include "OrbiterAPI.h"

namespace hullhost {
class Body;
class World;
} // namespace hullhost

namespace hullhost::physics {

inline constexpr double kGravitationalConstant = 6.67259e-11;
inline constexpr double kEpochMjd = 51544.5;

// The world's time [s since the epoch], `offset` seconds after its current time.
double EphemerisTime(const World &world, double offset = 0.0);

// Gravitational parameter of the body's orbit around its parent: G (M + m).
double OrbitalMu(const Body &body);

// Global position and velocity of a body at time t.
void BodyStateAt(const Body &body, double t, VECTOR3 &pos, VECTOR3 &vel);
// Body frame (left-handed: x to longitude 0, y to the north pole, z to 90 deg
// east) to global frame at time t.
MATRIX3 BodyRotationAt(const Body &body, double t);
// The body's equatorial, non-rotating frame to the global frame.
MATRIX3 EquatorialFrame(const Body &body);

// The angular velocity of the body's rotation, global frame [rad/s]: a point
// fixed on the body at relative position r moves with crossp(r, spin).
VECTOR3 SpinVector(const Body &body);
inline VECTOR3 SurfaceVelocity(const Body &body, const VECTOR3 &r) { return crossp(r, SpinVector(body)); }

} // namespace hullhost::physics
