// A free-moving internal camera for setting up camera records: the user's
// attitude keys move or turn it, and the debug line shows where it stands.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "frame/hullkit.h"

namespace {
constexpr double kDeg = 180.0 / std::numbers::pi;
} // namespace

void HULLKIT::H_DEBUG_CAM() {
    VECTOR3 p, d;
    GetCameraOffset(p);
    GetCameraDefaultDirection(d);
    double yaw = 0.0;
    const double dt = oapiGetSimStep();
    const int mode = GetAttitudeMode();
    if (mode == 2) {
        const double s = 0.1 * dt;
        auto level = [this](THGROUP_TYPE group) { return GetManualControlLevel(group, 3, 0); };
        p.x += (level(THGROUP_ATT_FORWARD) - level(THGROUP_ATT_BACK)) * s;
        p.y += (level(THGROUP_ATT_LEFT) - level(THGROUP_ATT_RIGHT)) * s;
        p.z += (level(THGROUP_ATT_DOWN) - level(THGROUP_ATT_UP)) * s;
        SetCameraOffset(p);
    } else if (mode == 1) {
        const double s = 2.5 * dt;
        auto level = [this](THGROUP_TYPE group) { return GetManualControlLevel(group, 0, 0); };
        const double pitch = std::asin(std::clamp(d.y, -1.0, 1.0)) * kDeg +
                             (level(THGROUP_ATT_PITCHUP) - level(THGROUP_ATT_PITCHDOWN)) * s;
        d.y = std::sin(pitch / kDeg);
        yaw = std::asin(std::clamp(d.x, -1.0, 1.0)) * kDeg;
        if (d.z < 0)
            yaw = yaw > 0 ? 180.0 - yaw : -180.0 - yaw;
        yaw += (level(THGROUP_ATT_YAWRIGHT) - level(THGROUP_ATT_YAWLEFT)) * s;
        d.x = std::sin(yaw / kDeg);
        const double t = 1.0 - d.x * d.x - d.y * d.y;
        d.z = t < 0 ? 0.001 : std::sqrt(t);
        if (std::fabs(yaw) > 90.0 && d.z > 0)
            d.z = -d.z;
        CameraTilt += (level(THGROUP_ATT_BANKLEFT) - level(THGROUP_ATT_BANKRIGHT)) * s / kDeg;
        SetCameraDefaultDirection(d, CameraTilt);
    }
    std::snprintf(oapiDebugString(), 256, "Pos: %f, %f, %f    Dir: %f, %f, %f,    Tilt: %f  Yaw %f", p.x, p.y,
                  p.z, d.x, d.y, d.z, CameraTilt * kDeg, yaw);
}
