// The attitude loop's measurements: the body rates, and the error toward the
// attitude that the mode in force asks for.
#include <cmath>

#include "frame/hullkit.h"

namespace {

constexpr double kDeg = 57.29577951308232;

} // namespace

void HULLKIT::ReadRates() {
    GetAngularVel(AngVel);
    AngVel.y = -AngVel.y;
    AngVelDeg = AngVel * kDeg;
}

void HULLKIT::ComputeError() {
    const VECTOR3 zero{0, 0, 0};
    const bool bodyMode = NavOverrideMode == 11 || NavOverrideMode == 12;
    if (NavOverrideMode == 0 || (bodyMode && !NavTargetObject)) {
        AttError = AttErrorDeg = AngVel = AngVelDeg = zero;
        return;
    }
    switch (NavOverrideMode) {
    case 1: // KILLROT: only the rates are damped
        AttError = AttErrorDeg = zero;
        return;
    case 3:
    case 4:
    case 5:
    case 6:
    case 9:
    case 10:
        ModeError(NavOverrideMode);
        break;
    case 11:
        BodyError();
        break;
    case 12:
        AntiBodyError();
        break;
    default: // a mode without a branch keeps the error of the step before
        break;
    }
    AttErrorDeg = AttError * kDeg;
}

void HULLKIT::ModeError(int mode) {
    const OBJHANDLE ref = GetSurfaceRef();
    VECTOR3 v{0, 0, 0}, p{0, 0, 0};
    GetRelativeVel(ref, v);
    VECTOR3 target = v;
    if (mode != 3 && mode != 4) {
        GetRelativePos(ref, p);
        const VECTOR3 n = crossp(p, v);
        switch (mode) {
        case 5:
            target = n;
            break;
        case 6:
            target = -n;
            break;
        case 9:
            target = -crossp(v, n);
            break;
        default: // 10
            target = crossp(v, n);
            break;
        }
    } else if (mode == 4) {
        target = -v;
    }
    AttError = ErrorFromVector(BodyVector(target));
    AttError.z = -GetBank();
}

void HULLKIT::BodyError() {
    VECTOR3 p{0, 0, 0};
    GetRelativePos(NavTargetObject, p);
    AttError = ErrorFromVector(BodyVector(-p));
    AttError.z = -GetBank();
}

void HULLKIT::AntiBodyError() {
    VECTOR3 p{0, 0, 0};
    GetRelativePos(NavTargetObject, p);
    AttError = ErrorFromVector(BodyVector(p));
    AttError.z = -HorizonRoll();
}

VECTOR3 HULLKIT::BodyVector(const VECTOR3 &v) const {
    VESSELSTATUS2 status{};
    status.version = 2;
    status.flag = 0;
    GetStatusEx(&status);
    const VECTOR3 &a = status.arot;
    const double cx = std::cos(a.x), sx = std::sin(a.x);
    const double cy = std::cos(a.y), sy = std::sin(a.y);
    const double cz = std::cos(a.z), sz = std::sin(a.z);
    return {v.x * cz * cy + v.y * (cz * sy * sx - sz * cx) + v.z * (sz * sx + cz * sy * cx),
            v.x * sz * cy + v.y * (cz * cx + sz * sy * sx) + v.z * (sz * sy * cx - cz * sx),
            -v.x * sy + v.y * cy * sx + v.z * cy * cx};
}

VECTOR3 HULLKIT::ErrorFromVector(const VECTOR3 &v) {
    const double len = length(v);
    // A zero vector has no direction: it asks for no turn.
    const VECTOR3 u = len > 0.0 ? v / len : v;
    return {std::atan2(-u.y, u.z), std::atan2(-u.x, u.z), 0.0};
}

double HULLKIT::HorizonRoll() const {
    VECTOR3 up{0, 0, 0};
    HorizonInvRot(_V(0, 1, 0), up);
    const double h = std::sqrt(up.x * up.x + up.z * up.z);
    double r = h > 0.0 ? up.x * 0.5 / h : 0.0;
    if (up.z < 0.0)
        r = (up.x < 0.0 ? -1.0 : 1.0) - r;
    return r;
}
