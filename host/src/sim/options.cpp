#include "options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/printable_text.h"
#include "frame_clock.h"
#include "usage_error.h"

namespace hullhost::sim {

namespace {

// The numbers of the command line as written, checked after parsing so that
// every bad value gets the same kind of message.
struct NumberTexts {
    std::string seconds, dt, accel, warp, seed, interval;
    std::vector<std::string> saveAts; // SECONDS FILE pairs
};

double ParseNumber(const std::string &option, const std::string &text, bool allowZero) {
    double d = 0.0;
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), d);
    bool ok = !text.empty() && ec == std::errc() && end == text.data() + text.size() && std::isfinite(d);
    if (!ok || d < 0 || (!allowZero && d == 0))
        throw UsageError(option + " needs a number " + (allowZero ? "of 0 or more" : "above 0") + ", not " +
                         Quoted(text));
    return d;
}

unsigned ParseSeed(const std::string &text) {
    unsigned n = 0;
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (text.empty() || ec != std::errc() || end != text.data() + text.size())
        throw UsageError("--seed needs a whole number from 0 to " +
                         std::to_string(std::numeric_limits<unsigned>::max()) + ", not " + Quoted(text));
    return n;
}

void AddRunOptions(CLI::App &run, RunOptions &o, NumberTexts &n) {
    run.add_option("SCENARIO", o.scenario,
                   "Scenario file: a path, else a name under ROOT/Scenarios/ (\".scn\" may be left out)")
        ->required()
        ->type_name("");
    run.add_option("--root", o.root, "The host's working directory (Config/, Meshes/, Modules/, Scenarios/)")
        ->type_name("DIR")
        ->default_str(o.root);
    run.add_option("--for", n.seconds, "Simulation time to run [s]; 0 loads and post-creates only")
        ->type_name("SECONDS")
        ->default_str("0");
    run.add_option("--dt", n.dt, "Frame length [real s]")->type_name("SECONDS")->default_str("0.02");
    run.add_option("--accel", n.accel,
                   "Time acceleration at the start; default: the scenario's TimeAccel, else 1")
        ->type_name("A");
    run.add_option("--warp", n.warp,
                   "Hold the time acceleration at A as a user would, raising it again after each drop;\n"
                   "a cap that a vessel keeps still holds")
        ->type_name("A");
    run.add_option("--seed", n.seed, "srand(N) right after each vessel's constructor, for repeatable runs")
        ->type_name("N");
    run.add_option("--save", o.savePath, "Write the scenario at the end to FILE")->type_name("FILE");
    run.add_option("--save-at", n.saveAts,
                   "Also write the scenario as it stands at the end of the first frame that reaches\n"
                   "SECONDS to FILE, when that frame ends; repeatable")
        ->type_name("SECONDS FILE")
        ->expected(2)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
        ->allow_extra_args(false);
    run.add_option("--state", o.statePath, "Write the host-side state at the end to FILE as JSON")
        ->type_name("FILE");
    run.add_option("--hud", o.hudPath, "Render the focus vessel's head-up display at the end to FILE as SVG")
        ->type_name("FILE");
    run.add_option("--keys", o.keysPath, "Key script for the focus vessel: lines \"TIME KEY [SECONDS]\"")
        ->type_name("FILE");
    run.add_option("--log", o.logPath, "Write the host's log to FILE (default: no log file)")
        ->type_name("FILE");
    run.add_option("--telemetry", o.telemetryPath, "Write telemetry of the focus vessel to FILE as CSV")
        ->type_name("FILE");
    run.add_option("--track", o.tracks, "Record vessel NAME instead of the focus; repeatable")
        ->type_name("NAME")
        ->allow_extra_args(false);
    run.add_option("--telemetry-interval", n.interval, "Simulation time between telemetry samples")
        ->type_name("SECONDS")
        ->default_str("1");
    run.add_option("--plot", o.plotPath, "Draw altitude, apsides and mass over time to FILE as SVG")
        ->type_name("FILE");
    run.add_option(
           "--orbit-view", o.orbitViewPath,
           "Draw the paths of the tracked vessels and the Moon's orbit, seen from above the Moon's orbit "
           "plane, to FILE as SVG")
        ->type_name("FILE");
    run.add_flag("--summary", o.summary,
                 "Print a mission summary of the tracked vessels at the end: timeline, burns, final orbit, "
                 "closest approach to the Moon");
    run.add_option("--events", o.eventsPath,
                   "Write the run's events to FILE as JSON Lines, also when the run fails midway")
        ->type_name("FILE");
    run.add_flag("--sound", o.sound,
                 "Load the sound library Modules/Plugin/OrbiterSound.dll of the root before the vessels; "
                 "its loads, plays and stops are \"sound\" events");
    run.add_option("--soundtrack", o.soundtrackPath,
                   "With --sound: mix what was played into FILE (WAV, 8 kHz, the first hour at most)")
        ->type_name("FILE");
}

