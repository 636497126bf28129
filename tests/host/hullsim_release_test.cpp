// The shipped release scenario through hullsim: the carrier lets the Korvan
// go by its sequence, the stage throws off its elements as vessels of their
// own on their clock, and a save in the middle of a drop finishes it after
// reload.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <tuple>

#include "hullsim_fixture.h"

using hosttest::ReadEvents;
using hosttest::ReadText;
using hosttest::VesselIn;
using hosttest::WriteText;
using nlohmann::json;

namespace {

class HullsimReleaseTest : public hosttest::HullsimFixture {
  protected:
    // Runs `scenario` with `extra` options, keeping its events.
    void Fly(const std::string &scenario, std::vector<std::string> extra) {
        extra.insert(extra.end(), {"--dt", "0.1", "--seed", "7", "--events", dir / "events.jsonl"});
        HullsimFixture::Fly(scenario, extra);
        events = ReadEvents(dir / "events.jsonl");
    }
    std::vector<json> Of(const char *kind) const {
        std::vector<json> out;
        std::copy_if(events.begin(), events.end(), std::back_inserter(out),
                     [kind](const json &e) { return e["kind"] == kind; });
        return out;
    }
    // The shipped scenario with its carrier's sequence line replaced.
    std::string ReleaseScenario(const std::string &sequenceLine, const std::string &vrot) {
        std::string text = ReadText(std::string(HULLKIT_BUILD_ROOT) + "/Scenarios/KorvanRelease.scn");
        text.replace(text.find("  TIMED_SEQUENCE Release, 0"), 27, sequenceLine);
        const std::size_t carrier = text.find("Carrier-1:");
        text.replace(text.find("VROT 0.00 0.00 0.00", carrier), 19, "VROT " + vrot);
        WriteText(dir / "release.scn", text);
        return dir / "release.scn";
    }
    std::vector<json> events;
};

// The release 10 s in, the fairing 5.0 + 0.2 s later, then J by J the SOZ
// pair and the payloads, the highest number first, and the vent 5 s after the
// last for 7 s; the stage's mass drops by what each element weighs.
TEST_F(HullsimReleaseTest, CarrierReleasesTheStageWhichDropsItsElementsOnTheClock) {
    WriteText(dir / "j.keys", "19 M\n20 J\n22 J\n24 J\n");
    Fly("KorvanRelease",
        {"--for", "45", "--keys", dir / "j.keys", "--telemetry", dir / "stage.csv", "--track", "Korvan-1",
         "--telemetry-interval", "0.1", "--state", dir / "state.json"});
    std::vector<std::string> attached, detached;
    std::map<std::string, double> at, velocity;
    for (const json &e : Of("attached"))
        attached.push_back(e["child"].get<std::string>() + "@" + e["point"].get<std::string>());
    for (const json &e : Of("detached")) {
        const std::string child = e["child"];
        detached.push_back(child);
        at[child] = e["t"];
        velocity[child] = e["velocity"];
    }
    EXPECT_EQ(attached, (std::vector<std::string>{"Sat-1@Payload1", "Sat-2@Payload2", "Korvan-1@Stage",
                                                  "Korvan-1-Fairing@Fairing", "Korvan-1-SOZL@SOZL",
                                                  "Korvan-1-SOZR@SOZR"}));
    EXPECT_EQ(detached, (std::vector<std::string>{"Korvan-1", "Korvan-1-Fairing", "Korvan-1-SOZL",
                                                  "Korvan-1-SOZR", "Sat-2", "Sat-1"}));
    // The sequence's clock skips the first frame; every step fires within a frame.
    const double release = at["Korvan-1"];
    EXPECT_NEAR(release, 10.15, 0.051);
    EXPECT_NEAR(at["Korvan-1-Fairing"] - release, 5.2, 0.101);
    for (auto [child, least, span] : {std::tuple{"Korvan-1", 0.5, 0.2},
                                      {"Korvan-1-Fairing", 0.8, 0.4},
                                      {"Korvan-1-SOZL", 1.5, 0.5},
                                      {"Sat-2", 0.4, 0.1}}) {
        EXPECT_GE(velocity[child], least) << child;
        EXPECT_LE(velocity[child], least + span) << child;
    }
    EXPECT_EQ(Of("focus").back()["vessel"], "Sat-1"); // the focus follows the last payload

    // The stage's mass, sample by sample: whole drops at the separations, the
    // vent's flow between last + 5 s and last + 12 s, and nothing else.
    std::map<long, double> mass; // by tenths of a second
    for (const auto &[tenth, fields] : hosttest::CsvRowsByTime(dir / "stage.csv", 0.1))
        mass[tenth] = fields.at(7);
    // An element weighs twice in the 0.2 s between its spawn and its drop: as
    // a carried vessel and in the stage's dry mass.
    const auto drop = [&](double t) {
        return mass.at(std::lround(t * 10) - 3) - mass.at(std::lround(t * 10));
    };
    EXPECT_NEAR(drop(at["Korvan-1-Fairing"]), 180.0, 0.05);
    EXPECT_NEAR(drop(at["Korvan-1-SOZL"]), 120.0 + 110.0, 0.5); // the blocks and the RCS propellant
    EXPECT_NEAR(drop(at["Sat-2"]), 801.0, 0.05);
    EXPECT_NEAR(drop(at["Sat-1"]), 801.0, 0.05);
    const long last = std::lround(at["Sat-1"] * 10);
    EXPECT_DOUBLE_EQ(mass.at(last + 49), mass.at(last));
    EXPECT_NEAR(mass.at(last + 49) - mass.at(last + 130), 7.0 * 1.2, 0.15);
    EXPECT_DOUBLE_EQ(mass.rbegin()->second, mass.at(last + 130));

    const json state = json::parse(ReadText(dir / "state.json"));
    for (const json &v : state["vessels"]) {
        EXPECT_EQ(v["parent"], nullptr) << v["name"];
        if (v["name"] == "Carrier-1") {
            EXPECT_DOUBLE_EQ(v["emptyMass"].get<double>(), 2350.0);
        }
    }
}

// RELEASE_WHEN_STILL waits while the carrier turns faster than 0.1 deg/s on
// any axis, and is saved waiting; a carrier at rest lets the stage go at once.
TEST_F(HullsimReleaseTest, ConditionalReleaseWaitsForTheCarrierToBeStill) {
    for (auto [vrot, released] : {std::pair{"0 0 0.15", false}, {"0.09 -0.09 0.09", true}}) {
        Fly(ReleaseScenario("  CONDITIONAL_SEQUENCE ReleaseStill", vrot),
            {"--for", "5", "--save", dir / "after.scn", "--state", dir / "state.json"});
        ASSERT_EQ(Of("detached").size(), released ? 1u : 0u) << vrot;
        if (released) {
            EXPECT_NEAR(Of("detached")[0]["t"].get<double>(), 0.1, 1e-9); // in the first frame
        }
        const std::string saved = ReadText(dir / "after.scn");
        const std::string carrier = saved.substr(saved.find("Carrier-1:"));
        EXPECT_EQ(carrier.find("CONDITIONAL_SEQUENCE ReleaseStill 0,") != std::string::npos, !released)
            << carrier;
        EXPECT_EQ(carrier.find("C_STILL_WATCH") != std::string::npos, !released) << carrier;
        // The carrier weighs with its load until it lets it go.
        const json state = json::parse(ReadText(dir / "state.json"));
        EXPECT_DOUBLE_EQ(VesselIn(state, "Carrier-1")["emptyMass"].get<double>(),
                         2350.0 + (released ? 0.0 : VesselIn(state, "Korvan-1")["mass"].get<double>()))
            << vrot;
    }
}

// A save inside the 0.2 s between an element's spawn and its drop: the
// reloaded stage finishes the drop with the element it had, and the save
// loads and saves again to the same text.
TEST_F(HullsimReleaseTest, SaveInTheMiddleOfADropFinishesItAfterReload) {
    WriteText(dir / "j.keys", "19 M\n20 J\n");
    for (auto [seconds, element] : {std::pair{"15.3", "Korvan-1-Fairing"}, {"20.15", "Korvan-1-SOZR"}}) {
        Fly("KorvanRelease", {"--for", seconds, "--keys", dir / "j.keys", "--save", dir / "mid.scn"});
        Fly(dir / "mid.scn", {"--save", dir / "again.scn"});
        EXPECT_EQ(ReadText(dir / "again.scn"), ReadText(dir / "mid.scn")) << seconds;
        Fly(dir / "mid.scn", {"--for", "1", "--state", dir / "state.json"});
        ASSERT_FALSE(Of("detached").empty()) << seconds;
        EXPECT_EQ(Of("detached").back()["child"], element) << seconds;
        EXPECT_TRUE(Of("created").empty()) << seconds; // no second element
    }
}

// A landed carrier with the stage on it and a payload on the stage: the
// whole chain comes up landed together and stays on its spot.
TEST_F(HullsimReleaseTest, LandedChainOfThreeStaysTogether) {
    WriteText(dir / "landed.scn", "BEGIN_ENVIRONMENT\n  Date MJD 61000.5\nEND_ENVIRONMENT\nBEGIN_SHIPS\n"
                                  "Sat-1:Fleet\\Generic\n  SUBTYPE Payload\nEND\n"
                                  "K:Fleet\\Korvan\n  PAYLOAD1 Sat-1\nEND\n"
                                  "C:Fleet\\Carrier\n  STATUS Landed Earth\n  POS -80.6 28.5\n  HEADING 90\n"
                                  "  STAGE K\nEND\nEND_SHIPS\n");
    Fly(dir / "landed.scn", {"--for", "600", "--accel", "10", "--state", dir / "state.json"});
    const json state = json::parse(ReadText(dir / "state.json"));
    const json &carrier = VesselIn(state, "C");
    EXPECT_EQ(carrier["status"], "landed");
    // Stacked along the carrier's axis: the stage's centre 6.0 m above the
    // carrier's, the payload's 2.2 m above the stage's.
    for (auto [name, parent, height] : {std::tuple{"K", "C", 6.0}, {"Sat-1", "K", 8.2}}) {
        const json &v = VesselIn(state, name);
        EXPECT_EQ(v["parent"], parent);
        EXPECT_NEAR(v["surface"]["altitude"].get<double>() - carrier["surface"]["altitude"].get<double>(),
                    height, 0.01)
            << name;
        EXPECT_NEAR(v["surface"]["longitude"].get<double>(), -80.6, 1e-6) << name;
        EXPECT_NEAR(v["surface"]["latitude"].get<double>(), 28.5, 1e-6) << name;
    }
}

} // namespace
