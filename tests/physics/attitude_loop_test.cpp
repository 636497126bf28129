// A proportional-derivative attitude loop in the form a vessel module flies
// it - errors from BodyVector and GetBank, the yaw rate's sign turned, groups
// named for their effect - holds prograde on this host.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "VesselAPI.h"
#include "flight_test_support.h"
#include "physics/rotation.h"

using namespace hullhost;
using namespace hullhost::testing;

namespace {

VECTOR3 BodyVector(const VECTOR3 &arot, const VECTOR3 &v) {
    const double cx = std::cos(arot.x), sx = std::sin(arot.x), cy = std::cos(arot.y), sy = std::sin(arot.y);
    const double cz = std::cos(arot.z), sz = std::sin(arot.z);
    return {v.x * cz * cy + v.y * (cz * sy * sx - sz * cx) + v.z * (sz * sx + cz * sy * cx),
            v.x * sz * cy + v.y * (cz * cx + sz * sy * sx) + v.z * (sz * sy * cx - cz * sx),
            -v.x * sy + v.y * cy * sx + v.z * cy * cx};
}

void AddGroup(Vessel &v, THGROUP_TYPE type, VECTOR3 p1, VECTOR3 d1, VECTOR3 p2, VECTOR3 d2) {
    auto group = std::make_unique<ThrusterGroup>();
    group->type = type;
    for (auto [pos, dir] : {std::pair{p1, d1}, std::pair{p2, d2}}) {
        auto th = std::make_unique<Thruster>();
        th->pos = pos;
        th->dir = dir;
        th->maxThrust0 = 20.0;
        th->isp0 = 1e7;
        th->propellant = v.propellants.front().get();
        group->thrusters.push_back(th.get());
        v.thrusters.push_back(std::move(th));
    }
    v.groups.push_back(std::move(group));
}

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
    auto tank = std::make_unique<Propellant>();
    tank->maxMass = tank->mass = 100.0;
    v.propellants.push_back(std::move(tank));
    AddGroup(v, THGROUP_ATT_PITCHUP, {0, 0, 5}, {0, 1, 0}, {0, 0, -5}, {0, -1, 0});
    AddGroup(v, THGROUP_ATT_PITCHDOWN, {0, 0, 5}, {0, -1, 0}, {0, 0, -5}, {0, 1, 0});
    AddGroup(v, THGROUP_ATT_YAWRIGHT, {0, 0, 5}, {1, 0, 0}, {0, 0, -5}, {-1, 0, 0});
    AddGroup(v, THGROUP_ATT_YAWLEFT, {0, 0, 5}, {-1, 0, 0}, {0, 0, -5}, {1, 0, 0});
    AddGroup(v, THGROUP_ATT_BANKRIGHT, {5, 0, 0}, {0, -1, 0}, {-5, 0, 0}, {0, 1, 0});
    AddGroup(v, THGROUP_ATT_BANKLEFT, {5, 0, 0}, {0, 1, 0}, {-5, 0, 0}, {0, -1, 0});
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
