// Telemetry of a vessel in a circular orbit: rows at the sampling interval,
// apsides at the orbit's height.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "flight_test_support.h"
#include "physics/rotation.h"
#include "telemetry/telemetry_recorder.h"

using namespace hullhost;
using namespace hullhost::testing;

TEST(Telemetry, SamplesACircularOrbitAtItsInterval) {
    World w(".");
    Body &earth = *w.Earth();
    const double r = earth.radius + 400e3;
    const VECTOR3 up = physics::Column(earth.equatorial, 0), east = physics::Column(earth.equatorial, 2);
    AddVessel(w, "sat", 1500.0, up * r, east * std::sqrt(earth.gm / r));
    std::ostringstream csv;
    telemetry::TelemetryRecorder recorder(&csv, {"sat", "absent"}, 10.0);
    w.accel = 10.0;
    for (int frame = 0; frame < 600; ++frame) { // 100 s
        w.Frame(1.0 / 60.0);
        recorder.Sample(w);
    }
    ASSERT_EQ(recorder.Series().size(), 1u);
    const auto &samples = recorder.Series().front().samples;
    ASSERT_EQ(samples.size(), 10u);
    EXPECT_NEAR(samples[1].time - samples[0].time, 10.0, 10.0 / 60.0); // within a frame
    // Tides of the Sun and Moon move it by metres.
    const auto &s = samples.back();
    EXPECT_NEAR(s.altitude, 400e3, 100.0);
    EXPECT_NEAR(s.perigeeAltitude, 400e3, 100.0);
    EXPECT_NEAR(s.apogeeAltitude, 400e3, 100.0);
    EXPECT_NEAR(s.inclination, 0.0, 1e-3);
    const std::string rows = csv.str();
    EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 11); // header and ten rows
}
