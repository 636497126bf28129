// hullsim run --telemetry, --track and --plot: the CSV and the chart that a
// run writes, with probes in orbit loaded from their module file.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>

#include "hullsim_fixture.h"
#include "xml_check.h"

using hosttest::ReadText;
using hosttest::Result;
using hosttest::WriteText;

namespace {

// Two probes in a 200 km circular orbit of the Earth in the ecliptic plane:
// P (the focus) burning prograde at full thrust, Q&A coasting across from it.
// A probe has 1200 kg empty and 250 kg of propellant, 5000 N at 3000 m/s.
class HullsimTelemetryTest : public hosttest::HullsimFixture {
  protected:
    HullsimTelemetryTest() {
        WriteText(Root() + "/Scenarios/orbit.scn",
                  "BEGIN_ENVIRONMENT\n  Date MJD 60000\nEND_ENVIRONMENT\n"
                  "BEGIN_SHIPS\n"
                  "P:Test\\Probe\n  STATUS Orbiting Earth\n"
                  "  RPOS 6571010 0 0\n  RVEL 0 0 7788.48\n  PROBE_MAIN 1\nEND\n"
                  "Q&A:Test\\Probe\n  STATUS Orbiting Earth\n"
                  "  RPOS -6571010 0 0\n  RVEL 0 0 -7788.48\nEND\n"
                  "END_SHIPS\n");
    }
};

using Row = std::vector<std::string>;

double Number(const Row &row, size_t column) { return std::stod(row.at(column)); }

enum Column { kTime, kVessel, kAltitude, kSpeed, kApogee, kPerigee, kInclination, kMass, kMainLevel };

TEST_F(HullsimTelemetryTest, CsvOfTheFocusVesselEverySecond) {
    const std::string csv = dir / "t.csv";
    Result r = Run({"run", "orbit", "--root", Root(), "--for", "3", "--dt", "0.1", "--telemetry", csv});
    ASSERT_EQ(r.code, 0) << r.err;
    std::string header;
    const std::vector<Row> rows = hosttest::ReadCsv(csv, header);
    EXPECT_EQ(header, "time_s,vessel,altitude_m,speed_m_s,apogee_altitude_m,perigee_altitude_m,"
                      "inclination_deg,mass_kg,main_thrust_level");
    // At the start and at each whole second, though ten frames of 0.1 s add
    // up to a little less than one.
    ASSERT_EQ(rows.size(), 4u) << ReadText(csv);
    for (size_t k = 0; k < rows.size(); ++k) {
        const Row &row = rows[k];
        ASSERT_EQ(row.size(), 9u);
        EXPECT_EQ(row[kTime], std::to_string(k) + ".000");
        EXPECT_EQ(row[kVessel], "P");
        EXPECT_NEAR(Number(row, kMass), 1450.0 - 5000.0 / 3000.0 * k, 0.01) << k;
        EXPECT_EQ(row[kMainLevel], "1.000");
        EXPECT_NEAR(Number(row, kInclination), 23.44, 0.01); // the ecliptic to the equator
        EXPECT_NEAR(Number(row, kPerigee), 200e3, 1e3);
    }
    EXPECT_NEAR(Number(rows[0], kAltitude), 200e3, 1.0);
    EXPECT_NEAR(Number(rows[0], kSpeed), 7788.48, 0.01);
    // Three seconds of thrust prograde: about 10 m/s more, the apogee far up.
    EXPECT_NEAR(Number(rows[3], kSpeed) - Number(rows[0], kSpeed), 10.3, 0.3);
    EXPECT_GT(Number(rows[3], kApogee), Number(rows[0], kApogee) + 20e3);
}

TEST_F(HullsimTelemetryTest, TrackedVesselsInTheirOrderAndTheirChart) {
    const std::string csv = dir / "t.csv", svg = dir / "chart.svg";
    Result r = Run({"run", "orbit", "--root", Root(), "--for", "1", "--dt", "0.25", "--track", "Q&A",
                    "--track", "P", "--telemetry-interval", "0.5", "--telemetry", csv, "--plot", svg});
    ASSERT_EQ(r.code, 0) << r.err;
    std::string header;
    const std::vector<Row> rows = hosttest::ReadCsv(csv, header);
    ASSERT_EQ(rows.size(), 6u) << ReadText(csv);
    for (size_t k = 0; k < rows.size(); ++k) {
        EXPECT_EQ(rows[k][kTime], k < 2 ? "0.000" : k < 4 ? "0.500" : "1.000");
        EXPECT_EQ(rows[k][kVessel], k % 2 == 0 ? "Q&A" : "P");
        EXPECT_EQ(rows[k][kMainLevel], k % 2 == 0 ? "0.000" : "1.000");
    }
    EXPECT_EQ(rows[4][kMass], "1450.000"); // Q&A coasts

    // A line for each of the four values of each vessel, a point for each sample.
    const std::vector<hosttest::XmlElement> chart = hosttest::ParseXml(ReadText(svg));
    ASSERT_EQ(chart.front().name, "svg");
    int lines = 0;
    for (const auto &e : chart) {
        if (e.name == "polyline") {
            ++lines;
            const std::string &points = e.attributes.at("points");
            EXPECT_EQ(std::count(points.begin(), points.end(), ','), 3) << points;
        }
    }
    EXPECT_EQ(lines, 8);
}

// The summary states the burn as the rocket equation has it, and a pass by
// the Moon at its periapsis, however long the frames that straddle it; the
// orbit view draws the Moon's orbit and one path per vessel.
TEST_F(HullsimTelemetryTest, SummaryOfABurnAndAMoonPassAndTheirOrbitView) {
    Result r = Run({"run", "orbit", "--root", Root(), "--for", "200", "--dt", "0.5", "--summary", "--track",
                    "P", "--orbit-view", dir / "view.svg", "--track", "Q&A"});
    ASSERT_EQ(r.code, 0) << r.err;
    // All 250 kg at 1.667 kg/s: 150 s and 3000 ln(1450 / 1200) m/s.
    double start, duration, deltaV, propellant;
    const std::size_t burn = r.out.find("  1  T+");
    ASSERT_NE(burn, std::string::npos) << r.out;
    ASSERT_EQ(std::sscanf(r.out.c_str() + burn, "  1  T+00:00:%lf %lf s delta-v %lf m/s propellant %lf kg",
                          &start, &duration, &deltaV, &propellant),
              4)
        << r.out;
    EXPECT_EQ(start, 0.0);
    EXPECT_NEAR(duration, 150.0, 0.5);
    EXPECT_NEAR(deltaV, 3000.0 * std::log(1450.0 / 1200.0), 0.5);
    EXPECT_NEAR(propellant, 250.0, 1e-6);
    EXPECT_NE(r.out.find("Mission summary of Q&A"), std::string::npos);
    int lines = 0;
    std::vector<std::string> labels;
    for (const auto &e : hosttest::ParseXml(ReadText(dir / "view.svg"))) {
        lines += e.name == "polyline";
        if (e.name == "text")
            labels.push_back(e.text);
    }
    EXPECT_EQ(lines, 3);
    EXPECT_EQ(labels.back(), "Q&A");

    // From 5000 km on an ellipse whose periapsis is 2000 km from the Moon's
    // centre, half an orbit (9293 s) ahead, in frames of 1000 s and of 1 s.
    WriteText(dir / "moon.scn", "BEGIN_ENVIRONMENT\n  Date MJD 60000\nEND_ENVIRONMENT\nBEGIN_SHIPS\n"
                                "F:Fleet\\Generic\n  STATUS Orbiting Moon\n  RPOS 5000000 0 0\n"
                                "  RVEL 0 0 748.7\nEND\nEND_SHIPS\n");
    std::vector<double> found;
    for (const char *accel : {"1000", "1"}) {
        r = Run({"run", dir / "moon.scn", "--root", HULLKIT_BUILD_ROOT, "--for", "10000", "--dt", "1",
                 "--accel", accel, "--summary", "--track", "F"});
        ASSERT_EQ(r.code, 0) << r.err;
        double km, above, hours, minutes, seconds;
        const std::size_t pass = r.out.find("Closest approach to the Moon:");
        ASSERT_NE(pass, std::string::npos) << r.out;
        ASSERT_EQ(
            std::sscanf(r.out.c_str() + pass,
                        "Closest approach to the Moon: %lf km from its centre (%lf km above its surface) at "
                        "T+%lf:%lf:%lf",
                        &km, &above, &hours, &minutes, &seconds),
            5);
        EXPECT_NEAR(km, 2000.0, 10.0) << accel;
        EXPECT_NEAR(km - above, 1737.4, 1.0);
        EXPECT_NEAR(hours * 3600 + minutes * 60 + seconds, 9293.0, 30.0) << accel;
        found.push_back(km);
    }
    EXPECT_NEAR(found[0], found[1], 1.0);
}

} // namespace
