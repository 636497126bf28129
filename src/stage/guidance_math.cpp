// Two-body arithmetic of the guidance.
#include "stage/guidance_math.h"

#include <algorithm>
#include <cmath>

namespace guidance {

namespace {

// acos kept to its domain, so that rounding on parallel vectors gives 0 or pi.
double SafeAcos(double c) { return std::acos(std::clamp(c, -1.0, 1.0)); }

} // namespace

double EccentricAnomaly(double e, double nu) {
    const double E = 2.0 * std::atan(std::sqrt((1.0 - e) / (1.0 + e)) * std::tan(nu / 2.0));
    return E < 0.0 ? E + kTwoPi : E;
}

double TimeFromPeriapsis(double e, double nu, double T) {
    const double E = EccentricAnomaly(e, nu);
    return (E - e * std::sin(E)) / kTwoPi * T;
}

VECTOR3 EccentricityVector(double mu, const VECTOR3 &r, const VECTOR3 &v) {
    const VECTOR3 h = crossp(r, v);
    return crossp(v, h) / mu - r / length(r);
}

double TrueAnomaly(const VECTOR3 &evec, const VECTOR3 &r, const VECTOR3 &v) {
    const double nu = SafeAcos(dotp(r, evec) / (length(r) * length(evec)));
    return dotp(r, v) < 0.0 ? kTwoPi - nu : nu;
}

double ArgumentFromNode(const VECTOR3 &node, const VECTOR3 &evec) {
    const double g = SafeAcos(dotp(node, evec) / (length(node) * length(evec)));
    return evec.z < 0.0 ? kTwoPi - g : g;
}

double TimeToEquator(double e, double w, double T, double PeT, double ApT) {
    const bool pastPi = w > kPi;         // A
    const bool toApogee = PeT > ApT;     // B
    const double m = std::min(ApT, PeT); // the nearer apsis
    const double t1 = TimeFromPeriapsis(e, w, T);
    const double t2 = TimeFromPeriapsis(e, w + kPi, T);
    const double d1 = std::fabs(T / 2.0 - t1);
    const double d2 = std::fabs(T / 2.0 - t2);
    if (pastPi && toApogee)
        return t2 > m ? m + d2 : m - d1;
    if (pastPi)
        return t2 > m ? m + t1 : m - t2;
    if (toApogee)
        return d2 > m ? m + d1 : m - d2;
    return t1 > m ? m + t2 : m - t1;
}

TransferApogee SearchTransferApogee(double mu, double radiusNow, double nodeRadius, double nodeTime) {
    const double step = nodeRadius / 1000.0;
    TransferApogee found{nodeRadius, 0};
    while (found.passes < kMaxApogeePasses) {
        ++found.passes;
        found.apogee += step;
        // The transfer ellipse has its perigee at the present radius.
        const double a = (found.apogee + radiusNow) / 2.0;
        const double T = kTwoPi * std::sqrt(a * a * a / mu);
        const double e = (a - radiusNow) / a;
        // The true anomaly at which it reaches the Moon's radius, and when.
        const double nu = std::acos(((1.0 + e) * radiusNow / nodeRadius - 1.0) / e);
        const double t = TimeFromPeriapsis(e, nu, T);
        if (t - nodeTime <= 0.0)
            break;
    }
    return found;
}

} // namespace guidance
