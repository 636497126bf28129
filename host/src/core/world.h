// The simulated world: time, bodies, vessels, and what the host shows and
// logs. One world is current at a time; the oapi functions act on it.
#pragma once

#include <bitset>
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
#include "world_events.h"

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
    // Changes the time acceleration during the run; a new value is an event.
    // A vessel's change also answers a raise that was offered to it.
    void SetTimeAcceleration(double value);
    // The acceleration a user holds (0: none). In every frame that runs below
    // it, a raise to ten times the acceleration (at most `warp`), as a press
    // of the key, is offered to the vessels in their clbkPreStep: they read
    // it as the acceleration, and it holds from the next frame on unless one
    // of them sets another. A vessel that caps the acceleration thus keeps
    // every later frame at its cap. The first offer comes after the first
    // second of real time, as a user's first press would: the vessels have
    // stepped by then and hold their caps, so that a run resumed from a save
    // goes on at the pace it was saved at.
    double warp = 0.0;
    // The acceleration the vessels read: the offered raise while one stands.
    double VisibleAccel() const { return offer_ > 0.0 ? offer_ : accel; }

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
    // The keys held down (bit 7 of a key's byte), and the presses and
    // releases still to be delivered, oldest first. Each frame the focus
    // vessel gets the buffered events through clbkConsumeBufferedKey and then
    // the held keys through clbkConsumeDirectKey, each time a copy of the key
    // state that it may change (RESETKEY).
    char keyState[256] = {};
    std::deque<KeyEvent> bufferedKeys;
    // The keys that the focus vessel left to the host in the current frame:
    // none when its clbkConsumeDirectKey answered non-zero, else those still
    // down in the state it was given, without keys whose press it consumed.
    // The manual control levels and the host's own controls read these.
    const char *HostKeys() const { return hostKeys_; }

    // --- Screen and log ------------------------------------------------------
    std::vector<std::unique_ptr<Annotation>> annotations;
    // Sets an annotation's text; a change of a vessel's message line is an event.
    void SetAnnotationText(Annotation &note, const char *text);
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

    // Told of what happens in the world; null for nobody.
    WorldEvents *events = nullptr;
    // The vessel whose constructor or callback is running; null outside them.
    Vessel *RunningVessel() const { return running_; }
    // The serial number of the running vessel callback, new for each; 0
    // outside them.
    unsigned long CallSerial() const { return call_; }

  private:
    void DeleteNow(Vessel &v);
    void FlushDeletions();
    void DeliverKeys();

    char vesselKeys_[256] = {};        // the copy of keyState that the focus vessel gets
    char hostKeys_[256] = {};          // see HostKeys()
    char hostKeysBefore_[256] = {};    // those of the frame before
    std::bitset<256> consumedPresses_; // keys whose press the vessel consumed, until released
    bool manualFiring_ = false;        // attitude thrusters fire from the keys in this frame
    double offer_ = 0.0;               // the raise offered to the vessels in this frame; 0: none
    Vessel *running_ = nullptr;
    unsigned long call_ = 0, calls_ = 0; // the running callback's serial, and the last given
    // Tells the listener of a crash, when `v` deletes itself in the callback
    // that made vessels.
    void NoteSelfDeletion(Vessel &v);

    std::string root_;
    std::vector<std::unique_ptr<Vessel>> vessels_;
    std::vector<Vessel *> pendingDelete_;
    int callbackDepth_ = 0;
    friend class CallbackScope;
};

// Marks a callback into a module in progress, so that deletions wait for it.
// With a vessel, that vessel's constructor or callback runs in the scope.
class CallbackScope {
  public:
    explicit CallbackScope(World &w, Vessel *running = nullptr)
        : world_(w), outer_(w.running_), outerCall_(w.call_) {
        ++world_.callbackDepth_;
        if (running) {
            world_.running_ = running;
            world_.call_ = ++world_.calls_;
        }
    }
    ~CallbackScope();
    CallbackScope(const CallbackScope &) = delete;
    CallbackScope &operator=(const CallbackScope &) = delete;

  private:
    World &world_;
    Vessel *outer_;
    unsigned long outerCall_;
};

} // namespace hullhost
