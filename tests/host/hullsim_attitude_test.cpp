// Attitude modes through hullsim as a user flies them: a Korvan in its 200 km
// orbit switched into each navigation mode by its key, flown by the stage's
// own loop (the override) or by the host; the "navmode" events; the held
// time acceleration of --warp; the bodies of --state.
#include <gtest/gtest.h>

#include <cmath>

#include "hullsim_fixture.h"

using hosttest::ReadEvents;
using hosttest::ReadText;
using hosttest::Vec;
using hosttest::WriteText;
using json = nlohmann::json;

namespace {

using HullsimAttitudeTest = hosttest::HullsimFixture;

VECTOR3 Unit(const VECTOR3 &v) { return v / length(v); }

struct ModeCase {
    const char *keys;  // the key script
    int mode;          // the mode whose target the nose must hold
    bool hostFlies;    // the override is switched off first
    const char *trace; // "mode:active" of the navmode events, in order
};

// Each mode turns the nose from the velocity (where it starts) to its target
// and holds it there: a sign turned anywhere would drive it away instead.
TEST_F(HullsimAttitudeTest, EachModeTurnsTheStageAndHoldsIt) {
    WriteText(dir / "orbit.scn",
              "BEGIN_ENVIRONMENT\n  Date MJD 61000.5\nEND_ENVIRONMENT\nBEGIN_SHIPS\nK:Fleet\\Korvan\n"
              "  STATUS Orbiting Earth\n  RPOS 6571010 0 0\n  RVEL 0 0 7788.48\n  AROT 0 0 0\n"
              "  VROT 0 0 0\n  HK_FLAGS 0 0\n  MET 100 0\n  UPDATERS K_FLIGHT H_MET\nEND\nEND_SHIPS\n");
    const ModeCase cases[] = {
        {"1 RBRACKET\n", 4, false, "4:1 4:0"},
        {"1 SEMICOLON\n", 5, false, "5:1 5:0"},
        {"1 APOSTROPHE\n", 6, false, "6:1 6:0"},
        {"1 LBRACKET\n2 RBRACKET\n", 4, false, "3:1 3:0 4:1 4:0"},
        {"1 Shift+N\n2 RBRACKET\n", 4, true, "4:1"},
        {"1 Shift+N\n2 SEMICOLON\n", 5, true, "5:1"},
        // Off again on the second press; HLEVEL isn't among the stage's modes,
        // so its key is refused; KILLROT stops what turning is left.
        {"1 Shift+N\n1.5 APOSTROPHE\n2 APOSTROPHE\n2.5 L\n3 KP_5\n", 1, true, "6:1 6:0 2:1 2:0 1:1"},
    };
    for (const ModeCase &c : cases) {
        SCOPED_TRACE(c.keys);
        WriteText(dir / "keys.txt", c.keys);
        Fly(dir / "orbit.scn", {"--for", "300", "--dt", "0.05", "--keys", dir / "keys.txt", "--state",
                                dir / "state.json", "--events", dir / "events.jsonl"});
        std::string trace;
        for (const json &e : ReadEvents(dir / "events.jsonl", "navmode")) {
            EXPECT_EQ(e["vessel"], "K");
            trace += (trace.empty() ? "" : " ") + std::to_string(e["mode"].get<int>()) + ":" +
                     (e["active"].get<bool>() ? "1" : "0");
        }
        EXPECT_EQ(trace, c.trace);

        const json state = json::parse(ReadText(dir / "state.json"));
        const json &k = state["vessels"][0];
        const VECTOR3 p = Vec(k["rpos"]), v = Vec(k["rvel"]), nose = Vec(k["axes"][2]);
        const VECTOR3 wanted[] = {{}, {}, {}, Unit(v), Unit(-v), Unit(crossp(p, v)), Unit(-crossp(p, v))};
        if (c.mode > 1) {
            EXPECT_GT(dotp(nose, wanted[c.mode]), std::cos(2.0 * 0.017453292519943295));
        }
        EXPECT_LT(length(Vec(k["angularVel"])), 0.005);
        // The host's firing lasts one frame; the stage's own stays on its groups.
        double levels = 0.0;
        for (const json &g : k["thrusterGroups"])
            levels += g["level"].get<double>();
        if (c.hostFlies) {
            EXPECT_EQ(levels, 0.0);
        }
    }
}

// A user holding the acceleration at A: raised from the first second of the
// run on, again after each drop, never over a cap that a vessel keeps. The
// probe drops it to 2 in its first two frames, or caps it at 10 in every one.
TEST_F(HullsimAttitudeTest, WarpRaisesAfterDropsAndKeepsUnderACap) {
    struct Case {
        const char *line;
        std::vector<double> accels;
        int frames;
    };
    // Each run begins with a frame of no length. Then, with the drop: 51
    // frames of 0.04 s, the last one with the first raise a second in, 0.4,
    // and 37 frames of 2 s; under the cap: 51 of 0.02 s and 10 of 0.2 s.
    const Case cases[] = {
        {"PROBE_WARP 2", {2, 20, 100}, 1 + 51 + 1 + 37},
        {"PROBE_CAP 10", {10}, 1 + 51 + 10},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.line);
        WriteText(Root() + "/Scenarios/warp.scn",
                  std::string("BEGIN_SHIPS\nP:Test\\Probe\n  ") + c.line + "\nEND\nEND_SHIPS\n");
        const double seconds = c.accels.size() == 3 ? 51 * 0.04 + 0.4 + 74.0 : 51 * 0.02 + 10 * 0.2;
        const hosttest::Result r =
            Run({"run", "warp", "--root", Root(), "--for", std::to_string(seconds), "--warp", "100", "--save",
                 dir / "out.scn", "--events", dir / "events.jsonl", "--state", dir / "state.json"});
        ASSERT_EQ(r.code, 0) << r.err;
        std::vector<double> accels;
        for (const json &e : ReadEvents(dir / "events.jsonl", "timeaccel"))
            accels.push_back(e["value"].get<double>());
        EXPECT_EQ(accels, c.accels);
        EXPECT_NE(ReadText(dir / "out.scn").find("PROBE_FRAMES " + std::to_string(c.frames)),
                  std::string::npos)
            << ReadText(dir / "out.scn");
    }
    // The bodies of the state, placed like the vessels: against the Earth.
    const json bodies = json::parse(ReadText(dir / "state.json"))["bodies"];
    ASSERT_EQ(bodies.size(), 3u);
    const char *names[] = {"Sun", "Earth", "Moon"};
    const double distances[][2] = {{1.47e11, 1.53e11}, {0, 0}, {3.56e8, 4.07e8}};
    for (int i = 0; i < 3; ++i) {
        const json &b = bodies[i];
        EXPECT_EQ(b["name"], names[i]);
        EXPECT_GT(b["mass"].get<double>(), 7e22);
        EXPECT_GT(b["radius"].get<double>(), 1.7e6);
        EXPECT_GE(length(Vec(b["rpos"])), distances[i][0]);
        EXPECT_LE(length(Vec(b["rpos"])), distances[i][1]);
    }
    EXPECT_NEAR(length(Vec(bodies[2]["rvel"])), 1020.0, 60.0);
}

} // namespace
