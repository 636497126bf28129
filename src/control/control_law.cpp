// The attitude law: saturated far from the target (accelerate, then coast or
// brake at the rate limit), proportional near it, and a blend of rate damping
// and position inside the box of 1 degree and 1 degree per second.
#include "control/control_law.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kDeg = 57.29577951308232;

double Limit(double value, double limit) { return std::clamp(value, -std::fabs(limit), std::fabs(limit)); }

} // namespace

AxisOutcome ControlAxis(const AxisTuning &tuning, double error, double rate) {
    AxisOutcome out;
    out.clampedError = Limit(error, tuning.errorLimit);
    const double u = tuning.errorLimit != 0.0 ? out.clampedError / tuning.errorLimit : 0.0;
    const bool saturated = !(std::fabs(u) < 1.0);
    out.rateLimit = saturated ? tuning.rateLimitFar : tuning.rateLimitNear;
    out.coastRate = saturated ? tuning.coastRateFar : tuning.coastRateNear;
    const double w = Limit(rate, out.rateLimit);
    double wn = out.rateLimit != 0.0 ? w / out.rateLimit : 0.0;
    out.blend = 1.0;
    if (std::fabs(wn) == 1.0) {
        wn = -wn; // at or over the rate limit: brake at full command
    } else if (std::fabs(u) == 1.0) {
        // Far from the target: coast once turning toward it fast enough,
        // otherwise full command toward it.
        if (u * wn < 0.0 && std::fabs(w) >= out.coastRate)
            wn = 0.0;
        else
            wn = -u;
    } else if (std::fabs(out.clampedError * kDeg) < 1.0 && std::fabs(w * kDeg) < 1.0) {
        wn = -wn;
        out.blend = tuning.blendNear;
    } else {
        out.blend = 0.0;
    }
    if (out.blend == 1.0)
        out.command = wn;
    else if (out.blend == 0.0)
        out.command = -u;
    else
        out.command = wn * out.blend - (1.0 - out.blend) * u;
    // A rate or an error that isn't a number commands nothing.
    out.command = std::isnan(out.command) ? 0.0 : std::clamp(out.command, -1.0, 1.0);
    return out;
}
