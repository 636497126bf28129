// The host's rotation conventions, on which a vessel's attitude loop rests:
// orientation angles, the sense of the rates, and the torques that thruster
// groups named for their effect produce.
#include <gtest/gtest.h>

#include <cmath>

#include "VesselAPI.h"
#include "flight_test_support.h"
#include "physics/rotation.h"

using namespace hullhost;
using namespace hullhost::testing;

namespace {

// A rigid 1000 kg vessel in empty space with a pair of 10 N thrusters for
// each attitude group.
struct Rig {
    World world{"."};
    Vessel *v = nullptr;

    Rig() {
        world.bodies.clear();
        v = &AddVessel(world, "rig", 1000.0, {0, 0, 0}, {0, 0, 0});
        AddAttitudeGroups(*v, 10.0, 1e6);
    }

    // Fires a group for two seconds, then lets the vessel turn for one more.
    void Fire(THGROUP_TYPE type) {
        v->SetGroupLevel(*v->GroupOfType(type), 1.0);
        RunFor(world, 2.0);
        v->SetGroupLevel(*v->GroupOfType(type), 0.0);
        RunFor(world, 1.0);
    }
};

double Component(const VECTOR3 &v, int i) { return i == 0 ? v.x : i == 1 ? v.y : v.z; }

} // namespace

TEST(Orientation, AnglesGiveTheModulesBodyVector) {
    const VECTOR3 arot{0.3, -1.1, 2.5}, g{0.2, -0.7, 0.4};
    const MATRIX3 R = physics::OrientationFromAngles(arot);
    EXPECT_LT(dist(tmul(R, g), BodyVector(arot, g)), 1e-14);
    EXPECT_LT(dist(physics::AnglesFromOrientation(R), arot), 1e-12);
}

TEST(Orientation, StatusAnglesTurnTheNoseBackToTheBodyAxis) {
    Rig rig;
    rig.v->rot = physics::OrientationFromAngles({0.4, 0.9, -2.0});
    VESSEL iface(rig.v->Handle());
    VESSELSTATUS2 st{};
    st.version = 2;
    iface.GetStatusEx(&st);
    VECTOR3 nose;
    iface.GlobalRot({0, 0, 1}, nose);
    EXPECT_NEAR(BodyVector(st.arot, nose).z, 1.0, 1e-12);
}

// Pitch up raises the nose with a positive x rate, yaw right turns it right
// with a negative y rate, roll right lowers the right side with a positive z
// rate; the opposite groups the other way, and no group turns about another
// axis.
TEST(Rates, EachGroupTurnsTheVesselTheWayItsNameSays) {
    const struct {
        THGROUP_TYPE group;
        int rate;    // the component of the rate it makes
        double sign; // of that rate
        int axis;    // the body axis that swings (2 the nose, 0 the right side)
        int toward;  // the global component it swings along
        double way;  // and its sign
    } cases[] = {
        {THGROUP_ATT_PITCHUP, 0, 1, 2, 1, 1},    {THGROUP_ATT_PITCHDOWN, 0, -1, 2, 1, -1},
        {THGROUP_ATT_YAWRIGHT, 1, -1, 2, 0, 1},  {THGROUP_ATT_YAWLEFT, 1, 1, 2, 0, -1},
        {THGROUP_ATT_BANKRIGHT, 2, 1, 0, 1, -1}, {THGROUP_ATT_BANKLEFT, 2, -1, 0, 1, 1},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.group);
        Rig rig;
        rig.Fire(c.group);
        for (int k = 0; k < 3; ++k) {
            if (k == c.rate)
                EXPECT_GT(c.sign * Component(rig.v->omega, k), 0.0);
            else
                EXPECT_NEAR(Component(rig.v->omega, k), 0.0, 1e-12) << k;
        }
        EXPECT_GT(c.way * Component(physics::Column(rig.v->rot, c.axis), c.toward), 0.01);
    }
}

TEST(Rates, TorqueFreeTumbleKeepsAngularMomentumAndEnergy) {
    Rig rig;
    rig.v->pmi = {2.0, 3.0, 0.5};
    rig.v->omega = {0.3, -0.2, 0.5};
    auto momentum = [&] {
        const VECTOR3 w = rig.v->omega, p = rig.v->pmi;
        return mul(rig.v->rot, VECTOR3{p.x * w.x, p.y * w.y, p.z * w.z});
    };
    auto energy = [&] {
        const VECTOR3 w = rig.v->omega, p = rig.v->pmi;
        return p.x * w.x * w.x + p.y * w.y * w.y + p.z * w.z * w.z;
    };
    const VECTOR3 l0 = momentum();
    const double e0 = energy();
    RunFor(rig.world, 60.0);
    EXPECT_LT(length(momentum() - l0) / length(l0), 1e-6);
    EXPECT_NEAR(energy() / e0, 1.0, 1e-6);
    EXPECT_GT(length(rig.v->omega - VECTOR3{0.3, -0.2, 0.5}), 0.01); // it does precess
}
