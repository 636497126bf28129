// The shipped lunar mission through hullsim, as the demo flies it: the
// program alone takes the stage from the release to the vent and onto a
// transfer that meets the Moon; and saved at any moment, reloaded and flown
// on with the same seed, the mission ends as the run that saved it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <future>
#include <map>
#include <nlohmann/json.hpp>
#include <random>
#include <set>
#include <sstream>

#include "hullsim_fixture.h"

namespace {

using json = nlohmann::json;

constexpr double kMissionEnd = 345600.0; // four days
constexpr double kWarpFrame = 0.0049 * 2000.0;

std::string Number(double x) {
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", x);
    return text;
}

// The demo's command for `seconds` of `scenario`.
std::vector<std::string> Mission(const std::string &scenario, double seconds) {
    return {"run",           scenario, "--root",    HULLKIT_BUILD_ROOT, "--for",
            Number(seconds), "--dt",   "0.0049",    "--warp",           "2000",
            "--seed",        "1",      "--summary", "--track",          "Korvan-1"};
}

std::vector<json> ReadEvents(const std::string &path) {
    std::vector<json> events;
    std::istringstream in(hosttest::ReadText(path));
    for (std::string line; std::getline(in, line);)
        events.push_back(json::parse(line));
    return events;
}

// A number that the summary prints behind `label`, such as "apogee".
double Summary(const std::string &out, const std::string &label) {
    const size_t at = out.find(label + " ", out.find("Final orbit"));
    return at == std::string::npos ? -1.0 : std::atof(out.c_str() + at + label.size() + 1);
}

// An event as a text to compare: without its time and the places and speeds
// that draws move.
std::string Key(json e) {
    for (const char *drawn : {"t", "lat", "lng", "alt", "velocity"})
        e.erase(drawn);
    return e.dump();
}

bool OfTheStage(const json &e) {
    return e.value("vessel", json()) == "Korvan-1" || e.value("parent", json()) == "Korvan-1" ||
           e["kind"] == "timeaccel";
}

class HullsimMissionTest : public hosttest::HullsimFixture {
  protected:
    // The mission, once, with saves at `moments`; the events in events.jsonl.
    hosttest::Result FlyWithSaves(const std::vector<double> &moments) const {
        std::vector<std::string> args = Mission("LunarTransfer", kMissionEnd);
        for (size_t i = 0; i < moments.size(); ++i)
            args.insert(args.end(),
                        {"--save-at", Number(moments[i]), dir / ("save" + std::to_string(i) + ".scn")});
        args.insert(args.end(), {"--events", dir / "events.jsonl"});
        return Run(args);
    }
};

TEST_F(HullsimMissionTest, ProgramFliesFromReleaseToTheMoon) {
    const hosttest::Result r = FlyWithSaves({});
    ASSERT_EQ(r.code, 0) << r.err;
    // The elements leave in the mission's order, with no key pressed.
    std::vector<std::string> order;
    for (const json &e : ReadEvents(dir / "events.jsonl")) {
        EXPECT_NE(e["kind"], "key");
        if (e["kind"] == "detached")
            order.push_back(e["child"]);
    }
    EXPECT_EQ(order, (std::vector<std::string>{"Korvan-1", "Korvan-1-Fairing", "Sat-2", "Korvan-1-SOZL",
                                               "Korvan-1-SOZR", "Sat-1"}));
    // Two burns: the apogee to 1000 km, then a transfer that reaches the Moon's distance.
    double perigee, apogee, vented, closest;
    const std::size_t second = r.out.find("  2  T+");
    ASSERT_NE(second, std::string::npos) << r.out;
    ASSERT_EQ(
        std::sscanf(r.out.c_str() + r.out.find("orbit", second), "orbit %lf x %lf km", &perigee, &apogee), 2);
    EXPECT_GT(apogee, 380000.0);
    EXPECT_NE(r.out.find("orbit 200 x 1000"), std::string::npos) << r.out;
    ASSERT_EQ(std::sscanf(r.out.c_str() + r.out.find("Vented"), "Vented %lf kg", &vented), 1);
    EXPECT_NEAR(vented, 8.4, 0.5);
    ASSERT_EQ(std::sscanf(r.out.c_str() + r.out.find("Closest approach"),
                          "Closest approach to the Moon: %lf km", &closest),
              1);
    EXPECT_LT(closest, 30000.0);
}

// Saves at 100 random moments. Each one reads back as itself, and flown on to
// the mission's end it meets the same events, the stage's at the same time
// within a frame, and leaves the stage on the same orbit within 0.1 %. Draws
// are made anew at each load, so pieces that draws move meet their events
// at other times.
TEST_F(HullsimMissionTest, SavedAnywhereItEndsAsTheUninterruptedRun) {
    std::mt19937 random(20261123);
    std::uniform_real_distribution<double> moment(0.0, kMissionEnd);
    std::vector<double> moments(100);
    for (double &m : moments)
        m = moment(random);
    std::sort(moments.begin(), moments.end());
    const hosttest::Result whole = FlyWithSaves(moments);
    ASSERT_EQ(whole.code, 0) << whole.err;
    const std::vector<json> events = ReadEvents(dir / "events.jsonl");
    // The moment of each save, and the reports that saving makes.
    std::map<std::string, double> saved;
    for (const json &e : events)
        if (e["kind"] == "save")
            saved[e["file"]] = e["t"];
    ASSERT_EQ(saved.size(), moments.size());
    auto madeBySaving = [&](const json &e) {
        return e["kind"] == "save" ||
               (e["kind"] == "report" &&
                std::any_of(saved.begin(), saved.end(), [&](auto &s) { return s.second == e["t"]; }));
    };

    struct Resumed {
        hosttest::Result fixedPoint, run;
        std::string first, again;
    };
    std::vector<Resumed> resumed(moments.size());
    auto fly = [&](size_t worker) {
        for (size_t i = worker; i < moments.size(); i += 2) {
            const std::string n = std::to_string(i), save = dir / ("save" + n + ".scn");
            Resumed &r = resumed[i];
            r.fixedPoint =
                Run({"run", save, "--root", HULLKIT_BUILD_ROOT, "--save", dir / ("again" + n + ".scn")},
                    "again" + n);
            r.first = hosttest::ReadText(save);
            r.again = hosttest::ReadText(dir / ("again" + n + ".scn"));
            std::vector<std::string> args = Mission(save, kMissionEnd - saved.at(save));
            args.insert(args.end(), {"--events", dir / ("events" + n + ".jsonl")});
            r.run = Run(args, n);
        }
    };
    auto other = std::async(std::launch::async, fly, 1);
    fly(0);
    other.get();

    const double apogee = Summary(whole.out, "apogee"), perigee = Summary(whole.out, "perigee");
    ASSERT_GT(perigee, 0.0) << whole.out;
    for (size_t i = 0; i < moments.size(); ++i) {
        const std::string n = std::to_string(i);
        const double at = saved.at(dir / ("save" + n + ".scn"));
        SCOPED_TRACE("saved at " + Number(at));
        const Resumed &r = resumed[i];
        ASSERT_EQ(r.fixedPoint.code, 0) << r.fixedPoint.err;
        EXPECT_EQ(r.again, r.first);
        ASSERT_EQ(r.run.code, 0) << r.run.err;
        EXPECT_NEAR(Summary(r.run.out, "apogee"), apogee, 1e-3 * apogee);
        EXPECT_NEAR(Summary(r.run.out, "perigee"), perigee, 1e-3 * perigee);

        std::vector<json> before, after; // from the save on
        for (const json &e : events)
            if (e["t"].get<double>() > at && !madeBySaving(e))
                before.push_back(e);
        for (json e : ReadEvents(dir / ("events" + n + ".jsonl")))
            if (e["t"].get<double>() > 0.0) { // what the load itself tells is no event of the flight
                e["t"] = e["t"].get<double>() + at;
                after.push_back(e);
            }
        std::multiset<std::string> wanted, got;
        for (const json &e : before)
            wanted.insert(Key(e));
        for (const json &e : after)
            got.insert(Key(e));
        EXPECT_EQ(got, wanted);
        std::vector<json> stageBefore, stageAfter;
        std::copy_if(before.begin(), before.end(), std::back_inserter(stageBefore), OfTheStage);
        std::copy_if(after.begin(), after.end(), std::back_inserter(stageAfter), OfTheStage);
        ASSERT_EQ(stageAfter.size(), stageBefore.size());
        for (size_t k = 0; k < stageBefore.size(); ++k) {
            EXPECT_EQ(Key(stageAfter[k]), Key(stageBefore[k]));
            EXPECT_NEAR(stageAfter[k]["t"].get<double>(), stageBefore[k]["t"].get<double>(), kWarpFrame)
                << Key(stageBefore[k]);
        }
    }
}

} // namespace
