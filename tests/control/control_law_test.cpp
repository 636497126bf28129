// The attitude law, branch by branch, with 10 degrees of error limit, 3 and
// 1.5 deg/s rate limits far and near, 2.5 deg/s coast rate far and a blend of
// 0.6 in the 1 degree box.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "control/control_law.h"

namespace {

constexpr double kRad = 0.017453292519943295;

AxisTuning Stage(double blend = 0.6) {
    return {10 * kRad, 3 * kRad, 2.5 * kRad, 1.5 * kRad, 1 * kRad, blend};
}

struct Case {
    const char *what;
    AxisTuning tuning;
    double errorDeg, rateDeg;
    double command, blend, rateLimitDeg;
};

TEST(ControlLawTest, EachBranchGivesItsCommand) {
    // In the box: wn = 0.5 / 1.5 with its sign turned, u = 0.05.
    const double wn = -0.5 / 1.5, u = 0.05;
    const Case cases[] = {
        {"saturated at rest: full toward the target", Stage(), 20, 0, -1, 1, 3},
        {"error exactly at the limit counts as saturated", Stage(), -10, 0, 1, 1, 3},
        {"saturated, turning the wrong way below the limit", Stage(), 20, 2, -1, 1, 3},
        {"saturated, turning toward it below the coast rate", Stage(), 20, -2, -1, 1, 3},
        {"saturated, turning toward it at the coast rate: coasting", Stage(), 20, -2.5, 0, 1, 3},
        {"saturated, at the rate limit: braking", Stage(), 20, -3, 1, 1, 3},
        {"near, over the near rate limit, no error: braking", Stage(), 0, 1.5, -1, 1, 1.5},
        {"near, outside the box: proportional", Stage(), 5, 0.5, -0.5, 0, 1.5},
        {"killing a rate between 1 deg/s and the limit: nothing", Stage(), 0, 1.2, 0, 0, 1.5},
        {"in the box: the blend", Stage(), 0.5, 0.5, wn * 0.6 - 0.4 * u, 0.6, 1.5},
        {"in the box with a blend of 1: rate damping only", Stage(1.0), 0.5, 0.5, wn, 1, 1.5},
        {"in the box with a blend of 0: position only", Stage(0.0), 0.5, 0.5, -u, 0, 1.5},
        {"zero limits command nothing", AxisTuning{}, 5, 5, 0, 0, 0},
        {"an error that isn't a number commands nothing", Stage(), NAN, 0, 0, 0, 3},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        const AxisOutcome out = ControlAxis(c.tuning, c.errorDeg * kRad, c.rateDeg * kRad);
        EXPECT_NEAR(out.command, c.command, 1e-12);
        EXPECT_DOUBLE_EQ(out.blend, c.blend);
        EXPECT_NEAR(out.rateLimit, c.rateLimitDeg * kRad, 1e-15);
        if (!std::isnan(c.errorDeg)) {
            EXPECT_NEAR(out.clampedError,
                        std::clamp(c.errorDeg, -10.0, 10.0) * kRad * (c.tuning.errorLimit > 0), 1e-15);
        }
    }
}

} // namespace
