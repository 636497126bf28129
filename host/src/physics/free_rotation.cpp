#include "physics/free_rotation.h"

#include <algorithm>
#include <cmath>

#include "physics/rotation.h"

namespace hullhost::physics {

namespace {

// The most a substep may change the rate, against the rate itself.
constexpr double kRateChangePerStep = 0.1;
// However fast the body tumbles, a call takes at most this many substeps:
// past it the turn is coarser, but the momentum still holds exactly.
constexpr double kMaxSubsteps = 1000.0;

// Euler's equations without torque, as the flight model's derivative has them.
VECTOR3 RateChange(const VECTOR3 &w, const VECTOR3 &inertia) {
    const VECTOR3 momentum{inertia.x * w.x, inertia.y * w.y, inertia.z * w.z};
    const VECTOR3 gyro = crossp(w, momentum);
    return {gyro.x / inertia.x, gyro.y / inertia.y, gyro.z / inertia.z};
}

// exp(h RateMatrix(w)): the turn at the constant rate w for h seconds.
MATRIX3 Turn(const VECTOR3 &w, double h) {
    const double rate = length(w);
    if (rate * h == 0.0)
        return {1, 0, 0, 0, 1, 0, 0, 0, 1};
    const MATRIX3 k = RateMatrix(w / rate), k2 = mul(k, k);
    const double s = std::sin(rate * h), c = 1.0 - std::cos(rate * h);
    return {1 + s * k.m11 + c * k2.m11, s * k.m12 + c * k2.m12,     s * k.m13 + c * k2.m13,
            s * k.m21 + c * k2.m21,     1 + s * k.m22 + c * k2.m22, s * k.m23 + c * k2.m23,
            s * k.m31 + c * k2.m31,     s * k.m32 + c * k2.m32,     1 + s * k.m33 + c * k2.m33};
}

} // namespace

void RotateFree(MATRIX3 &R, VECTOR3 &w, const VECTOR3 &inertia, double h) {
    // The angular momentum in the global frame stays as it is: each substep's
    // rate is taken back from it, so that no error accumulates in it.
    const VECTOR3 momentum = mul(R, VECTOR3{inertia.x * w.x, inertia.y * w.y, inertia.z * w.z});
    double left = h;
    while (left > 0.0) {
        const VECTOR3 k1 = RateChange(w, inertia);
        const double change = length(k1), rate = length(w);
        double step = left;
        if (change > 0.0)
            step = std::min(left,
                            std::max(h / kMaxSubsteps, kRateChangePerStep * std::max(rate, 1e-9) / change));
        const VECTOR3 k2 = RateChange(w + k1 * (0.5 * step), inertia);
        const VECTOR3 k3 = RateChange(w + k2 * (0.5 * step), inertia);
        const VECTOR3 k4 = RateChange(w + k3 * step, inertia);
        const VECTOR3 next = w + (k1 + (k2 + k3) * 2.0 + k4) * (step / 6.0);
        R = mul(R, Turn((w + next) * 0.5, step));
        const VECTOR3 body = tmul(R, momentum);
        w = {body.x / inertia.x, body.y / inertia.y, body.z / inertia.z};
        left = left - step < 1e-12 * h ? 0.0 : left - step;
    }
    R = Orthonormalised(R);
}

} // namespace hullhost::physics
