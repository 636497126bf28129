// The step operations that look at the orbit: when a burn has reached its
// target, when a coast has reached its event, and the apogee of a transfer
// to the Moon.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "stage/guidance_math.h"
#include "stage/korvan.h"

using guidance::kPi;
using guidance::kTwoPi;

namespace {

// Altitudes of the program are above this fixed radius, not the host's.
constexpr double kEarthRadius = 6371000.0;
constexpr double kG = 6.67259e-11;
constexpr double kMoonPeriod = 2360591.597; // [s]
constexpr double kHalfMoonPeriod = 1180295.7985;
constexpr double kRadToDeg = 57.29577951308232;

// The argument of perigee, brought into 0 to 2 pi by one turn.
double PerigeeArgument(const ELEMENTS &el) {
    double w = el.omegab - el.theta;
    if (w < 0.0)
        w += kTwoPi;
    else if (w > kTwoPi)
        w -= kTwoPi;
    return w;
}

} // namespace

void FlightProgram::StepBurn() {
    Korvan &k = *vessel;
    ProgramStep &step = *current;
    k.MaxTimeAccel = 10.0;
    const double apo = k.ApDist - kEarthRadius, peri = k.PeDist - kEarthRadius;
    switch (step.target) {
    case ProgramStep::kApo:
    case ProgramStep::kApoL:
        std::snprintf(text, sizeof text, "Burning: %.0f of %.0f km apogee", apo / 1000.0, step.targetKm);
        step.done = step.target == ProgramStep::kApo ? apo >= step.targetM : step.targetM >= apo;
        break;
    case ProgramStep::kApoE: {
        const double w = PerigeeArgument(elements);
        std::snprintf(text, sizeof text, "Burning: %.0f of %.0f km apogee, %.0f of 180 PeriArg", apo / 1000.0,
                      step.targetKm, w * kRadToDeg);
        step.done = apo >= step.targetM && w >= kPi;
        break;
    }
    case ProgramStep::kPeri:
    case ProgramStep::kPeriL:
        std::snprintf(text, sizeof text, "Burning: %.0f of %.0f km perigee", peri / 1000.0, step.targetKm);
        step.done = step.target == ProgramStep::kPeri ? peri >= step.targetM : step.targetM >= peri;
        break;
    case ProgramStep::kInc: {
        std::snprintf(text, sizeof text, "Burning: %.0f to %.0f deg inclination", elements.i * kRadToDeg,
                      step.incDeg);
        double longitude = 0.0, latitude = 0.0, radius = 0.0;
        k.GetEquPos(longitude, latitude, radius);
        // The inclination can't fall below the latitude: there the burn ends
        // a little above it.
        if (std::fabs(latitude) > step.incRad)
            step.done = std::fabs(latitude) * 1.01 >= elements.i;
        else
            step.done = step.incRad >= elements.i;
        break;
    }
    case ProgramStep::kMoon: {
        const double ap = k.ApDist; // a radius
        if (ap > moonThrottleApogee + 3000.0)
            k.DropTimeAccel();
        // The last 5 percent of the apogee are made at a tenth of the thrust.
        if (ap > moonThrottleApogee && k.groupMain)
            k.SetThrusterGroupLevel(k.groupMain, 0.1);
        std::snprintf(text, sizeof text, "Burning: %.0f of %.0f km apogee", ap / 1000.0, moonApogee / 1000.0);
        step.done = ap > moonApogee;
        break;
    }
    default:
        break;
    }
    // An empty main tank ends any burn; for a burn without a target it is the only end.
    if (!k.MainTank || k.GetPropellantMass(k.MainTank) / k.GetPropellantMaxMass(k.MainTank) == 0.0)
        step.done = true;
}

void FlightProgram::StepIdle() {
    ProgramStep &step = *current;
    vessel->MaxTimeAccel = 1000000.0;
    double v = 0.0;
    switch (step.target) {
    case ProgramStep::kNone:
        v = apTimer;
        std::snprintf(text, sizeof text, "Coasting: %.0f", v);
        break;
    case ProgramStep::kApo:
        v = orbit.ApT + step.duration;
        std::snprintf(text, sizeof text, "Coasting to apogee:  %.0f", v);
        break;
    case ProgramStep::kPeri:
        v = orbit.PeT + step.duration;
        std::snprintf(text, sizeof text, "Coasting to perigee:  %.0f", v);
        break;
    case ProgramStep::kEqu:
        v = guidance::TimeToEquator(elements.e, PerigeeArgument(elements), orbit.T, orbit.PeT, orbit.ApT) +
            step.duration;
        std::snprintf(text, sizeof text, "Coasting to equator:  %.0f", v);
        break;
    case ProgramStep::kMoon:
        v = orbit.PeT + step.duration;
        std::snprintf(text, sizeof text, "Coasting to lunar transfer insertion:  %.0f", v);
        break;
    default:
        return; // no orbital event of its own: the step waits for the user
    }
    step.done = 0.0 >= v;
}

