// Floodlights and beacons through hullsim: the lamp grid as the host gets it,
// the day and night check at the place and date of a scenario, and the host
// lights that follow the viewer's distance.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "hullsim_fixture.h"

using hosttest::ReadText;
using hosttest::Vec;
using hosttest::VesselIn;
using hosttest::WriteText;
using nlohmann::json;

namespace {

constexpr double kDeg = 0.017453292519943295;

class HullsimLightsTest : public hosttest::HullsimFixture {
  protected:
    // The shipped lit tower's scenario at another date, with `extra` ships.
    std::string Pad(double mjd, const std::string &focus = "Pad-1", const std::string &extra = "") {
        std::string scn = ReadText(std::string(HULLKIT_BUILD_ROOT) + "/Scenarios/LitPad.scn");
        std::ostringstream date;
        date.precision(12);
        date << "Date MJD " << mjd;
        scn.replace(scn.find("Date MJD 61000.893"), 18, date.str());
        scn.replace(scn.find("Ship Pad-1"), 10, "Ship " + focus);
        scn.replace(scn.find("END_SHIPS"), 9, extra + "END_SHIPS");
        WriteText(dir / "pad.scn", scn);
        return dir / "pad.scn";
    }
    // The state after `seconds` of a scenario.
    json State(const std::string &scenario, const std::string &seconds,
               const std::string &root = HULLKIT_BUILD_ROOT) {
        const hosttest::Result r = Run({"run", scenario, "--root", root, "--for", seconds, "--dt", "1",
                                        "--seed", "5", "--state", dir / "state.json"});
        EXPECT_EQ(r.code, 0) << r.err;
        return json::parse(ReadText(dir / "state.json"));
    }
};

// The lamps' sprites among a vessel's exhausts, without its reentry glow.
json Lamps(const json &vessel) {
    json lamps = json::array();
    for (const json &e : vessel["exhausts"])
        if (e["texture"] != "Fleet\\Glow")
            lamps.push_back(e);
    return lamps;
}

// At local noon, at dusk and at midnight at Cape Canaveral on 21 November
// 2025 (the Sun at 20 degrees south): the Sun stands where it should over
// the pad, the beacons come on 10 degrees before the lamps, and the lamps'
// sprites and host lights follow. The shipped scenario starts in daylight;
// its beacons come on at the check 600 s in, its lamps at the first check
// after sunset, within the hour.
TEST_F(HullsimLightsTest, LampsAndBeaconsGoByTheSunAtThePadsPlaceAndDate) {
    const double shipped = 61000.893, unchecked = 999.0;
    const struct {
        double mjd;
        const char *seconds;
        double elevation; // of the Sun over the pad [deg], within 3
        bool beacons, lamps;
    } cases[] = {{61000.7238, "3", 41.5, false, false},    {61000.925, "3", 4.0, true, false},
                 {61001.2238, "3", -81.5, true, true},     {shipped, "3", unchecked, false, false},
                 {shipped, "700", unchecked, true, false}, {shipped, "3700", unchecked, true, true}};
    for (const auto &c : cases) {
        SCOPED_TRACE(std::to_string(c.mjd) + " after " + c.seconds);
        const json state = State(Pad(c.mjd), c.seconds);
        const json &pad = VesselIn(state, "Pad-1");
        if (c.elevation != unchecked) {
            VECTOR3 sun{};
            for (const json &b : state["bodies"])
                if (b["name"] == "Sun")
                    sun = Vec(b["rpos"]);
            const VECTOR3 up = Vec(pad["rpos"]);
            const VECTOR3 toSun = sun - up;
            EXPECT_NEAR(std::asin(dotp(up, toSun) / (length(up) * length(toSun))) / kDeg, c.elevation, 3.0);
        }
        for (const json &b : pad["beacons"])
            EXPECT_EQ(b["active"], c.beacons);
        ASSERT_EQ(pad["lights"].size(), 2u);
        for (const json &l : pad["lights"])
            EXPECT_EQ(l["active"], c.lamps);
        for (const json &e : Lamps(pad))
            EXPECT_EQ(e["level"], c.lamps ? 1.0 : 0.0);
    }
}

// A viewer 4900 m from the lit pad sees its host lights; one at 5100 m
// doesn't, but the sprites stay lit.
TEST_F(HullsimLightsTest, HostLightsFollowTheViewersDistance) {
    for (auto [metres, active] : {std::pair{4900.0, true}, std::pair{5100.0, false}}) {
        std::ostringstream viewer;
        viewer.precision(12);
        viewer << "Viewer:Fleet\\Generic\n  STATUS Landed Earth\n  POS -80.604 "
               << 28.608 + metres / 6371010.0 / kDeg << "\n  HEADING 0\n  SUBTYPE Payload\nEND\n";
        const json pad = VesselIn(State(Pad(61001.2238, "Viewer", viewer.str()), "4"), "Pad-1");
        for (const json &l : pad["lights"])
            EXPECT_EQ(l["active"], active) << metres;
        EXPECT_EQ(pad["exhausts"][0]["level"], 1.0);
    }
}

// A set of 2 by 2 lamps fanned out by 10 degrees across and 5 degrees up:
// each lamp's face (and in fog its beam) at its place and in its direction.
TEST_F(HullsimLightsTest, LampGridHasItsPlacesAndDirectionsAndBeamsOnlyInFog) {
    const std::string root = dir / "groot";
    std::filesystem::create_directories(root + "/Config/Vessels/Fleet/Generic");
    for (const char *sub :
         {"Config/Vessels/Fleet/HullKit.cfg", "Config/Vessels/Fleet/Generic.cfg", "Modules", "Meshes"})
        std::filesystem::create_symlink(std::string(HULLKIT_BUILD_ROOT) + "/" + sub, root + "/" + sub);
    WriteText(root + "/Config/Vessels/Fleet/Generic/Grid.cfg",
              "SpotlightSets = {\n  S (1, 2, 3) 2 2 7 3 0.5 90 0 10 5 2 1 0\n}\n");
    const double s80 = std::sin(80 * kDeg), c80 = std::cos(80 * kDeg), s5 = std::sin(5 * kDeg);
    const std::vector<std::pair<VECTOR3, VECTOR3>> lamps = {{{1, 2, 3}, {s80, 0, c80}},
                                                            {{1, 3, 3}, {s80, s5, c80}},
                                                            {{1, 2, 1}, {1, 0, 0}},
                                                            {{1, 3, 1}, {1, s5, 0}}};
    for (auto [fog, beams] : {std::pair{"0", false}, std::pair{"1", true}}) {
        WriteText(root + "/Scenarios/Grid.scn",
                  "BEGIN_ENVIRONMENT\n  Date MJD 61000.5\nEND_ENVIRONMENT\nBEGIN_SHIPS\nG:Fleet\\Generic\n"
                  "  STATUS Landed Earth\n  POS 0 0\n  SUBTYPE Grid\n  SPOTLIGHT_FOG_PROBABILITY " +
                      std::string(fog) + "\nEND\nEND_SHIPS\n");
        const json g = VesselIn(State("Grid", "0", root), "G");
        ASSERT_EQ(g["lights"].size(), 1u);
        EXPECT_EQ(g["lights"][0]["pos"], json::array({1.0, 2.0, 3.0}));
        EXPECT_NEAR(g["lights"][0]["dir"][0].get<double>(), 1.0, 1e-12);
        const json sprites = Lamps(g);
        const std::size_t per = beams ? 2 : 1;
        ASSERT_EQ(sprites.size(), lamps.size() * per) << fog;
        for (std::size_t i = 0; i < sprites.size(); ++i) {
            const auto &[pos, dirn] = lamps[i / per];
            const VECTOR3 p = Vec(sprites[i]["pos"]), d = Vec(sprites[i]["dir"]);
            EXPECT_NEAR(length(p - pos), 0.0, 1e-9) << i;
            EXPECT_NEAR(length(d - dirn), 0.0, 1e-9) << i;
            EXPECT_EQ(sprites[i]["lscale"], i % per ? 7.0 : 0.1);
            EXPECT_EQ(sprites[i]["wscale"], i % per ? 3.0 : 0.5);
        }
    }
}

} // namespace