void CheckNumbers(const NumberTexts &n, RunOptions &o) {
    if (!n.seconds.empty())
        o.seconds = ParseNumber("--for", n.seconds, true);
    if (!n.dt.empty())
        o.dt = ParseNumber("--dt", n.dt, false);
    if (!n.accel.empty())
        o.accel = ParseNumber("--accel", n.accel, false);
    if (!n.warp.empty())
        o.warp = ParseNumber("--warp", n.warp, false);
    if (!n.seed.empty())
        o.seed = ParseSeed(n.seed);
    const double accel = o.accel.value_or(1.0);
    if (!std::isfinite(o.dt * accel))
        throw UsageError("--dt times --accel is too large");
    if (!std::isfinite(o.dt * o.warp))
        throw UsageError("--dt times --warp is too large");
    for (std::size_t i = 0; i + 1 < n.saveAts.size(); i += 2) {
        const double time = ParseNumber("--save-at", n.saveAts[i], true);
        if (time > o.seconds)
            throw UsageError("--save-at " + n.saveAts[i] + " is after the run's end (--for " +
                             (n.seconds.empty() ? "0" : n.seconds) + ")");
        if (n.saveAts[i + 1].empty())
            throw UsageError("--save-at " + n.saveAts[i] + " needs a file");
        o.saveAts.push_back({time, n.saveAts[i + 1]});
    }
    std::stable_sort(o.saveAts.begin(), o.saveAts.end(),
                     [](const SaveAt &a, const SaveAt &b) { return a.time < b.time; });
    if (FrameCount(o.seconds, o.dt * accel) > kMaxFrames)
        throw UsageError("--for " + n.seconds + " takes more than " +
                         std::to_string(static_cast<long>(kMaxFrames)) + " frames; raise --dt or --accel");
}

// The telemetry options: --track and --telemetry-interval only mean something
// with an output, and the samples must fit in memory.
void CheckTelemetry(const NumberTexts &n, RunOptions &o) {
    if (!n.interval.empty())
        o.telemetryInterval = ParseNumber("--telemetry-interval", n.interval, false);
    const bool output = !o.telemetryPath.empty() || !o.plotPath.empty() || !o.orbitViewPath.empty();
    if (!output && !o.summary && !o.tracks.empty())
        throw UsageError("--track needs --telemetry, --plot, --orbit-view or --summary");
    if (!output && !n.interval.empty())
        throw UsageError("--telemetry-interval needs --telemetry, --plot or --orbit-view");
    std::vector<std::string> tracks;
    for (const std::string &name : o.tracks) {
        if (name.empty())
            throw UsageError("--track needs a vessel name");
        if (std::find(tracks.begin(), tracks.end(), name) == tracks.end())
            tracks.push_back(name);
    }
    o.tracks = std::move(tracks);
    const double samples =
        std::min(FrameCount(o.seconds, o.dt * o.accel.value_or(1.0)), o.seconds / o.telemetryInterval);
    if (output && samples > kMaxSamples)
        throw UsageError("--telemetry-interval " + (n.interval.empty() ? "1" : n.interval) +
                         " takes more than " + std::to_string(static_cast<long>(kMaxSamples)) +
                         " samples over --for " + n.seconds + "; raise it");
}