void FlightProgram::PrepareLunarTransfer() {
    using namespace guidance;
    Korvan &k = *vessel;
    const double earthMass = oapiGetMass(k.EarthHandle), moonMass = oapiGetMass(k.MoonHandle);
    k.MuEarth = kG * earthMass;
    k.MuEarthMoon = (earthMass + moonMass) * kG;

    // The Moon's orbit and its frame: x to its periapsis, z along its angular momentum.
    VECTOR3 r, v;
    oapiGetRelativePos(k.MoonHandle, k.EarthHandle, &r);
    oapiGetRelativeVel(k.MoonHandle, k.EarthHandle, &v);
    const VECTOR3 z = unit(crossp(r, v));
    const VECTOR3 moonEvec = EccentricityVector(k.MuEarthMoon, r, v);
    k.MoonEcc = length(moonEvec);
    const VECTOR3 x = moonEvec / k.MoonEcc;
    const VECTOR3 y = unit(crossp(z, x));
    k.MoonFrame = _M(x.x, x.y, x.z, y.x, y.y, y.z, z.x, z.y, z.z);
    k.MoonTrueAnomaly = TrueAnomaly(moonEvec, r, v);
    const double moonEnergy = dotp(v, v) / 2.0 - k.MuEarthMoon / length(r);
    k.MoonSemiLatus = (1.0 - k.MoonEcc * k.MoonEcc) * (-k.MuEarthMoon / (2.0 * moonEnergy));

    // The line where the vessel's orbit crosses the Moon's plane.
    VECTOR3 pos, vel;
    k.GetRelativePos(k.EarthHandle, pos);
    k.GetRelativeVel(k.EarthHandle, vel);
    k.PosInMoonFrame = mul(k.MoonFrame, pos);
    k.VelInMoonFrame = mul(k.MoonFrame, vel);
    k.RadiusNow = length(k.PosInMoonFrame);
    k.SpeedNow = length(k.VelInMoonFrame);
    k.NodeVector = crossp(_V(0, 0, 1), crossp(k.PosInMoonFrame, k.VelInMoonFrame));
    k.NodeUnit = unit(k.NodeVector);

    // When the Moon gets there: both times counted from its periapsis, within
    // half a period either side of it, so the difference may be negative.
    double f = std::acos(std::clamp(k.NodeUnit.x, -1.0, 1.0));
    if (k.NodeUnit.y < 0.0)
        f = kTwoPi - f;
    double tn = TimeFromPeriapsis(k.MoonEcc, f, kMoonPeriod);
    double t0 = TimeFromPeriapsis(k.MoonEcc, k.MoonTrueAnomaly, kMoonPeriod);
    if (tn > kHalfMoonPeriod)
        tn -= kMoonPeriod;
    if (t0 > kHalfMoonPeriod)
        t0 -= kMoonPeriod;
    k.MoonNodeRadius = k.MoonSemiLatus / (1.0 + k.MoonEcc * std::cos(f));
    k.MoonNodeTime = tn - t0;

    // When the vessel gets there: the later of its two crossings of the line.
    const VECTOR3 evec = EccentricityVector(k.MuEarth, k.PosInMoonFrame, k.VelInMoonFrame);
    const double e = length(evec);
    const double now = TrueAnomaly(evec, k.PosInMoonFrame, k.VelInMoonFrame);
    const double g = ArgumentFromNode(k.NodeVector, evec);
    const double energy = k.SpeedNow * k.SpeedNow / 2.0 - k.MuEarth / k.RadiusNow;
    const double a = -k.MuEarth / (2.0 * energy);
    const double T = kTwoPi * std::sqrt(a * a * a / k.MuEarth);
    const double tNow = TimeFromPeriapsis(e, now, T);
    double d1 = TimeFromPeriapsis(e, kTwoPi - g, T) - tNow;
    if (d1 < 0.0)
        d1 += T;
    double g2 = g + kPi;
    if (g2 > kTwoPi)
        g2 -= kTwoPi;
    double d2 = TimeFromPeriapsis(e, kTwoPi - g2, T) - tNow;
    if (d2 < 0.0)
        d2 += T;
    const double delay = std::fmax(d1, d2) + current->value;

    // What is left of the Moon's time once the vessel stands at its node.
    k.MoonNodeTime -= delay;
    const TransferApogee found =
        SearchTransferApogee(k.MuEarth, k.RadiusNow, k.MoonNodeRadius, k.MoonNodeTime);
    moonApogee = found.apogee;
    moonThrottleApogee = 0.95 * found.apogee;
}
