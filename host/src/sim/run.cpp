#include "run.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>

#include "event_log.h"
#include "frame_clock.h"
#include "key_player.h"
#include "mission_summary.h"
#include "progress.h"
#include "run_telemetry.h"
#include "scenario/atomic_write.h"
#include "scenario/scenario_world.h"
#include "screen/hud_render.h"
#include "sound_plugin.h"
#include "state_json.h"

namespace hullhost::sim {

namespace fs = std::filesystem;

namespace {

bool IsFile(const fs::path &p) {
    std::error_code ec;
    return fs::is_regular_file(p, ec);
}

// An output path made absolute before the working directory changes; its
// folder must exist, so that a long run doesn't fail only at its end.
std::string OutputPath(const std::string &path, const char *option) {
    if (path.empty())
        return {};
    fs::path abs = fs::absolute(path);
    std::error_code ec;
    if (!fs::is_directory(abs.parent_path(), ec))
        throw std::runtime_error(std::string(option) + " " + path + ": folder " + abs.parent_path().string() +
                                 " does not exist");
    if (fs::is_directory(abs, ec))
        throw std::runtime_error(std::string(option) + " " + path + " is a folder");
    return abs.string();
}

// Makes `dir` the working directory until the end of the scope.
class WorkingDirectory {
  public:
    explicit WorkingDirectory(const fs::path &dir) : old_(fs::current_path()) { fs::current_path(dir); }
    ~WorkingDirectory() {
        std::error_code ec;
        fs::current_path(old_, ec);
    }
    WorkingDirectory(const WorkingDirectory &) = delete;
    WorkingDirectory &operator=(const WorkingDirectory &) = delete;

  private:
    fs::path old_;
};

// The outputs of a run, as absolute paths; empty for none.
struct Outputs {
    std::string save, state, hud, log, telemetry, plot, orbitView, events;
    std::vector<SaveAt> saveAts; // in order of time
};

// Writes the saves of --save-at that are due at the world's time: each one
// whole, so that a run that fails later leaves the earlier ones behind.
class SavesDue {
  public:
    SavesDue(const ScenarioFile &scenario, const RunOptions &options, const Outputs &out, EventLog *events)
        : scenario_(scenario), given_(options.saveAts), saves_(out.saveAts), events_(events) {}

    void Write(World &world) {
        for (; next_ < saves_.size() && saves_[next_].time <= world.simt; ++next_) {
            WriteFileAtomically(saves_[next_].path, CaptureScenario(world, scenario_).Text());
            if (events_)
                events_->OnSaved(given_[next_].path);
        }
    }

