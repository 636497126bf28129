// Rotation conventions of the host. All frames are left-handed; crossp is the
// usual component formula. A vessel's orientation R maps vessel-frame
// coordinates to global ones. Its angular velocity w (vessel frame) moves a
// body-fixed vector e as de/dt = crossp(e, w), so that a positive rate about
// +x raises the nose (+z) toward +y and a positive rate about +y turns it
// toward -x. The torque of a force F applied at r is crossp(F, r).
#pragma once

#include "OrbiterAPI.h"

namespace hullhost::physics {

// The ordinary rotation matrices about the coordinate axes.
MATRIX3 RotX(double angle);
MATRIX3 RotY(double angle);
MATRIX3 RotZ(double angle);

// The orientation angles `arot`: a global vector's coordinates in the vessel
// frame are RotZ(arot.z) * RotY(arot.y) * RotX(arot.x) * v. The result is the
// vessel-to-global matrix, the transpose of that product.
MATRIX3 OrientationFromAngles(const VECTOR3 &arot);
VECTOR3 AnglesFromOrientation(const MATRIX3 &vesselToGlobal);

// Restores orthonormality after numerical integration (Gram-Schmidt on the
// columns, z first: the nose direction is kept exactly).
MATRIX3 Orthonormalised(const MATRIX3 &m);

// The skew matrix K with K * e = crossp(e, w): the rate of change of a
// body-fixed vector, so that dR/dt = R * K.
MATRIX3 RateMatrix(const VECTOR3 &w);

// A proper rotation from the orthonormal basis that `forward` and `up` span to
// the one that `forwardTo` and `upTo` span: forward maps onto forwardTo and
// the part of up perpendicular to forward onto that of upTo perpendicular to
// forwardTo. The inputs need not be unit vectors.
MATRIX3 RotationBetweenBases(const VECTOR3 &forward, const VECTOR3 &up, const VECTOR3 &forwardTo,
                             const VECTOR3 &upTo);

inline MATRIX3 Columns(const VECTOR3 &a, const VECTOR3 &b, const VECTOR3 &c) {
    return {a.x, b.x, c.x, a.y, b.y, c.y, a.z, b.z, c.z};
}
inline VECTOR3 Column(const MATRIX3 &m, int i) {
    return i == 0   ? VECTOR3{m.m11, m.m21, m.m31}
           : i == 1 ? VECTOR3{m.m12, m.m22, m.m32}
                    : VECTOR3{m.m13, m.m23, m.m33};
}

} // namespace hullhost::physics
