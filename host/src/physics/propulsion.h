// Thrusters: thrust, specific impulse against ambient pressure, propellant flow.
//
// A thruster's output level (the level the vessel set, plus the host's firing
// from the user's keys) fixes its propellant flow, level * maxThrust0 / isp0
// (divided by the tank's efficiency); the thrust is that flow times the
// specific impulse at the ambient pressure, which runs linearly from isp0 in
// vacuum to ispRef at pRef. A thruster without a tank, or on an empty one,
// gives nothing.
#pragma once

#include <cmath>

#include "OrbiterAPI.h"

namespace hullhost {
class Vessel;
struct Thruster;
} // namespace hullhost

namespace hullhost::physics {

double ThrusterIsp(const Thruster &th, double pressure);
// Thrust magnitude at the thruster's level [N].
double ThrusterForce(const Thruster &th, double pressure);
// Propellant mass flow at the thruster's level [kg/s].
double ThrusterFlow(const Thruster &th);

struct ThrustLoad {
    VECTOR3 force{0, 0, 0};        // vessel frame [N]
    VECTOR3 torque{0, 0, 0};       // vessel frame [N m]
    double massFlow = 0.0;         // [kg/s]
    double timeToEmpty = HUGE_VAL; // until the first tank in use runs dry [s]
};

ThrustLoad TotalThrust(const Vessel &v, double pressure);

// Takes `dt` seconds of flow from the tanks and records each tank's flow rate.
void BurnPropellant(Vessel &v, double dt);

} // namespace hullhost::physics
