// The shipped fleet through hullsim, as a user runs it: landed vessels
// standing on the ground for a day, and Korvan stages flown by a key script.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <tuple>

#include "hullsim_fixture.h"

using hosttest::ReadEvents;
using hosttest::ReadText;
using hosttest::WriteText;
using nlohmann::json;

namespace {

using HullsimFleetTest = hosttest::HullsimFixture;

// Every landed vessel stays where it stands, turning with the Earth, for a
// day at any time acceleration and frame length: a piece on its own and
// those of the shipped scenarios.
TEST_F(HullsimFleetTest, LandedVesselsStayPutForADayAtAnyAcceleration) {
    WriteText(dir / "landed.scn", "BEGIN_ENVIRONMENT\n  Date MJD 61000.5\nEND_ENVIRONMENT\n"
                                  "BEGIN_SHIPS\nG-1:Fleet\\Generic\n  STATUS Landed Earth\n"
                                  "  POS -80.6 28.5\n  HEADING 90\nEND\nEND_SHIPS\n");
    // The places of the landed vessels, by name, after a run with `extra`.
    const auto places = [&](const std::string &scenario, std::vector<std::string> extra) {
        extra.insert(extra.end(), {"--state", dir / "state.json"});
        Fly(scenario, extra);
        std::map<std::string, json> out;
        const json state = json::parse(ReadText(dir / "state.json"));
        for (const json &v : state["vessels"])
            if (v["status"] == "landed")
                out[v["name"]] = v["surface"];
        return out;
    };
    const auto start = places(dir / "landed.scn", {});
    ASSERT_TRUE(start.contains("G-1"));
    EXPECT_NEAR(start.at("G-1")["longitude"].get<double>(), -80.6, 1e-9);
    EXPECT_NEAR(start.at("G-1")["heading"].get<double>(), 90.0, 1e-9);

    constexpr double kMetresPerDegree = 6371010.0 * 0.017453292519943295;
    const std::string landed = dir / "landed.scn";
    for (auto [scenario, accel, dt] : {std::tuple{landed, "1", "1"},
                                       {landed, "10", "0.5"},
                                       {landed, "100", "0.1"},
                                       {landed, "1000", "0.05"},
                                       {std::string("KorvanLanded"), "1", "1"},
                                       {std::string("KorvanLanded"), "1000", "1"},
                                       {std::string("KorvanFlight"), "1", "1"},
                                       {std::string("KorvanFlight"), "1000", "1"},
                                       {std::string("FairingReentry"), "1", "1"},
                                       {std::string("FairingReentry"), "1000", "1"}}) {
        SCOPED_TRACE(scenario + " at " + accel);
        const auto before = places(scenario, {});
        ASSERT_FALSE(before.empty());
        const auto after = places(scenario, {"--for", "86400", "--accel", accel, "--dt", dt});
        for (const auto &[name, place] : before) {
            ASSERT_TRUE(after.contains(name)) << name;
            const json &end = after.at(name);
            EXPECT_NEAR(end["latitude"].get<double>(), place["latitude"].get<double>(),
                        0.01 / kMetresPerDegree)
                << name;
            EXPECT_NEAR(end["longitude"].get<double>(), place["longitude"].get<double>(),
                        0.01 / kMetresPerDegree / 0.88)
                << name;
            EXPECT_NEAR(end["altitude"].get<double>(), place["altitude"].get<double>(), 0.01) << name;
            EXPECT_NEAR(end["heading"].get<double>(), place["heading"].get<double>(), 0.001) << name;
        }
    }
}

// A stage of the given scenario lines, in the demo's 200 km orbit, flown by hand.
std::string Stage(const std::string &name, const std::string &lines) {
    return name +
           ":Fleet\\Korvan\n  STATUS Orbiting Earth\n  RPOS 6571010 0 0\n  RVEL 0 0 7788.48\n"
           "  AROT 0 0 0\n  VROT 0 0 0\n" +
           lines + "END\n";
}

// One stage is flown through an ignition and a burn; the focus then walks
// over four more, each of which refuses the ignition for its own reason.
TEST_F(HullsimFleetTest, StagesFlownByKeysIgniteBurnShutDownAndRefuse) {
    WriteText(dir / "fleet.scn",
              "BEGIN_ENVIRONMENT\n  Date MJD 61000.5\nEND_ENVIRONMENT\nBEGIN_FOCUS\n  Ship K1\nEND_FOCUS\n"
              "BEGIN_SHIPS\nControl:Fleet\\Controller\n  STATUS Landed Earth\n  POS 0 0\nEND\n" +
                  Stage("K1", "") + Stage("K2", "  HK_FLAGS 0 0\n  IGNITE 0 30\n") +
                  Stage("K3", "  HK_FLAGS 0 0\n  RES_MODS Tanks Main:0.00005\n") +
                  Stage("K4", "  HK_FLAGS 0 0\n  RES_MODS Meshes SOZL:Flags!0,\n") +
                  Stage("K5", "  HK_FLAGS 0 0\n  RES_MODS Tanks RCS:0.04\n") + "END_SHIPS\n");
    // Keypad + is held through the ullage and past the ignition.
    WriteText(dir / "fly.keys", "1 M\n2 KP_PLUS 11\n40 KP_MINUS 0.2\n"
                                "41 Shift+TAB\n42 KP_PLUS 0.1\n43 Shift+TAB\n44 KP_PLUS 0.1\n"
                                "45 Shift+TAB\n46 KP_PLUS 0.1\n47 Shift+TAB\n48 KP_PLUS 0.1\n");
    Fly(dir / "fleet.scn",
        {"--for", "50", "--dt", "0.1", "--keys", dir / "fly.keys", "--events", dir / "events.jsonl",
         "--telemetry", dir / "flight.csv", "--track", "K1", "--telemetry-interval", "1"});

    std::vector<std::pair<std::string, std::string>> messages;
    std::vector<std::pair<double, double>> engine;
    for (const json &e : ReadEvents(dir / "events.jsonl")) {
        if (e["kind"] == "message" && e["text"] != "")
            messages.emplace_back(e["vessel"], e["text"]);
        if (e["kind"] == "engine" && e["vessel"] == "K1")
            engine.emplace_back(e["t"], e["level"]);
    }
    using M = std::pair<std::string, std::string>;
    EXPECT_EQ(messages, (std::vector<M>{
                            {"K1", "Manual controls enabled. To return to autopilot, use M key"},
                            {"K1", "Ullage started. Ignition in 10 sec"},
                            {"K1", "Main engine firing is already in progress."},
                            {"K1", "Main engine shutdown. 29 engine firings left."},
                            {"K2", "Ignitions limit for main engine is reached!"},
                            {"K3", "Main tank depleted!"},
                            {"K4", "Main engine ignition is not possible without SOZ!"},
                            {"K5", "Not enough ullage fuel for main engine ignition!"},
                        }));
    // Lit at the first step of 0.1 s that takes the 10 s countdown below 0.
    ASSERT_EQ(engine.size(), 2u);
    EXPECT_NEAR(engine[0].first, 12.1, 1e-6);
    EXPECT_EQ(engine[0].second, 1.0);
    EXPECT_NEAR(engine[1].first, 40.0, 1e-6);
    EXPECT_EQ(engine[1].second, 0.0);

    // The burn, as the telemetry saw it, gains what the rocket equation allows
    // and raises the apogee.
    const auto rows = hosttest::CsvRowsByTime(dir / "flight.csv", 1.0);
    const auto speed = [&](int t) { return rows.at(t)[3]; };
    const auto mass = [&](int t) { return rows.at(t)[7]; };
    const double dv = 3250.0 * std::log(mass(13) / mass(39));
    EXPECT_NEAR((speed(39) - speed(13)) / dv, 1.0, 0.02);
    EXPECT_GT(rows.at(45)[4], rows.at(10)[4] + 100e3);
}

// M hands the stage to its flight program: it turns, burns to its apogee
// target, leaving the SOZ behind at the ignition of its last burn, and
// coasts; the saved scenario holds what is left of the program.
TEST_F(HullsimFleetTest, FlightProgramBurnsToItsTargetAndSavesTheRest) {
    WriteText(dir / "program.scn",
              "BEGIN_ENVIRONMENT\n  Date MJD 61000.5\nEND_ENVIRONMENT\nBEGIN_FOCUS\n  Ship K\nEND_FOCUS\n"
              "BEGIN_SHIPS\nControl:Fleet\\Controller\n  STATUS Landed Earth\n  POS 0 0\nEND\n" +
                  Stage("K", "  HK_FLAGS 0 0\n  PGM ATT PROGRADE 5\n  PGM BURN PROGRADE APO 400\n"
                             "  PGM IDLE 600\n") +
                  "END_SHIPS\n");
    WriteText(dir / "m.keys", "1 M\n");
    Fly(dir / "program.scn",
        {"--for", "60", "--dt", "0.1", "--keys", dir / "m.keys", "--events", dir / "events.jsonl", "--save",
         dir / "out.scn", "--state", dir / "state.json"});
    std::vector<std::string> messages;
    std::vector<double> engine;
    for (const json &e : ReadEvents(dir / "events.jsonl")) {
        if (e["kind"] == "message" && e["text"] != "")
            messages.push_back(e["text"]);
        if (e["kind"] == "engine")
            engine.push_back(e["t"]);
    }
    EXPECT_EQ(messages,
              (std::vector<std::string>{"Manual controls disabled. To enable, use M key",
                                        "Ullage started. Ignition in 10 sec", "Main engine shutdown"}));
    // Lit after 5 s of holding and 10 s of ullage; out at 400 km.
    ASSERT_EQ(engine.size(), 2u);
    EXPECT_NEAR(engine[0], 16.2, 0.15);
    const auto state = json::parse(ReadText(dir / "state.json"));
    EXPECT_EQ(state["debugString"].get<std::string>().rfind("Coasting: ", 0), 0u) << state["debugString"];
    const std::string saved = ReadText(dir / "out.scn");
    EXPECT_EQ(saved.find("PGM ATT"), std::string::npos) << saved;
    EXPECT_EQ(saved.find("PGM BURN"), std::string::npos) << saved;
    EXPECT_NE(saved.find("PGM IDLE 600"), std::string::npos) << saved;
    EXPECT_NE(saved.find("AP_TIMER 5"), std::string::npos) << saved;
}

} // namespace
