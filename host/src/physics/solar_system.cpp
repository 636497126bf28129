// The Sun, the Earth and the Moon.
#include <cmath>
#include <memory>

#include "core/world.h"
#include "physics/ephemeris.h"
#include "physics/flight_model.h"
#include "physics/kepler.h"

namespace hullhost::physics {

namespace {

constexpr double kDeg = PI / 180.0;

Body &AddBody(World &world, const char *name) {
    world.bodies.push_back(std::make_unique<Body>(name));
    return *world.bodies.back();
}

} // namespace

void InitSolarSystem(World &world) { InitSolarSystem(world, SolarSystemOptions{}); }

void InitSolarSystem(World &world, const SolarSystemOptions &options) {
    Body &sun = AddBody(world, "Sun");
    sun.mass = 1.98847e30;
    sun.gm = kGravitationalConstant * sun.mass;
    sun.radius = 6.957e8;
    sun.siderealPeriod = 25.38 * 86400.0;
    sun.obliquity = 7.25 * kDeg;

    Body &earth = AddBody(world, "Earth");
    earth.gm = 3.986004418e14;
    earth.mass = earth.gm / kGravitationalConstant;
    earth.radius = 6371010.0;
    earth.hasAtmosphere = true;
    earth.j2 = options.earthJ2 ? 1.0850e-3 : 0.0; // 1.08263e-3 against the equatorial radius
    earth.parent = &sun;
    // Mean heliocentric elements at J2000; the semi-major axis follows from
    // the sidereal year and the masses.
    const double year = 365.256363004 * 86400.0;
    const double earthA = std::cbrt(OrbitalMu(earth) * (year / PI2) * (year / PI2));
    earth.orbit = {earthA, 0.01671123, 0.0, 0.0, 102.93768193 * kDeg, 100.46457166 * kDeg, kEpochMjd};
    earth.siderealPeriod = 86164.1;
    earth.obliquity = 23.44 * kDeg;
    earth.rotationOffset = 280.46061837 * kDeg; // Greenwich sidereal angle at J2000
    earth.rotationEpochMjd = kEpochMjd;

    Body &moon = AddBody(world, "Moon");
    moon.mass = 7.342e22;
    moon.gm = kGravitationalConstant * moon.mass;
    moon.radius = 1737400.0;
    moon.parent = &earth;
    const double period = 2360591.597;
    const double mu = OrbitalMu(moon);
    const double a = std::cbrt(mu * (period / PI2) * (period / PI2));
    const double node = 125.08 * kDeg, periapsis = node + 318.15 * kDeg;
    const double meanLongitude = 218.32 * kDeg;
    moon.orbit = {a, 0.0549, 5.145 * kDeg, node, NormalAngle(periapsis), meanLongitude, kEpochMjd};
    // Bound rotation: longitude 0 faces the Earth on average.
    moon.siderealPeriod = period;
    moon.obliquity = 1.5424 * kDeg;
    moon.rotationOffset = NormalAngle(meanLongitude + PI);
    moon.rotationEpochMjd = kEpochMjd;

    UpdateBodies(world);
}

void UpdateBodies(World &world) { PlaceBodies(world, EphemerisTime(world)); }

void PlaceBodies(World &world, double t) {
    for (auto &b : world.bodies) {
        BodyStateAt(*b, t, b->pos, b->vel);
        b->rot = BodyRotationAt(*b, t);
        b->equatorial = EquatorialFrame(*b);
    }
}

} // namespace hullhost::physics
