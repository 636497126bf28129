// hullsim's command line.
#include <gtest/gtest.h>

#include <tuple>

#include "sim/frame_clock.h"
#include "sim/options.h"
#include "sim/usage_error.h"

using hullhost::sim::Command;
using hullhost::sim::ParseCommandLine;
using hullhost::sim::SaveAt;
using hullhost::sim::UsageError;

namespace {

std::string OptionError(const std::vector<std::string> &args) {
    try {
        ParseCommandLine(args, "/root");
    } catch (const UsageError &e) {
        return e.what();
    }
    return "(no error)";
}

// The options as one record, to compare whole.
auto Fields(const hullhost::sim::RunOptions &r) {
    return std::tuple(r.scenario, r.root, r.seconds, r.dt, r.accel, r.warp, r.seed, r.savePath, r.statePath,
                      r.keysPath, r.logPath, r.telemetryPath, r.plotPath, r.tracks, r.telemetryInterval,
                      r.saveAts);
}

TEST(OptionsTest, DefaultsAndEveryOption) {
    Command plain = ParseCommandLine({"run", "demo"}, "/default/root");
    EXPECT_FALSE(plain.help);
    EXPECT_EQ(Fields(plain.run), std::tuple("demo", "/default/root", 0.0, 0.02, std::optional<double>(), 0.0,
                                            std::optional<unsigned>(), "", "", "", "", "", "",
                                            std::vector<std::string>{}, 1.0, std::vector<SaveAt>{}));

    // --track takes one name each time, so the scenario after it stays the
    // scenario; a name given twice is recorded once.
    Command all = ParseCommandLine(
        {"run",   "--root",      "r",         "--for",   "12.5",       "--dt",
         "0.1",   "--accel",     "10",        "--seed",  "4294967295", "--save",
         "s.scn", "--state",     "s.json",    "--keys",  "k.txt",      "--log",
         "l.log", "--telemetry", "t.csv",     "--plot",  "p.svg",      "--track",
         "B",     "--track",     "A",         "--track", "B",          "--telemetry-interval",
         "0.5",   "--track",     "C",         "--warp",  "1000",       "--save-at",
         "12",    "b.scn",       "--save-at", "2",       "a.scn",      "x.scn"},
        "/default/root");
    EXPECT_EQ(Fields(all.run), std::tuple("x.scn", "r", 12.5, 0.1, std::optional<double>(10.0), 1000.0,
                                          std::optional<unsigned>(4294967295u), "s.scn", "s.json", "k.txt",
                                          "l.log", "t.csv", "p.svg", std::vector<std::string>{"B", "A", "C"},
                                          0.5, std::vector<SaveAt>{{2.0, "a.scn"}, {12.0, "b.scn"}}));
    // Few frames bound the samples too: one a frame at most.
    EXPECT_EQ(ParseCommandLine({"run", "x", "--telemetry", "t.csv", "--for", "1e7", "--accel", "1e4",
                                "--telemetry-interval", "0.1"},
                               "/root")
                  .run.telemetryInterval,
              0.1);
}

TEST(OptionsTest, BadCommandLinesAreUsageErrors) {
    const std::string usage = "; usage: hullsim run SCENARIO [options] (see hullsim --help)";
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{}, "no command given" + usage},
        {{"walk", "x"}, "unknown command 'walk'" + usage},
        {{"run", "x", "--dt", "0"}, "--dt needs a number above 0, not '0'"},
        {{"run", "x", "--dt", "fast"}, "--dt needs a number above 0, not 'fast'"},
        {{"run", "x", "--for", "-1"}, "--for needs a number of 0 or more, not '-1'"},
        {{"run", "x", "--for", "inf"}, "--for needs a number of 0 or more, not 'inf'"},
        {{"run", "x", "--accel", "nan"}, "--accel needs a number above 0, not 'nan'"},
        {{"run", "x", "--warp", "0"}, "--warp needs a number above 0, not '0'"},
        {{"run", "x", "--seed", "-3"}, "--seed needs a whole number from 0 to 4294967295, not '-3'"},
        {{"run", "x", "--seed", "4294967296"},
         "--seed needs a whole number from 0 to 4294967295, not '4294967296'"},
        {{"run", "x", "--for", "1e9"}, "--for 1e9 takes more than 100000000 frames; raise --dt or --accel"},
        {{"run", "x", "--plot", "p.svg", "--telemetry-interval", "0"},
         "--telemetry-interval needs a number above 0, not '0'"},
        {{"run", "x", "--plot", "p.svg", "--telemetry-interval", "-2"},
         "--telemetry-interval needs a number above 0, not '-2'"},
        {{"run", "x", "--plot", "p.svg", "--telemetry-interval", "1s"},
         "--telemetry-interval needs a number above 0, not '1s'"},
        {{"run", "x", "--track", "A"}, "--track needs --telemetry, --plot, --orbit-view or --summary"},
        {{"run", "x", "--telemetry-interval", "5"},
         "--telemetry-interval needs --telemetry, --plot or --orbit-view"},
        {{"run", "x", "--telemetry", "t.csv", "--track", ""}, "--track needs a vessel name"},
        {{"run", "x", "--for", "10", "--save-at", "11", "a.scn"},
         "--save-at 11 is after the run's end (--for 10)"},
        {{"run", "x", "--save-at", "-1", "a.scn"}, "--save-at needs a number of 0 or more, not '-1'"},
        {{"run", "x", "--telemetry", "t.csv", "--for", "2e7", "--dt", "1", "--telemetry-interval", "0.1"},
         "--telemetry-interval 0.1 takes more than 10000000 samples over --for 2e7; raise it"},
    };
    for (const auto &[args, message] : cases)
        EXPECT_EQ(OptionError(args), message);
    // These messages come from the command-line library; they must be one line.
    for (auto args : {std::vector<std::string>{"run"},
                      {"run", "x", "--bogus"},
                      {"run", "x", "y"},
                      {"run", "x", "--dt"}}) {
        std::string message = OptionError(args);
        EXPECT_NE(message, "(no error)") << args.back();
        EXPECT_EQ(message.find('\n'), std::string::npos) << message;
    }
}

// The frames that a run's limits count are those that the run steps, though
// a sum of steps falls a rounding error short of its end (0.3 / 0.1 is
// 2.9999999999999996) and a last frame is cut short.
TEST(FrameClockTest, CountsTheFramesThatARunSteps) {
    for (auto [seconds, step, frames] : {std::tuple{0.0, 0.02, 0},
                                         {0.01, 0.02, 1},
                                         {0.03, 0.02, 2},
                                         {1.0, 0.02, 50},
                                         {0.3, 0.1, 3},
                                         {7.77, 0.1, 78},
                                         {100.0, 0.1, 1000}}) {
        int stepped = 0;
        for (double simt = 0.0; hullhost::sim::NeedsFrame(simt, seconds, step); simt += step)
            ++stepped;
        EXPECT_EQ(stepped, frames) << seconds;
        EXPECT_EQ(hullhost::sim::FrameCount(seconds, step), frames) << seconds;
    }
}

} // namespace
