// A proportional-derivative attitude loop in the form a vessel module flies
// it - errors from BodyVector and GetBank, the yaw rate's sign turned, groups
// named for their effect - holds prograde on this host.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "VesselAPI.h"
#include "flight_test_support.h"
#include "physics/rotation.h"

using namespace hullhost;
using namespace hullhost::testing;

namespace {

void Command(Vessel &v, THGROUP_TYPE negative, THGROUP_TYPE positive, double command) {
    command = std::clamp(command, -1.0, 1.0);
    v.SetGroupLevel(*v.GroupOfType(negative), std::max(0.0, -command));
    v.SetGroupLevel(*v.GroupOfType(positive), std::max(0.0, command));
}

} // namespace

TEST(AttitudeLoop, HoldsProgradeWithWingsLevel) {
    World w(".");
    Body &earth = *w.Earth();
    const double r = earth.radius + 300e3, vc = std::sqrt(earth.gm / r);
    const VECTOR3 up = physics::Column(earth.equatorial, 0), east = physics::Column(earth.equatorial, 2);
    Vessel &v = AddVessel(w, "stage", 1000.0, up * r, east * vc);
    AddAttitudeGroups(v, 20.0, 1e7);
    // Start 40 degrees off in every axis.
    const MATRIX3 prograde = physics::RotationBetweenBases({0, 0, 1}, {0, 1, 0}, east, up);
    v.rot = mul(prograde, physics::OrientationFromAngles({0.7, -0.7, 0.7}));

    VESSEL iface(v.Handle());
    VECTOR3 error{}, rate{};
    for (int frame = 0; frame < 60 * 200; ++frame) {
        VECTOR3 vel;
        iface.GetRelativeVel(iface.GetSurfaceRef(), vel);
        VESSELSTATUS2 st{};
        st.version = 2;
        iface.GetStatusEx(&st);
        const VECTOR3 target = unit(BodyVector(st.arot, vel));
        error = {std::atan2(-target.y, target.z), std::atan2(-target.x, target.z), -iface.GetBank()};
        iface.GetAngularVel(rate);
        rate.y = -rate.y;
        Command(v, THGROUP_ATT_PITCHDOWN, THGROUP_ATT_PITCHUP, -2.0 * error.x - 5.0 * rate.x);
        Command(v, THGROUP_ATT_YAWLEFT, THGROUP_ATT_YAWRIGHT, -2.0 * error.y - 5.0 * rate.y);
        Command(v, THGROUP_ATT_BANKLEFT, THGROUP_ATT_BANKRIGHT, -2.0 * error.z - 5.0 * rate.z);
        w.Frame(1.0 / 60.0);
    }
    EXPECT_LT(std::fabs(error.x) * DEG, 0.5);
    EXPECT_LT(std::fabs(error.y) * DEG, 0.5);
    EXPECT_LT(std::fabs(error.z) * DEG, 0.5);
    VECTOR3 nose;
    iface.GlobalRot({0, 0, 1}, nose);
    EXPECT_GT(dotp(nose, unit(v.vel - earth.vel)), std::cos(1.0 * RAD));
}
