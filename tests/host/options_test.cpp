// hullsim's command line.
#include <gtest/gtest.h>

#include "sim/frame_clock.h"
#include "sim/options.h"
#include "sim/usage_error.h"

using hullhost::sim::Command;
using hullhost::sim::ParseCommandLine;
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

TEST(OptionsTest, DefaultsAndEveryOption) {
    Command plain = ParseCommandLine({"run", "demo"}, "/default/root");
    EXPECT_FALSE(plain.help);
    EXPECT_EQ(plain.run.scenario, "demo");
    EXPECT_EQ(plain.run.root, "/default/root");
    EXPECT_EQ(plain.run.seconds, 0.0);
    EXPECT_EQ(plain.run.dt, 0.02);
    EXPECT_EQ(plain.run.accel, 1.0);
    EXPECT_FALSE(plain.run.seed.has_value());
    EXPECT_TRUE(plain.run.savePath.empty());
    EXPECT_TRUE(plain.run.logPath.empty());

    Command all = ParseCommandLine({"run",     "--root", "r",      "--for",      "12.5",   "--dt",  "0.1",
                                    "--accel", "10",     "--seed", "4294967295", "--save", "s.scn", "--state",
                                    "s.json",  "--keys", "k.txt",  "--log",      "l.log",  "x.scn"},
                                   "/default/root");
    EXPECT_EQ(all.run.scenario, "x.scn");
    EXPECT_EQ(all.run.root, "r");
    EXPECT_EQ(all.run.seconds, 12.5);
    EXPECT_EQ(all.run.dt, 0.1);
    EXPECT_EQ(all.run.accel, 10.0);
    EXPECT_EQ(all.run.seed, 4294967295u);
    EXPECT_EQ(all.run.savePath, "s.scn");
    EXPECT_EQ(all.run.statePath, "s.json");
    EXPECT_EQ(all.run.keysPath, "k.txt");
    EXPECT_EQ(all.run.logPath, "l.log");
}

TEST(OptionsTest, HelpListsTheRunOptions) {
    for (auto args : {std::vector<std::string>{"--help"}, {"-h"}, {"run", "--help"}}) {
        Command cmd = ParseCommandLine(args, "/root");
        EXPECT_TRUE(cmd.help);
        for (const char *word :
             {"run", "SCENARIO", "--root", "--for", "--dt", "--accel", "--seed", "--save", "--state",
              "--keys", "--log", "--telemetry", "--track", "--telemetry-interval", "--plot"})
            EXPECT_NE(cmd.helpText.find(word), std::string::npos) << word << " in\n" << cmd.helpText;
    }
}

