// The vessel's three touchdown points. A parked vessel stands on very stiff,
// frictionless points; otherwise the host's three-point form is used.
#include <cmath>

#include "frame/hullkit.h"

void HULLKIT::SetTouchdownPts(const VECTOR3 &p1, const VECTOR3 &p2, const VECTOR3 &p3) {
    // Two equal points ask for the stored points to be put back.
    if (p1.x == p2.x && p1.y == p2.y && p1.z == p2.z) {
        SetTouchdownPoints(TouchdownPts[0], TouchdownPts[1], TouchdownPts[2]);
        return;
    }
    TouchdownPts[0] = p1;
    TouchdownPts[1] = p2;
    TouchdownPts[2] = p3;
    if (Landed && Cfg("Use2010TDPs") != "true") {
        const double stiffness = 1000000000.0;
        const double damping = std::sqrt(100000000.0 * 1000000000.0) * 2.0 * 0.9;
        TOUCHDOWNVTX points[3] = {};
        for (int i = 0; i < 3; ++i)
            points[i] = TOUCHDOWNVTX{TouchdownPts[i], stiffness, damping, 0.0, 0.0};
        SetTouchdownPoints(points, 3);
        return;
    }
    SetTouchdownPoints(p1, p2, p3);
}
