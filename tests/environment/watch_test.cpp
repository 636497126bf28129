// The layers of watching: the planet watch within 20000 km of the ground,
// the atmosphere watch above 0.000325 Pa, and the way out of the air.
#include "environment_fixture.h"
#include "physics/atmosphere.h"

namespace {

class WatchTest : public EnvironmentTest {
  protected:
    // A stage at `altitude` m over the equator.
    Korvan &At(const std::string &name, double altitude) {
        return Orbiting(name, world->Earth()->radius + altitude, 1000.0);
    }
    // The altitude at which the air's pressure falls to 0.000325 Pa.
    static double AirTop() {
        double low = 100e3, high = 1000e3;
        for (int i = 0; i < 60; ++i) {
            const double mid = (low + high) / 2;
            (hullhost::physics::StandardAtmosphere(mid).pressure > 0.000325 ? low : high) = mid;
        }
        return low;
    }
};

TEST_F(WatchTest, LayersSwitchAtTheirThresholds) {
    const double top = AirTop();
    struct Row {
        double altitude;
        bool planet, air;
    } rows[] = {
        {19999e3, true, false}, {20001e3, false, false}, {top - 500, true, true}, {top + 500, true, false}};
    int n = 0;
    for (const Row &r : rows) {
        const std::string name = "K" + std::to_string(n++);
        Korvan &k = At(name, r.altitude);
        EXPECT_EQ(k.InPlanetRange, r.planet) << r.altitude;
        EXPECT_EQ(k.HasUpdater(&HULLKIT::H_GROUND_WATCH), r.planet) << r.altitude;
        EXPECT_EQ(k.InAtmosphere, r.air) << r.altitude;
        EXPECT_EQ(k.HasUpdater(&HULLKIT::H_ATM_FLT), r.air) << r.altitude;
    }
}

// Out of the air a hot vessel leaves the layer; one at the floor of 20 stays
// in it with its flight watch running.
TEST_F(WatchTest, OnlyAHotVesselLeavesTheAir) {
    const double top = AirTop();
    for (double temperature : {20.0, 800.0}) {
        const std::string name = "T" + std::to_string(static_cast<int>(temperature));
        Korvan &k = At(name, top - 500);
        ASSERT_TRUE(k.InAtmosphere);
        k.Temperature = temperature;
        hullhost::Vessel &v = Host(k);
        v.pos += (v.pos - v.ref->pos) / length(v.pos - v.ref->pos) * 2000.0;
        k.H_ATM_ENTER_EXIT();
        EXPECT_EQ(k.InAtmosphere, temperature == 20.0);
        EXPECT_EQ(k.HasUpdater(&HULLKIT::H_ATM_FLT), temperature == 20.0);
        EXPECT_EQ(k.Temperature, temperature);
    }
}

} // namespace
