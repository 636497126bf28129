// A celestial body: a point mass with a radius, a Keplerian orbit around its
// parent and a uniform rotation about a tilted axis.
#pragma once

#include "object.h"

namespace hullhost {

struct KeplerOrbit {
    double a = 0.0;      // semi-major axis [m]
    double e = 0.0;      // eccentricity
    double i = 0.0;      // inclination to the ecliptic [rad]
    double theta = 0.0;  // longitude of the ascending node [rad]
    double omegab = 0.0; // longitude of periapsis [rad]
    double L0 = 0.0;     // mean longitude at epochMjd [rad]
    double epochMjd = 51544.5;
};

class Body : public Object {
  public:
    explicit Body(std::string name) : Object(ObjectKind::Body, std::move(name)) {}

    double mass = 0.0;   // [kg]
    double radius = 0.0; // mean radius [m]
    double gm = 0.0;     // gravitational parameter [m^3/s^2]
    bool hasAtmosphere = false;
    double j2 = 0.0; // second zonal harmonic against `radius`; 0 for a point mass

    Body *parent = nullptr; // null for the Sun
    KeplerOrbit orbit;      // around the parent, ecliptic frame

    double siderealPeriod = 0.0; // [s]; 0 for no rotation
    double obliquity = 0.0;      // axis tilt against the ecliptic normal [rad]
    double rotationOffset = 0.0; // rotation angle at epochMjd [rad]
    double rotationEpochMjd = 51544.5;

    // Body frame to global frame, and its rotation rate, as of the last update.
    MATRIX3 rot{1, 0, 0, 0, 1, 0, 0, 0, 1};
    // Equatorial (non-rotating) frame to global frame.
    MATRIX3 equatorial{1, 0, 0, 0, 1, 0, 0, 0, 1};
};

} // namespace hullhost
