// Keys as the host delivers them to the focus vessel and acts on those it
// leaves, and the event log of a run (--events), through the hullsim program.
#include <gtest/gtest.h>

#include "hullsim_fixture.h"
#include "scenario/scenario_file.h"

using hosttest::ReadEvents;
using hosttest::ReadText;
using hosttest::Result;
using hosttest::WriteText;
using json = nlohmann::json;

namespace {

class HullsimKeysEventsTest : public hosttest::HullsimFixture {
  protected:
    // Writes Scenarios/NAME.scn with the probes of `ships` ("NAME" followed by
    // its scenario lines) and the focus on the first.
    void WriteScenario(const std::string &name, const std::vector<std::vector<std::string>> &ships) const {
        std::string text = "BEGIN_FOCUS\n  Ship " + ships.at(0).at(0) + "\nEND_FOCUS\nBEGIN_SHIPS\n";
        for (const auto &ship : ships) {
            text += ship[0] + ":Test\\Probe\n";
            for (size_t i = 1; i < ship.size(); ++i)
                text += "  " + ship[i] + "\n";
            text += "END\n";
        }
        WriteText(Root() + "/Scenarios/" + name + ".scn", text + "END_SHIPS\n");
    }
};

double Level(const json &state) { return state["vessels"][0]["thrusterGroups"][0]["level"].get<double>(); }

// The probe's value of a scenario line of its saved block.
std::string Saved(const std::string &scn, const std::string &key) {
    const auto saved = hullhost::ScenarioFile::Read(scn);
    for (const auto &line : saved.vessels.at(0).lines)
        if (line.starts_with(key + " "))
            return line.substr(key.size() + 1);
    return "(none)";
}

// The host throttles and fires the attitude thrusters only with keys that the
// vessel left to it: none when it consumed their presses or answered its
// direct keys with 1.
TEST_F(HullsimKeysEventsTest, HostActsOnlyOnKeysTheVesselLeaves) {
    WriteText(dir / "keys.txt", "0 KP_PLUS 0.5\n"
                                "0 KP_2 0.2\n"    // pitch up
                                "0.3 KP_DIVIDE\n" // to translation: KP_8 is then up
                                "0.4 KP_8 0.2\n"
                                "0.6 KP_MULTIPLY\n"
                                "0.7 Ctrl+KP_PLUS\n"
                                "0.8 KP_MINUS 0.25\n");
    for (const std::string answer : {"0 0", "1 0", "0 1"}) {
        SCOPED_TRACE("answers " + answer);
        WriteScenario("rcs", {{"P", "PROBE_RCS", "PROBE_ANSWER " + answer}});
        const std::string state = dir / "state.json", save = dir / "out.scn", events = dir / "events.jsonl";
        Result r = Run({"run", "rcs", "--root", Root(), "--for", "1.2", "--keys", dir / "keys.txt", "--state",
                        state, "--save", save, "--events", events});
        ASSERT_EQ(r.code, 0) << r.err;
        const json s = json::parse(ReadText(state));
        const json &tanks = s["vessels"][0]["propellants"];
        const double rcsFuelPerFrame = 50.0 / 2000.0 * 0.02;
        std::vector<double> levels;
        for (const json &e : ReadEvents(events, "engine"))
            levels.push_back(e["level"].get<double>());
        if (answer != "0 0") {
            EXPECT_EQ(Level(s), 0.0);
            EXPECT_EQ(tanks[1]["mass"], 10.0);
            EXPECT_EQ(tanks[2]["mass"], 10.0);
            EXPECT_EQ(Saved(save, "PROBE_MANUAL"), "0");
            EXPECT_TRUE(levels.empty());
            continue;
        }
        // A hold from 0 covers the frames that end before it ends, one less
        // than a hold that starts later. Main: up 24 frames of 0.004 (0.2 per
        // second), cut, full, down 13 frames.
        EXPECT_NEAR(Level(s), 1.0 - 13 * 0.004, 1e-9);
        EXPECT_NEAR(tanks[1]["mass"].get<double>(), 10.0 - 9 * rcsFuelPerFrame, 1e-9);
        EXPECT_NEAR(tanks[2]["mass"].get<double>(), 10.0 - 10 * rcsFuelPerFrame, 1e-9);
        EXPECT_EQ(Saved(save, "PROBE_MANUAL"), "9");
        // Engine events: leaving 0, then each move of more than 0.01 (three
        // frames of 0.004; the last two frames up move less), reaching 0, full,
        // and down again in steps of three frames.
        ASSERT_EQ(levels.size(), 14u);
        for (size_t i = 0; i < 8; ++i)
            EXPECT_NEAR(levels[i], 0.004 + 0.012 * static_cast<double>(i), 1e-9) << i;
        EXPECT_EQ(levels[8], 0.0);
        EXPECT_EQ(levels[9], 1.0);
        for (size_t i = 10; i < 14; ++i)
            EXPECT_NEAR(levels[i], 1.0 - 0.012 * static_cast<double>(i - 9), 1e-9) << i;
    }
}

TEST_F(HullsimKeysEventsTest, EventLogTellsWhatHappenedInOrder) {
    // B has the focus, makes B-child in the run's frame of no length and
    // deletes itself in its second frame; A talks and sets the time
    // acceleration to 2 twice. The key's release goes to the new focus.
    WriteScenario("events", {{"B", "PROBE_SPAWN"}, {"A", "PROBE_SAY", "PROBE_WARP 2", "PROBE_MAIN 0.5"}});
    WriteText(dir / "keys.txt", "0 Ctrl+M\n");
    const std::string events = dir / "events.jsonl";
    Result r = Run(
        {"run", "events", "--root", Root(), "--for", "0.3", "--keys", dir / "keys.txt", "--events", events});
    ASSERT_EQ(r.code, 0) << r.err;
    const std::vector<json> expected = {
        {{"t", 0}, {"kind", "message"}, {"vessel", "B"}, {"text", "probe B ready"}},
        {{"t", 0}, {"kind", "message"}, {"vessel", "A"}, {"text", "probe A ready"}},
        {{"t", 0}, {"kind", "focus"}, {"vessel", "B"}},
        {{"t", 0}, {"kind", "engine"}, {"vessel", "A"}, {"level", 0.5}},
        {{"t", 0}, {"kind", "created"}, {"vessel", "B-child"}, {"class", "Test\\Probe"}},
        {{"t", 0}, {"kind", "message"}, {"vessel", "B-child"}, {"text", "probe B-child ready"}},
        {{"t", 0}, {"kind", "message"}, {"vessel", "A"}, {"text", "hello"}},
        {{"t", 0}, {"kind", "timeaccel"}, {"value", 2}},
        {{"t", 0.04}, {"kind", "key"}, {"vessel", "B"}, {"key", "Ctrl+M"}, {"down", true}},
        {{"t", 0.04}, {"kind", "deleted"}, {"vessel", "B"}},
        {{"t", 0.04}, {"kind", "focus"}, {"vessel", "A"}},
        {{"t", 0.08}, {"kind", "key"}, {"vessel", "A"}, {"key", "Ctrl+M"}, {"down", false}},
        {{"t", 0.08}, {"kind", "message"}, {"vessel", "A"}, {"text", ""}},
        {{"t", 0.16}, {"kind", "message"}, {"vessel", "A"}, {"text", "bye"}},
    };
    std::vector<json> got = ReadEvents(events);
    ASSERT_EQ(got.size(), expected.size()) << ReadText(events);
    for (size_t i = 0; i < got.size(); ++i) {
        EXPECT_NEAR(got[i]["t"].get<double>(), expected[i]["t"].get<double>(), 1e-9) << i;
        got[i].erase("t");
        json want = expected[i];
        want.erase("t");
        EXPECT_EQ(got[i], want) << i;
    }
}

// A run that fails midway still leaves the events up to the failure, whole;
// the other outputs aren't written.
TEST_F(HullsimKeysEventsTest, EventsAreWrittenWhenTheRunFails) {
    WriteScenario("fails", {{"P", "PROBE_SAY", "PROBE_THROW 3"}});
    const std::string events = dir / "events.jsonl", state = dir / "state.json";
    ExpectError({"run", "fails", "--root", Root(), "--for", "1", "--events", events, "--state", state}, 1,
                "probe failure");
    EXPECT_FALSE(std::filesystem::exists(state));
    const std::vector<json> got = ReadEvents(events);
    ASSERT_EQ(got.size(), 4u) << ReadText(events);
    EXPECT_EQ(got[2]["text"], "hello");
    EXPECT_EQ(got[3]["text"], "");
    EXPECT_NEAR(got[3]["t"].get<double>(), 0.04, 1e-9);
}

} // namespace
