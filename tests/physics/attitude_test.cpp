// The host's rotation conventions, on which a vessel's attitude loop rests:
// orientation angles, the sense of the rates and the torques of thruster
// groups named for their effect; a loop flown as a module flies it, and the
// navigation modes that the host flies itself.
#include <gtest/gtest.h>

#include <algorithm>
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

// The circular 300 km equatorial orbit, and 1000 kg vessels on it with 20 N
// attitude pairs.
struct LowOrbit {
    World w{"."};
    Body &earth = *w.Earth();
    double r = earth.radius + 300e3, vc = std::sqrt(earth.gm / r);
    VECTOR3 up = physics::Column(earth.equatorial, 0), east = physics::Column(earth.equatorial, 2);
    MATRIX3 prograde = physics::RotationBetweenBases({0, 0, 1}, {0, 1, 0}, east, up);
    // 40 degrees off prograde in every axis.
    MATRIX3 off = mul(prograde, physics::OrientationFromAngles({0.7, -0.7, 0.7}));

    Vessel &Add(const std::string &name, const MATRIX3 &rot) {
        Vessel &v = AddVessel(w, name, 1000.0, up * r, east * vc);
        AddAttitudeGroups(v, 20.0, 1e7);
        v.rot = rot;
        return v;
    }
};

void Command(Vessel &v, THGROUP_TYPE negative, THGROUP_TYPE positive, double command) {
    command = std::clamp(command, -1.0, 1.0);
    v.SetGroupLevel(*v.GroupOfType(negative), std::max(0.0, -command));
    v.SetGroupLevel(*v.GroupOfType(positive), std::max(0.0, command));
}

} // namespace

TEST(Orientation, AnglesGiveTheModulesBodyVectorAndStatusAnglesTurnTheNoseBack) {
    const VECTOR3 arot{0.3, -1.1, 2.5}, g{0.2, -0.7, 0.4};
    const MATRIX3 R = physics::OrientationFromAngles(arot);
    EXPECT_LT(dist(tmul(R, g), BodyVector(arot, g)), 1e-14);
    EXPECT_LT(dist(physics::AnglesFromOrientation(R), arot), 1e-12);

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
    auto spin = [&] {
        const VECTOR3 w = rig.v->omega, p = rig.v->pmi;
        return VECTOR3{p.x * w.x, p.y * w.y, p.z * w.z};
    };
    const VECTOR3 l0 = mul(rig.v->rot, spin());
    const double e0 = dotp(spin(), rig.v->omega);
    RunFor(rig.world, 60.0);
    EXPECT_LT(length(mul(rig.v->rot, spin()) - l0) / length(l0), 1e-6);
    EXPECT_NEAR(dotp(spin(), rig.v->omega) / e0, 1.0, 1e-6);
    EXPECT_GT(length(rig.v->omega - VECTOR3{0.3, -0.2, 0.5}), 0.01); // it does precess
}

// A proportional-derivative loop in the form a vessel module flies it -
// errors from BodyVector and GetBank, the yaw rate's sign turned - holds
// prograde with wings level.
TEST(AttitudeLoop, HoldsProgradeWithWingsLevel) {
    LowOrbit o;
    Vessel &v = o.Add("stage", o.off);
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
        o.w.Frame(1.0 / 60.0);
    }
    EXPECT_LT(std::max({std::fabs(error.x), std::fabs(error.y), std::fabs(error.z)}) * DEG, 0.5);
    VECTOR3 nose;
    iface.GlobalRot({0, 0, 1}, nose);
    EXPECT_GT(dotp(nose, unit(v.vel - o.earth.vel)), std::cos(1.0 * RAD));
}

// From 40 degrees off or from a spin, at a time acceleration of 10, each
// vessel ends on its mode's target and at rest against it.
TEST(NavmodePilot, TurnsToTheModesTargetAndHoldsIt) {
    LowOrbit o;
    o.w.accel = 10.0;
    const struct {
        int mode;
        MATRIX3 rot;
        VECTOR3 spin;
        VECTOR3 axis; // the body axis that must point at the mode's target
    } cases[] = {
        {NAVMODE_HLEVEL, o.off, {0, 0, 0}, {0, 1, 0}},
        {NAVMODE_RETROGRADE, o.prograde, {0, 0, 0}, {0, 0, 1}},
        {NAVMODE_ANTINORMAL, o.off, {0, 0, 0}, {0, 0, 1}},
        {NAVMODE_KILLROT, o.prograde, {0.2, -0.1, 0.3}, {}},
    };
    std::vector<Vessel *> vessels;
    for (const auto &c : cases) {
        Vessel &v = o.Add("v" + std::to_string(c.mode), c.rot);
        v.omega = c.spin;
        v.navmodes.set(static_cast<size_t>(c.mode));
        vessels.push_back(&v);
    }
    RunFor(o.w, 60.0); // a sixth of an orbit: the targets turn with it
    for (size_t i = 0; i < vessels.size(); ++i) {
        const auto &c = cases[i];
        const Vessel &v = *vessels[i];
        SCOPED_TRACE(c.mode);
        EXPECT_LT(length(v.omega), 0.003); // the orbit's own rate is 0.0011
        const VECTOR3 r = v.pos - o.earth.pos, vel = v.vel - o.earth.vel;
        const VECTOR3 wanted = c.mode == NAVMODE_HLEVEL       ? unit(r)
                               : c.mode == NAVMODE_RETROGRADE ? unit(-vel)
                                                              : unit(crossp(vel, r));
        if (c.mode != NAVMODE_KILLROT) {
            EXPECT_GT(dotp(mul(v.rot, c.axis), wanted), std::cos(1.0 * RAD));
        }
        for (const auto &t : v.thrusters)
            EXPECT_EQ(t->manualLevel, 0.0); // the firing lasts one frame
    }
}
