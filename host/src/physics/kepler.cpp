#include "physics/kepler.h"

#include <cmath>

namespace hullhost::physics {

namespace {

constexpr double kTiny = 1e-11;

VECTOR3 RotateZ(const VECTOR3 &v, double a) {
    const double c = std::cos(a), s = std::sin(a);
    return {c * v.x - s * v.y, s * v.x + c * v.y, v.z};
}

VECTOR3 RotateX(const VECTOR3 &v, double a) {
    const double c = std::cos(a), s = std::sin(a);
    return {v.x, c * v.y - s * v.z, s * v.y + c * v.z};
}

// Perifocal (right-handed) to reference frame: Rz(node) Rx(i) Rz(argument of periapsis).
VECTOR3 FromPerifocal(const VECTOR3 &p, const ELEMENTS &el) {
    return RotateZ(RotateX(RotateZ(p, el.omegab - el.theta), el.i), el.theta);
}

// Angle from a to b about the axis h, all right-handed.
double AngleAbout(const VECTOR3 &a, const VECTOR3 &b, const VECTOR3 &h) {
    // crossp is the right-handed cross product in these coordinates.
    return std::atan2(dotp(crossp(a, b), h), dotp(a, b));
}

} // namespace

double NormalAngle(double a) {
    a = std::fmod(a, PI2);
    return a < 0.0 ? a + PI2 : a;
}

double EccentricAnomaly(double M, double e) {
    M = NormalAngle(M);
    double E = e < 0.8 ? M : PI;
    for (int k = 0; k < 50; ++k) {
        const double f = E - e * std::sin(E) - M;
        const double d = f / (1.0 - e * std::cos(E));
        E -= d;
        if (std::fabs(d) < 1e-15) {
            break;
        }
    }
    return E;
}

double HyperbolicAnomaly(double M, double e) {
    double F = std::asinh(M / e);
    for (int k = 0; k < 100; ++k) {
        const double f = e * std::sinh(F) - F - M;
        const double d = f / (e * std::cosh(F) - 1.0);
        F -= d;
        if (std::fabs(d) < 1e-15 * (1.0 + std::fabs(F))) {
            break;
        }
    }
    return F;
}

Orbit OrbitFromState(const VECTOR3 &rHost, const VECTOR3 &vHost, double mu) {
    const VECTOR3 r = Mirror(rHost), v = Mirror(vHost);
    const double rl = length(r), v2 = dotp(v, v);
    const VECTOR3 h = crossp(r, v);
    const double hl = length(h);
    const VECTOR3 hn = hl > 0.0 ? h / hl : VECTOR3{0, 0, 1};
    const VECTOR3 node{-h.y, h.x, 0.0};
    const double nodeLength = length(node);
    const VECTOR3 ev = ((v2 - mu / rl) * r - dotp(r, v) * v) / mu;

    Orbit o;
    ELEMENTS &el = o.el;
    ORBITPARAM &p = o.prm;
    const double energy = 0.5 * v2 - mu / rl;
    el.a = -mu / (2.0 * energy);
    el.e = length(ev);
    el.i = std::acos(std::fmax(-1.0, std::fmin(1.0, hn.z)));

    const bool equatorial = nodeLength <= kTiny * hl;
    const bool circular = el.e <= kTiny;
    const VECTOR3 nodeDir = equatorial ? VECTOR3{1, 0, 0} : node / nodeLength;
    el.theta = equatorial ? 0.0 : NormalAngle(std::atan2(node.y, node.x));
    const double argPeri = circular ? 0.0 : NormalAngle(AngleAbout(nodeDir, ev, hn));
    const VECTOR3 periDir = circular ? nodeDir : ev / el.e;
    const double nu = NormalAngle(AngleAbout(periDir, r, hn));
    el.omegab = NormalAngle(el.theta + argPeri);

    double M = 0.0, E = 0.0;
    if (el.e < 1.0) {
        E = std::atan2(std::sqrt(1.0 - el.e * el.e) * std::sin(nu), el.e + std::cos(nu));
        M = NormalAngle(E - el.e * std::sin(E));
        E = NormalAngle(E);
        const double n = std::sqrt(mu / (el.a * el.a * el.a));
        p.T = PI2 / n;
        p.PeT = (PI2 - M) / n;
        p.ApT = (M < PI ? PI - M : 3.0 * PI - M) / n;
        p.SMi = el.a * std::sqrt(1.0 - el.e * el.e);
        p.ApD = el.a * (1.0 + el.e);
    } else {
        const double s = std::sin(nu), c = std::cos(nu);
        E = std::asinh(std::sqrt(el.e * el.e - 1.0) * s / (1.0 + el.e * c));
        M = el.e * std::sinh(E) - E;
        const double n = std::sqrt(mu / -(el.a * el.a * el.a));
        p.T = 0.0;
        p.PeT = -M / n;
        p.ApT = 0.0;
        p.SMi = -el.a * std::sqrt(el.e * el.e - 1.0);
        p.ApD = 0.0;
    }
    p.PeD = el.a * (1.0 - el.e);
    p.MnA = M;
    p.TrA = nu;
    p.EcA = E;
    p.MnL = NormalAngle(el.omegab + M);
    p.TrL = NormalAngle(el.omegab + nu);
    p.Lec = el.a * el.e;
    p.AgP = argPeri;
    el.L = p.MnL;
    return o;
}

void StateFromElements(const ELEMENTS &el, double mu, double dt, VECTOR3 &rHost, VECTOR3 &vHost) {
    VECTOR3 pos, vel;
    if (el.e < 1.0) {
        const double n = std::sqrt(mu / (el.a * el.a * el.a));
        const double E = EccentricAnomaly(el.L - el.omegab + n * dt, el.e);
        const double c = std::cos(E), s = std::sin(E), b = std::sqrt(1.0 - el.e * el.e);
        const double edot = n / (1.0 - el.e * c);
        pos = {el.a * (c - el.e), el.a * b * s, 0.0};
        vel = {-el.a * s * edot, el.a * b * c * edot, 0.0};
    } else {
        const double n = std::sqrt(mu / -(el.a * el.a * el.a));
        const double F = HyperbolicAnomaly(el.L - el.omegab + n * dt, el.e);
        const double c = std::cosh(F), s = std::sinh(F), b = std::sqrt(el.e * el.e - 1.0);
        const double fdot = n / (el.e * c - 1.0);
        pos = {-el.a * (el.e - c), -el.a * b * s, 0.0};
        vel = {el.a * s * fdot, -el.a * b * c * fdot, 0.0};
    }
    rHost = Mirror(FromPerifocal(pos, el));
    vHost = Mirror(FromPerifocal(vel, el));
}

} // namespace hullhost::physics