  private:
    const ScenarioFile &scenario_;
    const std::vector<SaveAt> &given_, &saves_;
    EventLog *events_;
    std::size_t next_ = 0;
};

// Runs the frames of a world for `seconds` of simulation time, sampling the
// telemetry and checking the engines for the event log (if any) after each.
void RunFrames(World &world, const RunOptions &options, std::vector<KeyAction> keys, RunTelemetry *telemetry,
               EventLog *events, MissionSummary *summary, SavesDue &saves) {
    KeyPlayer player(std::move(keys));
    saves.Write(world);
    // A vessel spends its first step on nothing: the run begins with a frame
    // of no length, so that a run resumed from a save loses no time of its
    // countdowns.
    if (NeedsFrame(world.simt, options.seconds, options.dt * world.accel))
        world.Frame(0.0);
    Progress progress(stderr, options.seconds);
    double frames = 0;
    while (NeedsFrame(world.simt, options.seconds, options.dt * world.accel)) {
        const double full = options.dt * world.accel;
        if (!(full > 0) || !std::isfinite(full))
            throw std::runtime_error("the time acceleration became " + std::to_string(world.accel));
        // The last frame is cut short so that the run ends at its end exactly.
        const double realDt = std::min(options.dt, (options.seconds - world.simt) / world.accel);
        const double step = realDt * world.accel;
        if (++frames > kMaxFrames)
            throw std::runtime_error("the run took more than " +
                                     std::to_string(static_cast<long>(kMaxFrames)) +
                                     " frames; the time acceleration fell to " + std::to_string(world.accel));
        player.BeforeFrame(world.simt + step, step, world.keyState, world.bufferedKeys);
        world.Frame(realDt);
        double next = options.dt * world.accel;
        player.AfterFrame(world.simt + next, next, world.keyState, world.bufferedKeys);
        progress.Update(world.simt);
        if (telemetry)
            telemetry->Sample(world);
        if (events)
            events->CheckEngines();
        if (summary)
            summary->Observe(world);
        saves.Write(world);
    }
}

// Loads the scenario into the world, runs it and writes the outputs.
void RunWorld(World &world, const ScenarioFile &scenario, const RunOptions &options, const Outputs &out,
              std::vector<KeyAction> keys, EventLog *events) {
    LoadScenario(world, scenario);
    std::optional<RunTelemetry> telemetry;
    if (!out.telemetry.empty() || !out.plot.empty() || !out.orbitView.empty())
        telemetry.emplace(out.telemetry, out.plot, out.orbitView, options.tracks, options.telemetryInterval,
                          world);
    std::optional<MissionSummary> summary;
    if (options.summary)
        summary.emplace(world, options.tracks);
    if (events)
        events->CheckEngines();
    SavesDue saves(scenario, options, out, events);
    RunFrames(world, options, std::move(keys), telemetry ? &*telemetry : nullptr, events,
              summary ? &*summary : nullptr, saves);

    std::optional<std::string> stateText, scenarioText;
    if (!out.state.empty())
        stateText =
            WorldState(world).dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
    if (!out.save.empty())
        scenarioText = CaptureScenario(world, scenario).Text();
    if (!out.hud.empty())
        WriteFileAtomically(out.hud, HudSvg(DrawFocusHud(world), world));
    if (stateText)
        WriteFileAtomically(out.state, *stateText);
    if (scenarioText)
        WriteFileAtomically(out.save, *scenarioText);
    if (telemetry)
        telemetry->Write(world);
    if (summary)
        std::fputs(summary->Text(world, events ? events->Text() : std::string()).c_str(), stdout);
}

} // namespace

std::string FindScenario(const std::string &name, const std::string &root) {
    if (name.empty())
        throw std::runtime_error("no scenario named");
    fs::path scenarios = fs::path(root) / "Scenarios";
    std::vector<std::string> looked;
    for (const fs::path &candidate : {fs::path(name), scenarios / name, scenarios / (name + ".scn")}) {
        if (IsFile(candidate))
            return fs::absolute(candidate).string();
        if (std::find(looked.begin(), looked.end(), candidate.string()) == looked.end())
            looked.push_back(candidate.string());
    }
    std::string places;
    for (const auto &p : looked)
        places += (places.empty() ? "" : ", ") + p;
    throw std::runtime_error("scenario '" + name + "' not found (looked for " + places + ")");
}

void RunScenario(const RunOptions &options) {
    std::error_code ec;
    if (options.root.empty() || !fs::is_directory(options.root, ec))
        throw std::runtime_error("root folder '" + options.root + "' does not exist");
    const fs::path root = fs::absolute(options.root);
    const std::string scenarioPath = FindScenario(options.scenario, root.string());
    Outputs out{OutputPath(options.savePath, "--save"),
                OutputPath(options.statePath, "--state"),
                OutputPath(options.hudPath, "--hud"),
                OutputPath(options.logPath, "--log"),
                OutputPath(options.telemetryPath, "--telemetry"),
                OutputPath(options.plotPath, "--plot"),
                OutputPath(options.orbitViewPath, "--orbit-view"),
                OutputPath(options.eventsPath, "--events"),
                {}};
    for (const SaveAt &s : options.saveAts)
        out.saveAts.push_back({s.time, OutputPath(s.path, "--save-at")});
    const std::string soundtrack = OutputPath(options.soundtrackPath, "--soundtrack");
    std::vector<KeyAction> keys;
    if (!options.keysPath.empty())
        keys = ReadKeyScript(fs::absolute(options.keysPath).string());
    const ScenarioFile scenario = ScenarioFile::Read(scenarioPath);

    WorkingDirectory cwd(root);
    std::optional<SoundPlugin> sound;
    if (options.sound || !soundtrack.empty())
        sound.emplace(root.string());
    World world(root.string());
    world.seed = options.seed;
    // A saved run goes on at the pace it was saved at.
    world.accel = options.accel.value_or(scenario.timeAccel.value_or(1.0));
    world.warp = options.warp;
    if (!out.log.empty()) {
        // One run, one log: the file starts empty.
        world.logFile.open(out.log, std::ios::trunc);
        if (!world.logFile)
            throw std::runtime_error("can't write '" + out.log + "'");
    }
    std::optional<EventLog> events;
    // The summary's timeline comes from the events, kept in memory when no
    // file is asked for.
    if (!out.events.empty() || options.summary)
        events.emplace(world, out.events);
    try {
        RunWorld(world, scenario, options, out, std::move(keys), events ? &*events : nullptr);
    } catch (...) {
        // The events up to the failure tell what led to it; the failure
        // itself is what the caller reports, not a failure to write them.
        if (events) {
            try {
                events->Write();
            } catch (const std::exception &) {
            }
        }
        throw;
    }
    if (events)
        events->Write();
    if (sound && !soundtrack.empty())
        sound->WriteSoundtrack(soundtrack, world.simt);
}

} // namespace hullhost::sim