// CLI11's message as one line.
std::string OneLine(std::string message) {
    for (char &c : message)
        if (c == '\n')
            c = ' ';
    while (!message.empty() && message.back() == ' ')
        message.pop_back();
    return message;
}

} // namespace

Command ParseCommandLine(const std::vector<std::string> &args, const std::string &defaultRoot) {
    Command cmd;
    cmd.run.root = defaultRoot;
    NumberTexts numbers;

    CLI::App app("hullsim: the headless host that loads vessel modules and runs scenarios", "hullsim");
    app.require_subcommand(1);
    CLI::App *run = app.add_subcommand("run", "Load a scenario, run it, and write what became of it");
    AddRunOptions(*run, cmd.run, numbers);
    run->footer("Key script: one line each \"TIME KEY [SECONDS]\", such as \"2.5 Ctrl+M\" (one press) or\n"
                "\"10 KP_PLUS 3\" (held 3 s); ';' starts a comment.\n"
                "Keys go to the focus vessel; the host acts on those it leaves: KP_PLUS and KP_MINUS\n"
                "raise and lower the main thrust by 0.2 per second of real time while held (KP_MINUS\n"
                "at 0 raises the retro thrust), Ctrl+KP_PLUS sets full main thrust, KP_MULTIPLY cuts\n"
                "main and retro; KP_1..KP_9 fire the attitude thrusters while held, KP_DIVIDE switches\n"
                "them between rotation and translation, Ctrl+KP_DIVIDE off and on. Navigation modes, on\n"
                "a press and off again on the next: KP_5 KILLROT, L HLEVEL, LBRACKET PROGRADE,\n"
                "RBRACKET RETROGRADE, SEMICOLON NORMAL, APOSTROPHE ANTINORMAL, A HOLDALT; the host\n"
                "flies them (but HOLDALT) with the attitude thrusters unless the vessel takes them over.\n"
                "Events: one JSON object per line with \"t\" (simulation time) and \"kind\": message\n"
                "(vessel, text), created (vessel, class), deleted (vessel), focus (vessel), key\n"
                "(vessel, key, down), timeaccel (value), engine (vessel, level of the main group),\n"
                "navmode (vessel, mode number, active), crash (vessel, blast, wrecks), report (vessel,\n"
                "reportKind, text, lat, lng, alt: what the fleet controller heard), save (file).\n"
                "Telemetry: a row per vessel and sample: time, vessel, altitude, speed, apogee and\n"
                "perigee altitude, inclination, mass, main thrust level; written at the end of the run.\n"
                "Exit codes: 0 done, 1 run error (missing file, unknown class, module failure),\n"
                "2 usage error (bad option, bad key script).");

    if (!args.empty() && args[0] != "run" && !args[0].starts_with("-"))
        throw UsageError("unknown command " + Quoted(args[0]) +
                         "; usage: hullsim run SCENARIO [options] (see hullsim --help)");

    // CLI11 takes the arguments last first.
    std::vector<std::string> reversed(args.rbegin(), args.rend());
    try {
        app.parse(reversed);
    } catch (const CLI::CallForHelp &) {
        // One text for "hullsim --help" and "hullsim run --help": the run
        // command is all there is.
        cmd.help = true;
        cmd.helpText = app.get_description() + "\n\n" + run->help("hullsim");
        return cmd;
    } catch (const CLI::RequiredError &e) {
        if (args.empty() || !run->parsed())
            throw UsageError("no command given; usage: hullsim run SCENARIO [options] (see hullsim --help)");
        throw UsageError(OneLine(e.what()));
    } catch (const CLI::ParseError &e) {
        throw UsageError(OneLine(e.what()));
    }
    CheckNumbers(numbers, cmd.run);
    CheckTelemetry(numbers, cmd.run);
    return cmd;
}

} // namespace hullhost::sim