TEST(OptionsTest, BadCommandLinesAreUsageErrors) {
    EXPECT_EQ(OptionError({}),
              "no command given; usage: hullsim run SCENARIO [options] (see hullsim --help)");
    EXPECT_EQ(OptionError({"walk", "x"}),
              "unknown command 'walk'; usage: hullsim run SCENARIO [options] (see hullsim --help)");
    EXPECT_EQ(OptionError({"run", "x", "--dt", "0"}), "--dt needs a number above 0, not '0'");
    EXPECT_EQ(OptionError({"run", "x", "--dt", "fast"}), "--dt needs a number above 0, not 'fast'");
    EXPECT_EQ(OptionError({"run", "x", "--for", "-1"}), "--for needs a number of 0 or more, not '-1'");
    EXPECT_EQ(OptionError({"run", "x", "--for", "inf"}), "--for needs a number of 0 or more, not 'inf'");
    EXPECT_EQ(OptionError({"run", "x", "--accel", "nan"}), "--accel needs a number above 0, not 'nan'");
    EXPECT_EQ(OptionError({"run", "x", "--seed", "-3"}),
              "--seed needs a whole number from 0 to 4294967295, not '-3'");
    EXPECT_EQ(OptionError({"run", "x", "--seed", "4294967296"}),
              "--seed needs a whole number from 0 to 4294967295, not '4294967296'");
    EXPECT_EQ(OptionError({"run", "x", "--for", "1e9"}),
              "--for 1e9 takes more than 100000000 frames; raise --dt or --accel");
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

TEST(OptionsTest, TelemetryOptions) {
    Command plain = ParseCommandLine({"run", "demo"}, "/root");
    EXPECT_TRUE(plain.run.telemetryPath.empty());
    EXPECT_TRUE(plain.run.plotPath.empty());
    EXPECT_TRUE(plain.run.tracks.empty());
    EXPECT_EQ(plain.run.telemetryInterval, 1.0);

    // --track takes one name each time, so the scenario after it stays the
    // scenario; a name given twice is recorded once.
    Command all =
        ParseCommandLine({"run", "--telemetry", "t.csv", "--plot", "p.svg", "--track", "B", "--track", "A",
                          "--track", "B", "--telemetry-interval", "0.5", "--track", "C", "demo"},
                         "/root");
    EXPECT_EQ(all.run.scenario, "demo");
    EXPECT_EQ(all.run.telemetryPath, "t.csv");
    EXPECT_EQ(all.run.plotPath, "p.svg");
    EXPECT_EQ(all.run.tracks, (std::vector<std::string>{"B", "A", "C"}));
    EXPECT_EQ(all.run.telemetryInterval, 0.5);

    EXPECT_EQ(OptionError({"run", "x", "--plot", "p.svg", "--telemetry-interval", "0"}),
              "--telemetry-interval needs a number above 0, not '0'");
    EXPECT_EQ(OptionError({"run", "x", "--plot", "p.svg", "--telemetry-interval", "-2"}),
              "--telemetry-interval needs a number above 0, not '-2'");
    EXPECT_EQ(OptionError({"run", "x", "--plot", "p.svg", "--telemetry-interval", "1s"}),
              "--telemetry-interval needs a number above 0, not '1s'");
    EXPECT_EQ(OptionError({"run", "x", "--track", "A"}), "--track needs --telemetry or --plot");
    EXPECT_EQ(OptionError({"run", "x", "--telemetry-interval", "5"}),
              "--telemetry-interval needs --telemetry or --plot");
    EXPECT_EQ(OptionError({"run", "x", "--telemetry", "t.csv", "--track", ""}),
              "--track needs a vessel name");
    EXPECT_EQ(OptionError({"run", "x", "--telemetry", "t.csv", "--for", "2e7", "--dt", "1",
                           "--telemetry-interval", "0.1"}),
              "--telemetry-interval 0.1 takes more than 10000000 samples over --for 2e7; raise it");
    // Few frames bound the samples too: one a frame at most.
    EXPECT_EQ(ParseCommandLine({"run", "x", "--telemetry", "t.csv", "--for", "1e7", "--accel", "1e4",
                                "--telemetry-interval", "0.1"},
                               "/root")
                  .run.telemetryInterval,
              0.1);
}

TEST(FrameClockTest, RoundingDoesNotAddAFrame) {
    using hullhost::sim::FrameCount;
    using hullhost::sim::NeedsFrame;
    EXPECT_EQ(FrameCount(0, 0.02), 0);
    EXPECT_EQ(FrameCount(1, 0.02), 50);
    EXPECT_EQ(FrameCount(0.3, 0.1), 3); // 0.3 / 0.1 is 2.9999999999999996
    EXPECT_EQ(FrameCount(0.01, 0.02), 1);
    EXPECT_EQ(FrameCount(0.03, 0.02), 2);
    // Stepping until NeedsFrame says no gives the same count.
    for (double seconds : {0.3, 1.0, 7.77, 100.0}) {
        double simt = 0.0;
        int frames = 0;
        while (NeedsFrame(simt, seconds, 0.1)) {
            simt += 0.1;
            ++frames;
        }
        EXPECT_EQ(frames, FrameCount(seconds, 0.1)) << seconds;
    }
}

} // namespace
