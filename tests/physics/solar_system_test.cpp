// The bodies: the Moon's distance and period, the Earth's year, and a vessel
// on the ground that turns with the Earth.
#include <gtest/gtest.h>

#include <cmath>

#include "VesselAPI.h"
#include "flight_test_support.h"
#include "physics/flight_model.h"
#include "physics/kepler.h"
#include "physics/rotation.h"

using namespace hullhost;
using namespace hullhost::testing;

TEST(SolarSystem, MoonKeepsItsDistanceAndPeriod) {
    World w(".");
    Body &earth = *w.FindBody("Earth");
    Body &moon = *w.FindBody("Moon");
    const VECTOR3 start = moon.pos - earth.pos;
    double nearest = HUGE_VAL, farthest = 0.0;
    const double period = 2360591.597;
    for (int k = 1; k <= 100; ++k) {
        w.simt = period * k / 100.0;
        physics::UpdateBodies(w);
        const double d = dist(moon.pos, earth.pos);
        nearest = std::min(nearest, d);
        farthest = std::max(farthest, d);
    }
    EXPECT_GT(nearest, 356e6);
    EXPECT_LT(farthest, 407e6);
    EXPECT_LT(dist(moon.pos - earth.pos, start), 1.0); // back after one period
    const physics::Orbit o = physics::OrbitFromState(moon.pos - earth.pos, moon.vel - earth.vel,
                                                     6.67259e-11 * (earth.mass + moon.mass));
    EXPECT_NEAR(o.el.i * DEG, 5.145, 1e-6);
    EXPECT_NEAR(o.prm.T, period, 1e-3);
}

TEST(SolarSystem, EarthCirclesTheSunInAYear) {
    World w(".");
    Body &earth = *w.FindBody("Earth");
    const physics::Orbit o =
        physics::OrbitFromState(earth.pos, earth.vel, 6.67259e-11 * (w.FindBody("Sun")->mass + earth.mass));
    EXPECT_NEAR(o.prm.T / 86400.0, 365.256, 0.01);
    EXPECT_NEAR(o.prm.PeD, 147.1e9, 0.1e9);
    EXPECT_NEAR(o.prm.ApD, 152.1e9, 0.1e9);
    EXPECT_NEAR(oapiGetMass(earth.Handle()) * 6.67259e-11, 3.986004418e14, 1e3);
    EXPECT_TRUE(oapiPlanetHasAtmosphere(earth.Handle()));
    EXPECT_FALSE(oapiPlanetHasAtmosphere(w.FindBody("Moon")->Handle()));
}

TEST(Landed, VesselStaysPutAndTurnsWithTheEarth) {
    World w(".");
    Body &earth = *w.Earth();
    Vessel &v = w.AddBareVessel("pad");
    v.emptyMass = 5000.0;
    VESSEL iface(v.Handle());
    VESSELSTATUS2 st{};
    st.version = 2;
    st.status = 1;
    st.rbody = earth.Handle();
    st.surf_lng = 10.0 * RAD;
    st.surf_lat = 45.0 * RAD;
    st.surf_hdg = 90.0 * RAD;
    iface.DefSetStateEx(&st);
    ASSERT_EQ(iface.GetFlightStatus(), 1);
    const VECTOR3 start = v.pos - earth.pos;
    const double altitude = iface.GetAltitude();

    w.accel = 1000.0;
    RunFor(w, 86164.1 / 4.0);
    // A quarter of a sidereal day on, the place has turned 90 degrees about the pole.
    const VECTOR3 pole = physics::Column(earth.equatorial, 1);
    const VECTOR3 now = v.pos - earth.pos;
    EXPECT_NEAR(dotp(now, pole), dotp(start, pole), 1e-3);
    // Eastward: the right ascension, in the Earth's non-rotating equatorial
    // frame (x, y north, z toward 90 degrees east), grew by a quarter turn.
    const VECTOR3 e0 = tmul(earth.equatorial, start), e1 = tmul(earth.equatorial, now);
    const double turned = std::remainder(std::atan2(e1.z, e1.x) - std::atan2(e0.z, e0.x), PI2);
    EXPECT_NEAR(turned * DEG, 90.0, 1e-6);
    const double speed = PI2 / 86164.1 * length(start - pole * dotp(start, pole));
    EXPECT_NEAR(length(v.vel - earth.vel), speed, 1e-6);
    EXPECT_NEAR(iface.GetAltitude(), altitude, 1e-4);
    double lng, lat, rad;
    iface.GetEquPos(lng, lat, rad);
    EXPECT_NEAR(lng * DEG, 10.0, 1e-9);
    EXPECT_NEAR(lat * DEG, 45.0, 1e-9);
    EXPECT_NEAR(std::fmod(iface.GetYaw() * DEG + 360.0, 360.0), 90.0, 1e-6);
    EXPECT_TRUE(iface.GroundContact());
}

