#include "physics/propulsion.h"

#include <algorithm>

#include "core/vessel.h"

namespace hullhost::physics {

namespace {

// What is left in a tank after a burn that would feed its thrusters for less
// than this is a rounding residue, not a supply: the tank is empty.
constexpr double kResidueTime = 1e-6; // [s]

bool Fed(const Thruster &th) { return th.Output() > 0.0 && th.propellant && th.propellant->mass > 0.0; }

} // namespace

double ThrusterIsp(const Thruster &th, double pressure) {
    if (th.ispRef <= 0.0 || th.pRef <= 0.0) {
        return th.isp0;
    }
    return std::max(0.0, th.isp0 - (th.isp0 - th.ispRef) * pressure / th.pRef);
}

double ThrusterForce(const Thruster &th, double pressure) {
    if (!Fed(th)) {
        return 0.0;
    }
    const double full = th.Output() * th.maxThrust0;
    return th.isp0 > 0.0 ? full * ThrusterIsp(th, pressure) / th.isp0 : full;
}

double ThrusterFlow(const Thruster &th) {
    if (!Fed(th) || th.isp0 <= 0.0) {
        return 0.0;
    }
    const double efficiency = th.propellant->efficiency > 0.0 ? th.propellant->efficiency : 1.0;
    return th.Output() * th.maxThrust0 / (th.isp0 * efficiency);
}

ThrustLoad TotalThrust(const Vessel &v, double pressure) {
    ThrustLoad load;
    for (const auto &th : v.thrusters) {
        const double f = ThrusterForce(*th, pressure);
        if (f == 0.0) {
            continue;
        }
        const VECTOR3 force = unit(th->dir) * f;
        load.force += force;
        load.torque += crossp(force, th->pos);
        load.massFlow += ThrusterFlow(*th);
    }
    if (load.massFlow > 0.0) {
        for (const auto &p : v.propellants) {
            double flow = 0.0;
            for (const auto &th : v.thrusters) {
                if (th->propellant == p.get()) {
                    flow += ThrusterFlow(*th);
                }
            }
            if (flow > 0.0) {
                load.timeToEmpty = std::min(load.timeToEmpty, p->mass / flow);
            }
        }
    }
    return load;
}

void BurnPropellant(Vessel &v, double dt) {
    for (auto &p : v.propellants) {
        double flow = 0.0;
        for (const auto &th : v.thrusters) {
            if (th->propellant == p.get()) {
                flow += ThrusterFlow(*th);
            }
        }
        p->flowRate = flow;
        if (flow > 0.0) {
            const double left = p->mass - flow * dt;
            p->mass = left > flow * kResidueTime ? left : 0.0;
        }
    }
}

} // namespace hullhost::physics
