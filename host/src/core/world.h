// The simulated world: time, bodies, vessels, and what the host shows and
// logs. One world is current at a time; the oapi functions act on it.
#pragma once

#include <deque>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "annotation.h"
#include "body.h"
#include "line_file.h"
#include "module_registry.h"
#include "vessel.h"
#include "visual/mesh_cache.h"
#include "visual/texture_registry.h"

namespace hullhost {

// A bitmap file loaded through LoadImageA, until a surface takes it.
struct Bitmap {
    std::string path;
};

// The observer's camera.
struct Camera {
    bool internal = true; // in the cockpit of the focus vessel
    int cockpitMode = COCKPIT_GENERIC;
    double cockpitPolar = 0.0, cockpitAzimuth = 0.0;
};

// A file that a module opened with oapiOpenFile.
struct OpenFile {
    std::unique_ptr<LineFile> file;
    std::string path;
    FileAccessMode mode;
};

struct KeyEvent {
    DWORD key;
    bool down;
};

class World {
  public:
    // `root` is the host's working directory (Config/, Meshes/, Modules/, Scenarios/).
    explicit World(std::string root);
    ~World();
    World(const World &) = delete;
    World &operator=(const World &) = delete;

    // The world the oapi functions act on. Throws when there is none.
    static World &Current();
    static World *CurrentOrNull();

    const std::string &Root() const { return root_; }
    // A path in the host's form (backslashes), relative to the root, as a local path.
    std::string LocalPath(const std::string &hostPath) const;

    // --- Time ----------------------------------------------------------------
    double simt = 0.0;     // simulation time since the start [s]
    double simdt = 0.0;    // simulation step of the current frame [s]
    double sysdt = 0.0;    // real time of the current frame [s]
    double syst = 0.0;     // real time since the start [s]
    double mjd0 = 51544.5; // date at simt 0
    double accel = 1.0;    // time acceleration
    double Mjd() const { return mjd0 + simt / 86400.0; }

    // --- Bodies --------------------------------------------------------------
    std::vector<std::unique_ptr<Body>> bodies;
    Body *FindBody(const std::string &name) const;
    Body *Earth() const { return FindBody("Earth"); }

    // --- Vessels -------------------------------------------------------------
    const std::vector<std::unique_ptr<Vessel>> &Vessels() const { return vessels_; }
    Vessel *FindVessel(const std::string &name) const;
    Object *FindObject(const std::string &name) const;
    // The object behind a handle, or null when it names none that exists.
    Object *ObjectFromHandle(OBJHANDLE h) const {
        return IsObject(h) ? reinterpret_cast<Object *>(h) : nullptr;
    }
    Body *BodyFromHandle(OBJHANDLE h) const;
    Vessel *VesselFromHandle(OBJHANDLE h) const { return IsVessel(h) ? ToVessel(h) : nullptr; }
    // True while `h` names a body or a vessel that still exists.
    bool IsObject(OBJHANDLE h) const;
    bool IsVessel(OBJHANDLE h) const;

    // Constructs a vessel of a class through its module and runs
    // clbkSetClassCaps. Throws std::runtime_error for an unknown class.
    Vessel &ConstructVessel(const std::string &name, const std::string &className);
    // The scenario road: clbkLoadStateEx with the block's lines, then the state.
    void LoadVesselState(Vessel &v, const std::vector<std::string> &lines);
    // A vessel made at run time: constructed, given its state, post-created.
    Vessel &CreateVessel(const std::string &name, const std::string &className, const VESSELSTATUS2 &state);
    Vessel &CreateVessel(const std::string &name, const std::string &className, const VESSELSTATUS &state);
    void PostCreate(Vessel &v);
    // A vessel without a module (no iface), for tests and tools: the host's
    // physics alone moves it.
    Vessel &AddBareVessel(const std::string &name);
    // Takes effect once the running callback has returned.
    void RequestDelete(Vessel &v);

    Vessel *focus = nullptr;
    void SetFocus(Vessel *v);

    // --- One frame -----------------------------------------------------------
    // Advances the world by one frame of `realDt` seconds at the current time
    // acceleration: keys, clbkPreStep, flight model, clbkPostStep.
    void Frame(double realDt);

    // --- Input ---------------------------------------------------------------
    char keyState[256] = {};
    std::deque<KeyEvent> bufferedKeys;

    // --- Screen and log ------------------------------------------------------
    std::vector<std::unique_ptr<Annotation>> annotations;
    char debugString[256] = {};
    std::vector<std::unique_ptr<oapi::Pen>> pens;
    Camera camera;
    std::vector<std::string> log;
    std::ofstream logFile; // open for the run's log file, written line by line
    void WriteLog(const std::string &line);

    ModuleRegistry modules;
    std::vector<std::unique_ptr<Bitmap>> bitmaps;
    MeshCache meshCache;
    TextureRegistry textures;
    std::vector<OpenFile> openFiles;
    // When set, srand(seed) runs right after each vessel's constructor, so that
    // a run repeats exactly.
    std::optional<unsigned> seed;

  private:
    void DeleteNow(Vessel &v);
    void FlushDeletions();

    std::string root_;
    std::vector<std::unique_ptr<Vessel>> vessels_;
    std::vector<Vessel *> pendingDelete_;
    int callbackDepth_ = 0;
    friend class CallbackScope;
};

// Marks a callback into a module in progress, so that deletions wait for it.
class CallbackScope {
  public:
    explicit CallbackScope(World &w) : world_(w) { ++world_.callbackDepth_; }
    ~CallbackScope();

  private:
    World &world_;
};

} // namespace hullhost