namespace {

// A vessel let go `height` metres above the ground on the equator, level and
// turning with the Earth.
void DropOnEquator(World &w, Vessel &v, double height) {
    Body &earth = *w.Earth();
    VESSEL iface(v.Handle());
    VESSELSTATUS2 st{};
    st.version = 2;
    st.rbody = earth.Handle();
    const VECTOR3 up = physics::Column(earth.rot, 0); // above longitude 0
    st.rpos = up * (earth.radius + height);
    st.rvel = crossp(st.rpos, physics::Column(earth.equatorial, 1) * (PI2 / 86164.1));
    st.arot = physics::AnglesFromOrientation(
        physics::Columns(physics::Column(earth.rot, 2), up, crossp(physics::Column(earth.rot, 2), up)));
    iface.DefSetStateEx(&st);
}

} // namespace

TEST(Landed, DroppedVesselComesToRestAndThrustLiftsItOff) {
    World w(".");
    Vessel &v = w.AddBareVessel("lander");
    v.emptyMass = 2000.0;
    v.size = 4.0;
    VESSEL iface(v.Handle());
    DropOnEquator(w, v, 2.0 + 2.0); // default feet 2 m below the centre
    RunFor(w, 20.0);
    EXPECT_EQ(iface.GetFlightStatus(), 1);
    EXPECT_NEAR(iface.GetAltitude(), 2.0, 0.1);

    auto tank = std::make_unique<Propellant>();
    tank->maxMass = tank->mass = 500.0;
    auto hover = std::make_unique<Thruster>();
    hover->dir = {0, 1, 0};
    hover->maxThrust0 = 2.0 * 2500.0 * 9.82;
    hover->isp0 = 3000.0;
    hover->propellant = tank.get();
    hover->level = 1.0;
    v.propellants.push_back(std::move(tank));
    v.thrusters.push_back(std::move(hover));
    RunFor(w, 2.0);
    EXPECT_EQ(iface.GetFlightStatus(), 0);
    EXPECT_GT(iface.GetAltitude(), 10.0); // about g t^2 / 2 of climb
}

// Feet as stiff as a parked vessel's, without friction: the touchdown stays
// stable at every frame length, and the vessel comes to rest, landed, where
// it fell, then stays there.
TEST(Landed, StiffFrictionlessFeetSettleAtAnyFrameLength) {
    for (double accel : {1.0, 10.0, 100.0, 1000.0}) {
        World w(".");
        Vessel &v = w.AddBareVessel("piece");
        v.emptyMass = 100.0;
        v.pmi = {0.5, 0.5, 0.5};
        const double stiffness = 1e9, damping = std::sqrt(1e8 * 1e9) * 2.0 * 0.9;
        for (VECTOR3 p : {VECTOR3{0, -0.5, 0.5}, VECTOR3{-0.4, -0.5, -0.4}, VECTOR3{0.4, -0.5, -0.4}})
            v.touchdown.push_back(TOUCHDOWNVTX{p, stiffness, damping, 0.0, 0.0});
        VESSEL iface(v.Handle());
        DropOnEquator(w, v, 0.5 + 1.0);
        w.accel = accel;
        RunFor(w, 60.0);
        ASSERT_EQ(iface.GetFlightStatus(), 1) << "at " << accel << "x";
        double lng, lat, radius;
        iface.GetEquPos(lng, lat, radius);
        EXPECT_NEAR(iface.GetAltitude(), 0.5, 0.01) << accel;
        EXPECT_NEAR(lng * w.Earth()->radius, 0.0, 0.5) << accel;
        const double heading = iface.GetYaw();
        RunFor(w, 3600.0);
        EXPECT_EQ(iface.GetFlightStatus(), 1) << accel;
        EXPECT_NEAR(iface.GetYaw(), heading, 1e-9) << accel;
    }
}
