// Two-body arithmetic of the flight program's guidance: anomalies and times
// on an ellipse, the time to the next equator crossing, and the search for
// the apogee of a lunar transfer. Pure functions of their arguments; angles
// in radians, times in seconds, lengths in metres.
#pragma once

#include "OrbiterAPI.h"

namespace guidance {

inline constexpr double kPi = 3.141592653589793;
inline constexpr double kTwoPi = 2.0 * kPi;

// Eccentric anomaly of true anomaly `nu` on an ellipse of eccentricity `e`,
// in 0 to 2 pi.
double EccentricAnomaly(double e, double nu);

// Time from periapsis to true anomaly `nu` on an orbit of period `T`.
double TimeFromPeriapsis(double e, double nu, double T);

// The eccentricity vector of position `r` and velocity `v` about a body of
// gravitational parameter `mu`.
VECTOR3 EccentricityVector(double mu, const VECTOR3 &r, const VECTOR3 &v);

// The angle from `evec` to `r`, in 0 to 2 pi: past pi while the body falls
// toward periapsis.
double TrueAnomaly(const VECTOR3 &evec, const VECTOR3 &r, const VECTOR3 &v);

// The angle from `node` to `evec`, in 0 to 2 pi: past pi when `evec` points
// below the reference plane (negative z).
double ArgumentFromNode(const VECTOR3 &node, const VECTOR3 &evec);

// Time to the next equator crossing of an orbit whose argument of perigee is
// `w` (0 to 2 pi), with the times `PeT` and `ApT` to the next perigee and
// apogee. Exact on a circular orbit.
double TimeToEquator(double e, double w, double T, double PeT, double ApT);

// What the apogee search found.
struct TransferApogee {
    double apogee; // [m] radius of the transfer orbit's apogee
    int passes;    // steps taken, 1 to kMaxApogeePasses
};

inline constexpr int kMaxApogeePasses = 10002;

// The lowest apogee, in steps of a thousandth of `nodeRadius` above it, of an
// ellipse with its perigee at `radiusNow` that reaches `nodeRadius` within
// `nodeTime` seconds from the perigee; the last step tried when none does.
TransferApogee SearchTransferApogee(double mu, double radiusNow, double nodeRadius, double nodeTime);

} // namespace guidance
