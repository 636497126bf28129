#include "physics/rotation.h"

#include <cmath>

namespace hullhost::physics {

MATRIX3 RotX(double a) {
    const double c = std::cos(a), s = std::sin(a);
    return {1, 0, 0, 0, c, -s, 0, s, c};
}

MATRIX3 RotY(double a) {
    const double c = std::cos(a), s = std::sin(a);
    return {c, 0, s, 0, 1, 0, -s, 0, c};
}

MATRIX3 RotZ(double a) {
    const double c = std::cos(a), s = std::sin(a);
    return {c, -s, 0, s, c, 0, 0, 0, 1};
}

MATRIX3 OrientationFromAngles(const VECTOR3 &arot) {
    const MATRIX3 globalToVessel = mul(RotZ(arot.z), mul(RotY(arot.y), RotX(arot.x)));
    return transpose(globalToVessel);
}

VECTOR3 AnglesFromOrientation(const MATRIX3 &r) {
    // globalToVessel = transpose(r); its third row is (-sy, cy sx, cy cx) and
    // its first column (cz cy, sz cy, -sy).
    const MATRIX3 g = transpose(r);
    const double sy = std::fmax(-1.0, std::fmin(1.0, -g.m31));
    const double cy = std::sqrt(g.m32 * g.m32 + g.m33 * g.m33);
    if (cy > 1e-12) {
        return {std::atan2(g.m32, g.m33), std::asin(sy), std::atan2(g.m21, g.m11)};
    }
    // Gimbal lock: only x - z (or x + z) is defined; put it all into x.
    return {std::atan2(-g.m23, g.m22), std::asin(sy), 0.0};
}

MATRIX3 Orthonormalised(const MATRIX3 &m) {
    const VECTOR3 z = unit(Column(m, 2));
    VECTOR3 y = Column(m, 1);
    y = unit(y - z * dotp(y, z));
    VECTOR3 x = Column(m, 0);
    x = unit(x - z * dotp(x, z) - y * dotp(x, y));
    return Columns(x, y, z);
}

MATRIX3 RateMatrix(const VECTOR3 &w) {
    // crossp(e, w) = (ey wz - wy ez, ez wx - wz ex, ex wy - wx ey)
    return {0, w.z, -w.y, -w.z, 0, w.x, w.y, -w.x, 0};
}

MATRIX3 RotationBetweenBases(const VECTOR3 &forward, const VECTOR3 &up, const VECTOR3 &forwardTo,
                             const VECTOR3 &upTo) {
    const VECTOR3 f = unit(forward), f2 = unit(forwardTo);
    const VECTOR3 u = unit(up - f * dotp(up, f)), u2 = unit(upTo - f2 * dotp(upTo, f2));
    const MATRIX3 from = Columns(f, u, crossp(f, u));
    const MATRIX3 to = Columns(f2, u2, crossp(f2, u2));
    return mul(to, transpose(from));
}

} // namespace hullhost::physics
