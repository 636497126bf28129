// The host flies the navigation modes left to it with the attitude thrusters:
// from 40 degrees off or from a spin, at a time acceleration of 10, each
// vessel ends on its target and at rest against it.
#include <gtest/gtest.h>

#include <cmath>

#include "flight_test_support.h"
#include "physics/rotation.h"

using namespace hullhost;
using namespace hullhost::testing;

TEST(NavmodePilot, TurnsToTheModesTargetAndHoldsIt) {
    World w(".");
    w.accel = 10.0;
    Body &earth = *w.Earth();
    const double r = earth.radius + 300e3, vc = std::sqrt(earth.gm / r);
    const VECTOR3 up = physics::Column(earth.equatorial, 0), east = physics::Column(earth.equatorial, 2);
    const MATRIX3 prograde = physics::RotationBetweenBases({0, 0, 1}, {0, 1, 0}, east, up);
    const MATRIX3 off = mul(prograde, physics::OrientationFromAngles({0.7, -0.7, 0.7}));
    struct Case {
        int mode;
        MATRIX3 rot;
        VECTOR3 spin;
        VECTOR3 axis; // the body axis that must point at the mode's target
    };
    const Case cases[] = {
        {NAVMODE_HLEVEL, off, {0, 0, 0}, {0, 1, 0}},
        {NAVMODE_RETROGRADE, prograde, {0, 0, 0}, {0, 0, 1}},
        {NAVMODE_ANTINORMAL, off, {0, 0, 0}, {0, 0, 1}},
        {NAVMODE_KILLROT, prograde, {0.2, -0.1, 0.3}, {}},
    };
    std::vector<Vessel *> vessels;
    for (const Case &c : cases) {
        Vessel &v = AddVessel(w, "v" + std::to_string(c.mode), 1000.0, up * r, east * vc);
        AddAttitudeGroups(v, 20.0, 1e7);
        v.rot = c.rot;
        v.omega = c.spin;
        v.navmodes.set(static_cast<size_t>(c.mode));
        vessels.push_back(&v);
    }
    RunFor(w, 60.0); // a sixth of an orbit: the targets turn with it
    for (size_t i = 0; i < vessels.size(); ++i) {
        const Case &c = cases[i];
        const Vessel &v = *vessels[i];
        SCOPED_TRACE(c.mode);
        EXPECT_LT(length(v.omega), 0.003); // the orbit's own rate is 0.0011
        if (c.mode != NAVMODE_KILLROT) {
            const VECTOR3 wanted = c.mode == NAVMODE_HLEVEL ? unit(v.pos - earth.pos)
                                   : c.mode == NAVMODE_RETROGRADE
                                       ? unit(earth.vel - v.vel)
                                       : unit(crossp(v.vel - earth.vel, v.pos - earth.pos));
            EXPECT_GT(dotp(mul(v.rot, c.axis), wanted), std::cos(1.0 * RAD));
        }
        for (const auto &t : v.thrusters)
            EXPECT_EQ(t->manualLevel, 0.0); // the firing lasts one frame
    }
}
