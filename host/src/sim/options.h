// The command line of hullsim.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace hullhost::sim {

// A scenario written during the run: at the end of the first frame that
// reaches `time`.
struct SaveAt {
    double time = 0.0;
    std::string path; // as given
    bool operator==(const SaveAt &) const = default;
};

struct RunOptions {
    std::string scenario;
    std::string root;            // the host's working directory
    double seconds = 0.0;        // simulation time to run; 0: load and post-create only
    double dt = 0.02;            // frame length [real s]
    std::optional<double> accel; // time acceleration at the start; none: the scenario's, else 1
    double warp = 0.0;           // acceleration held as by a user, raised again after each drop; 0: none
    std::optional<unsigned> seed;
    std::string savePath;            // empty: none
    std::vector<SaveAt> saveAts;     // in order of time
    std::string statePath;           // empty: none
    std::string hudPath;             // SVG of the focus vessel's head-up display; empty: none
    std::string keysPath;            // empty: none
    std::string logPath;             // empty: no log file
    std::string telemetryPath;       // CSV of the tracked vessels; empty: none
    std::string plotPath;            // SVG chart of the tracked vessels; empty: none
    std::string orbitViewPath;       // SVG orbit view of the tracked vessels; empty: none
    bool summary = false;            // print the mission summary of the tracked vessels
    std::string eventsPath;          // JSON Lines log of the run's events; empty: none
    bool sound = false;              // load the root's sound library before the vessels
    std::string soundtrackPath;      // WAV of what was played; implies sound; empty: none
    std::vector<std::string> tracks; // vessels to record; none: the focus vessel
    double telemetryInterval = 1.0;  // simulation time between samples [s]
};

// The most frames that one run may take, so that no option makes it endless.
constexpr double kMaxFrames = 1e8;
// The most telemetry samples of one vessel, so that the CSV and the chart,
// kept in memory until the end, stay within bounds.
constexpr double kMaxSamples = 1e7;

struct Command {
    bool help = false; // print helpText and end
    std::string helpText;
    RunOptions run;
};

// Reads the command line. `defaultRoot` is the root when --root is absent.
// Throws UsageError with a one-line message for a bad command line.
Command ParseCommandLine(const std::vector<std::string> &args, const std::string &defaultRoot);

} // namespace hullhost::sim
