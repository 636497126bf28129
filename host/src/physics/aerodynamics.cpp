#include "physics/aerodynamics.h"

#include <cmath>

#include "core/body.h"
#include "core/vessel.h"
#include "physics/ephemeris.h"

namespace hullhost::physics {

namespace {

// Dynamic viscosity of air by Sutherland's law [Pa s].
double Viscosity(double temperature) { return 1.458e-6 * std::pow(temperature, 1.5) / (temperature + 110.4); }

VECTOR3 CrossSectionDrag(const Vessel &v, const AirData &a) {
    const VECTOR3 d = a.airspeedLocal / a.airspeed; // direction of motion through the air
    const double cz = d.z >= 0.0 ? v.cw[0] : v.cw[1];
    const double area = std::fabs(d.x) * v.crossSections.x * v.cw[2] +
                        std::fabs(d.y) * v.crossSections.y * v.cw[3] +
                        std::fabs(d.z) * v.crossSections.z * cz;
    return d * (-a.dynPressure * area);
}

void AddAirfoil(const Vessel &v, const Airfoil &af, const AirData &a, AeroLoad &load) {
    const VECTOR3 s = a.airspeedLocal;
    const bool vertical = af.align == LIFT_VERTICAL;
    const double angle = vertical ? AngleOfAttack(s) : SlipAngle(s);
    const double reynolds =
        a.air.temperature > 0.0 ? a.air.density * a.airspeed * af.chord / Viscosity(a.air.temperature) : 0.0;
    double cl = 0.0, cm = 0.0, cd = 0.0;
    if (af.coeff) {
        af.coeff(v.iface, angle, a.mach, reynolds, af.context, &cl, &cm, &cd);
    }
    const double qs = a.dynPressure * af.area;
    const VECTOR3 flowDir = s / a.airspeed;
    // Lift is perpendicular to the flow within the airfoil's plane, toward +y
    // (vertical) or +x (horizontal) for a positive coefficient in level flight.
    VECTOR3 liftDir = vertical ? VECTOR3{0, s.z, -s.y} : VECTOR3{s.z, 0, -s.x};
    const double ll = length(liftDir);
    liftDir = ll > 0.0 ? liftDir / ll : VECTOR3{0, 0, 0};
    const VECTOR3 lift = liftDir * (qs * cl);
    const VECTOR3 drag = flowDir * (-qs * cd);
    load.lift += lift;
    load.drag += drag;
    load.torque += crossp(lift + drag, af.ref);
    // A positive moment coefficient turns the nose away from the flow: up for
    // the angle of attack, right for the sideslip.
    const double moment = qs * af.chord * cm;
    load.torque += vertical ? VECTOR3{moment, 0, 0} : VECTOR3{0, -moment, 0};
}

} // namespace

double AngleOfAttack(const VECTOR3 &s) { return std::atan2(-s.y, s.z); }
double SlipAngle(const VECTOR3 &s) { return std::atan2(-s.x, s.z); }

AirData AirDataAt(const Body *body, const VECTOR3 &r, const VECTOR3 &v, const MATRIX3 &R) {
    AirData a;
    if (!body) {
        a.airspeedGlobal = v;
    } else {
        a.airspeedGlobal = v - SurfaceVelocity(*body, r);
        if (body->hasAtmosphere) {
            a.air = StandardAtmosphere(length(r) - body->radius);
        }
    }
    a.airspeedLocal = tmul(R, a.airspeedGlobal);
    a.airspeed = length(a.airspeedGlobal);
    a.dynPressure = 0.5 * a.air.density * a.airspeed * a.airspeed;
    a.mach = a.air.speedOfSound > 0.0 ? a.airspeed / a.air.speedOfSound : 0.0;
    return a;
}

AeroLoad AerodynamicLoad(const Vessel &v, const AirData &a) {
    AeroLoad load;
    if (a.dynPressure <= 0.0 || a.airspeed <= 0.0) {
        return load;
    }
    if (v.airfoils.empty()) {
        load.drag = CrossSectionDrag(v, a);
        return load;
    }
    for (const auto &af : v.airfoils) {
        AddAirfoil(v, *af, a, load);
    }
    return load;
}

} // namespace hullhost::physics
