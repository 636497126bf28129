// The host's rotation conventions, on which a vessel's attitude loop rests:
// orientation angles, the sense of the rates, and the torques that thruster
// groups named for their effect produce.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "VesselAPI.h"
#include "flight_test_support.h"
#include "physics/rotation.h"

using namespace hullhost;
using namespace hullhost::testing;

namespace {

// A global vector in the vessel frame from the orientation angles, written
// out as a vessel module does it.
VECTOR3 BodyVector(const VECTOR3 &arot, const VECTOR3 &v) {
    const double cx = std::cos(arot.x), sx = std::sin(arot.x), cy = std::cos(arot.y), sy = std::sin(arot.y);
    const double cz = std::cos(arot.z), sz = std::sin(arot.z);
    return {v.x * cz * cy + v.y * (cz * sy * sx - sz * cx) + v.z * (sz * sx + cz * sy * cx),
            v.x * sz * cy + v.y * (cz * cx + sz * sy * sx) + v.z * (sz * sy * cx - cz * sx),
            -v.x * sy + v.y * cy * sx + v.z * cy * cx};
}

// A rigid 1000 kg vessel in empty space with a pair of 10 N thrusters for
// each attitude group, 5 m from its centre.
struct Rig {
    World world{"."};
    Vessel *v = nullptr;

    Rig() {
        world.bodies.clear();
        v = &AddVessel(world, "rig", 1000.0, {0, 0, 0}, {0, 0, 0});
        auto tank = std::make_unique<Propellant>();
        tank->maxMass = tank->mass = 100.0;
        Propellant *p = tank.get();
        v->propellants.push_back(std::move(tank));
        AddPair(THGROUP_ATT_PITCHUP, {0, 0, 5}, {0, 1, 0}, {0, 0, -5}, {0, -1, 0}, p);
        AddPair(THGROUP_ATT_PITCHDOWN, {0, 0, 5}, {0, -1, 0}, {0, 0, -5}, {0, 1, 0}, p);
        AddPair(THGROUP_ATT_YAWRIGHT, {0, 0, 5}, {1, 0, 0}, {0, 0, -5}, {-1, 0, 0}, p);
        AddPair(THGROUP_ATT_YAWLEFT, {0, 0, 5}, {-1, 0, 0}, {0, 0, -5}, {1, 0, 0}, p);
        AddPair(THGROUP_ATT_BANKRIGHT, {5, 0, 0}, {0, -1, 0}, {-5, 0, 0}, {0, 1, 0}, p);
        AddPair(THGROUP_ATT_BANKLEFT, {5, 0, 0}, {0, 1, 0}, {-5, 0, 0}, {0, -1, 0}, p);
    }

    void AddPair(THGROUP_TYPE type, VECTOR3 p1, VECTOR3 d1, VECTOR3 p2, VECTOR3 d2, Propellant *p) {
        auto group = std::make_unique<ThrusterGroup>();
        group->type = type;
        for (auto [pos, dir] : {std::pair{p1, d1}, std::pair{p2, d2}}) {
            auto th = std::make_unique<Thruster>();
            th->pos = pos;
            th->dir = dir;
            th->maxThrust0 = 10.0;
            th->isp0 = 1e6;
            th->propellant = p;
            group->thrusters.push_back(th.get());
            v->thrusters.push_back(std::move(th));
        }
        v->groups.push_back(std::move(group));
    }

    // Fires a group for two seconds, then lets the vessel turn for one more.
    void Fire(THGROUP_TYPE type) {
        v->SetGroupLevel(*v->GroupOfType(type), 1.0);
        RunFor(world, 2.0);
        v->SetGroupLevel(*v->GroupOfType(type), 0.0);
        RunFor(world, 1.0);
    }

    VECTOR3 Axis(int i) const { return physics::Column(v->rot, i); }
};

} // namespace

TEST(Orientation, AnglesGiveTheModulesBodyVector) {
    const VECTOR3 arot{0.3, -1.1, 2.5}, g{0.2, -0.7, 0.4};
    const MATRIX3 R = physics::OrientationFromAngles(arot);
    const VECTOR3 local = tmul(R, g);
    const VECTOR3 expected = BodyVector(arot, g);
    EXPECT_NEAR(local.x, expected.x, 1e-14);
    EXPECT_NEAR(local.y, expected.y, 1e-14);
    EXPECT_NEAR(local.z, expected.z, 1e-14);
    const VECTOR3 back = physics::AnglesFromOrientation(R);
    EXPECT_NEAR(back.x, arot.x, 1e-12);
    EXPECT_NEAR(back.y, arot.y, 1e-12);
    EXPECT_NEAR(back.z, arot.z, 1e-12);
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
    const VECTOR3 body = BodyVector(st.arot, nose);
    EXPECT_NEAR(body.z, 1.0, 1e-12);
}

TEST(Rates, PitchUpRaisesTheNoseWithPositiveXRate) {
    {
        Rig rig;
        rig.Fire(THGROUP_ATT_PITCHUP);
        EXPECT_GT(rig.v->omega.x, 0.0);
        EXPECT_NEAR(rig.v->omega.y, 0.0, 1e-12);
        EXPECT_GT(rig.Axis(2).y, 0.01); // nose toward the former +y
    }
    Rig down;
    down.Fire(THGROUP_ATT_PITCHDOWN);
    EXPECT_LT(down.v->omega.x, 0.0);
    EXPECT_LT(down.Axis(2).y, -0.01);
}

TEST(Rates, YawRightTurnsTheNoseRightWithNegativeYRate) {
    {
        Rig rig;
        rig.Fire(THGROUP_ATT_YAWRIGHT);
        EXPECT_LT(rig.v->omega.y, 0.0);
        EXPECT_GT(rig.Axis(2).x, 0.01); // nose toward +x, the right
    }
    Rig left;
    left.Fire(THGROUP_ATT_YAWLEFT);
    EXPECT_GT(left.v->omega.y, 0.0);
    EXPECT_LT(left.Axis(2).x, -0.01);
}

TEST(Rates, RollRightLowersTheRightSideWithPositiveZRate) {
    {
        Rig rig;
        rig.Fire(THGROUP_ATT_BANKRIGHT);
        EXPECT_GT(rig.v->omega.z, 0.0);
        EXPECT_LT(rig.Axis(0).y, -0.01); // right wing down
    }
    Rig left;
    left.Fire(THGROUP_ATT_BANKLEFT);
    EXPECT_LT(left.v->omega.z, 0.0);
    EXPECT_GT(left.Axis(0).y, 0.01);
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
