// HULLKIT: a vessel that is entirely described by its configuration files
// and scenario block. Every subsystem is members and virtual operations of
// this one object; what runs in a step is the list of active updaters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Orbitersdk.h"
#include "config/config_table.h"
#include "config/pitch_profile.h"
#include "control/attitude_controls.h"
#include "environment/airfoil_params.h"
#include "environment/failure_entry.h"
#include "frame/sequence_types.h"
#include "frame/vessel_call.h"
#include "resources/mesh_changes.h"
#include "resources/resource_tables.h"

struct ANIM_CTRL_REC;

class HULLKIT : public VESSEL3 {
  public:
    HULLKIT(OBJHANDLE hVessel, int flightModel);
    ~HULLKIT();
    HULLKIT(const HULLKIT &) = delete;
    HULLKIT &operator=(const HULLKIT &) = delete;

    // --- The host's callbacks ------------------------------------------------
    void clbkSetClassCaps(FILEHANDLE cfg) override;
    void clbkSaveState(FILEHANDLE scn) override;
    void clbkLoadStateEx(FILEHANDLE scn, void *status) override;
    void clbkPostCreation() override;
    void clbkPreStep(double simt, double simdt, double mjd) override;
    void clbkVisualCreated(VISHANDLE vis, int refcount) override;
    void clbkVisualDestroyed(VISHANDLE vis, int refcount) override;
    void clbkNavMode(int mode, bool active) override;
    int clbkConsumeDirectKey(char *kstate) override;
    int clbkConsumeBufferedKey(DWORD key, bool down, char *kstate) override;
    bool clbkLoadGenericCockpit() override;
    bool clbkLoadVC(int id) override;
    bool clbkDrawHUD(int mode, const HUDPAINTSPEC *hps, oapi::Sketchpad *skp) override;

    // --- The framework's operations, in their fixed order --------------------
    virtual void ParseScenarioLine(char *line, void *status);
    virtual void LoadConfiguration();
    virtual void clbkNoSubtype();
    virtual void clbkConfigLoaded();
    virtual void ApplyConfiguration();
    virtual void ParseScenarioLineLate(char *line);
    virtual void RegisterSoundFiles();
    virtual void ResetVisuals();
    virtual void ClearRuntimeTables();
    virtual void ReselectCamera();
    virtual void InitDefaults();
    virtual void ReplayScenarioLines();
    virtual void InitPools();
    virtual void OnCamerasBuilt();
    virtual void KeepAwareWhileAttached();
    virtual void OnAttached();
    virtual void OnDetached();
    virtual bool AnimKeyAllowed(DWORD key, char *kstate, ANIM_CTRL_REC *controller);
    virtual void OnControllerMoved(ANIM_CTRL_REC *controller);
    virtual void OnControllerEndStop(ANIM_CTRL_REC *controller);
    virtual void OnControllerTargetReached(ANIM_CTRL_REC *controller);
    virtual void OnAtmosphereEnter();
    virtual void OnAtmosphereExit();
    virtual void OnPlanetEnter();
    virtual void OnPlanetExit();
    virtual void OnPlanetChanged();
    virtual void UpdateReentry();
    virtual void OnSoftLanding();
    virtual void OnOverpressure();
    virtual void OnHardLanding();
    virtual void OnImpact();
    virtual void OnCrash(bool force);
    virtual void DoWreck();
    virtual void DoBlast(bool force);
    virtual void OnChildCrashed(OBJHANDLE child);
    virtual void OnChildLost(OBJHANDLE child);
    virtual double OnPeerMessageDouble(OBJHANDLE sender, int code, double value);
    virtual intptr_t OnPeerMessage(OBJHANDLE sender, int code, intptr_t argument);
    virtual void OnFocusLost(OBJHANDLE other);
    virtual void OnFocusGained(OBJHANDLE other);
    virtual void OnClockResumed(OBJHANDLE other);
    virtual void OnClockHeld(OBJHANDLE other);
    virtual int KeyWithControl(DWORD key);
    virtual int KeyWithShift(DWORD key);
    virtual int KeyWithAlt(DWORD key);
    virtual int KeyPlain(DWORD key);
    virtual void ShowMessage(const char *text);
    virtual void ReportName();
    virtual void WatchMainEngine();
    virtual void OnFailure();
    virtual void OnSequenceStep();
    virtual void OnPark();
    virtual void PrepareControlToggle();
    virtual void OnManualControl();
    virtual void OnAutopilotEngaged();
    virtual void OnAutopilotThrottle();
    virtual void ThrottleTo(double level);
    virtual void FullThrottle();
    virtual void StartMissionClock();
    virtual double PitchAngle();
    virtual double YawAngle();
    virtual double RollAngle();
    virtual double AttitudeStep();
    virtual void AttitudeControlStep();
    virtual void JettisonNext();
    virtual void OnTimeAccelChanged();
    virtual void OnNoAction();
    virtual void SetCgOffset(double x, double z);

    // --- Control modes and keys -------------------------------------------------
    // The M key: to the autopilot or to manual control, unless a block text
    // from PrepareControlToggle bars the way.
    void ToggleControlMode();
    void EngageAutopilot();
    void EngageManual();
    // Every group of the thruster group table to 0, but the one named `except`.
    void StopThrusterGroups(const std::string &except = {});
    // For derived vehicles: each shows its text and returns false.
    bool ManualRefused();
    bool ManualRefusedAttached();
    // Gives the focus to the next (or previous) framework vessel that takes it.
    void StepFocus(bool forward);
    // Alt+1: the vessel's size to 1 m and back.
    void ToggleSize();
    // Shift+N: whether the vessel flies the host's navigation modes itself.
    void ToggleNavOverride();
    // Tells the controller that this vessel is in trouble.
    void RaiseAlert();

    // --- Attitude loop and navigation modes ------------------------------------
    // One step of the three-axis loop is ReadRates, ComputeError,
    // RunControlLaw (and ReadManualInput by hand), ApplyThrusters, ApplyGimbal.
    void ReadRates();
    void ComputeError();
    // Pitch and yaw error toward the mode's target vector, roll error from the bank.
    void ModeError(int mode);
    void BodyError();
    void AntiBodyError();
    // A global-frame vector in the body frame, by the vessel's Euler angles.
    VECTOR3 BodyVector(const VECTOR3 &v) const;
    // Pitch and yaw error toward a body-frame vector; roll 0.
    static VECTOR3 ErrorFromVector(const VECTOR3 &v);
    // Where the body's up axis points around the horizon: -1 to 1 over the circle.
    double HorizonRoll() const;
    void RunControlLaw();
    void ReadManualInput();
    void ApplyThrusters();
    void ApplyGimbal();
    // The host's modes 1 to 7 off, and every attitude group at 0.
    void ClearHostNavmodes();
    void ZeroAttitudeGroups();

    // --- Time acceleration -------------------------------------------------------
    // Keeps CurrentTimeAccel up to date and the host's acceleration under MaxTimeAccel.
    void WatchTimeAccel();
    void SetTimeAccel(double value);
    // Back to 1x, unless the controller lets the acceleration stay.
    void DropTimeAccel();

    // --- Children and the carrier ---------------------------------------------------
    // The vessel hanging on the vessel's child-side attachment `index`, or null.
    OBJHANDLE CarriedVessel(DWORD index) const;
    // The empty mass: the vessel's own dry mass and all that it carries.
    void UpdateCompositeMass();
    // Creates a child record's point in the host and hangs on it the vessel
    // the record (or, for a free record, the vessel's scenario line) names.
    void AttachChildRec(CHILD_REC &rec);
    // Releases the vessel on the point at `velocity` m/s along the point.
    void DetachChildRec(CHILD_REC &rec, double velocity);
    // The child's landed place: this vessel's.
    // A landed status at the vessel's place on its surface body, heading 0.
    VESSELSTATUS2 LandedStatusHere();
    void MatchLandedState(CHILD_REC &rec);
    // Makes a framework vessel at run time, `<own name>-<suffix>` of the class
    // `<class folder>\<className>`, and hangs it on `carrier`'s record
    // `recordName` at once. `source` hands it its animation states and textures.
    HULLKIT *CreateChildVessel(const char *className, const char *variant, const char *suffix,
                               HULLKIT *source, HULLKIT *carrier, const std::string &recordName);
    // The steps the host's scenario road would have run, for a spawned vessel.
    void FinishDeferredCreation();
    // Releases the vessel on `child` under the drawn velocity and forces of
    // `sep` (none when null), with the after-effects the flags ask for.
    void SeparateChild(CHILD_REC &child, SEPARATION_REC *sep, bool enableFocus, bool switchFocus,
                       bool igniteChild, bool pyroSound);
    // Three independent draws within from + span, in the order z, y, x.
    static VECTOR3 RandomVector(const VECTOR3 &from, const VECTOR3 &span);
    // The stage's child record reader: a scenario line "<key> <vessel> [geometry]".
    void ReadChildLine(CHILD_REC &rec, const std::string &line);
    // The child lines of the records that hold a vessel, and PARENT.
    void WriteChildLines(FILEHANDLE scn);

    // --- Flight environment ------------------------------------------------------
    // Switches the watches that run while the vessel is free: the main engine
    // watch and the planet watch, which starts the ground and air watches.
    void UpdateAwareness();
    // Altitude above the ground, also stored in Altitude.
    double GetGroundAltitude();
    // The failure draw of a load: whether, which, and after how much burn.
    void DrawFailure();
    void StartEngineFire();
    // The smoke and flame streams at FirePos, on FireLevel.
    void AddFireStreams();
    void FailEngine();
    void FailControlChannel();
    // The two airfoils of the record aDefault, or of the cross sections.
    void BuildAirfoils();
    // More than a tenth of the mass is propellant.
    bool HasExplosiveLoad();
    // Children thrown off, neighbours told, wrecks made, the vessel deleted.
    void CrashRoutine(bool blast, bool obliterated);

    // --- Cameras, focus and the message line ------------------------------------
    // Puts the camera record named CurrentCamera into the host.
    void ApplyCamera();
    // Steps to the next enabled camera record, wrapping behind the last.
    void NextCamera();
    // Toggles the focus of every secondary framework vessel in the simulation.
    void ToggleSecondaryFocus();
    void ToggleAutoSwitchFocus();
    // Writes "hh:mm:ss" (with a leading "-" for negative times) into `buffer`.
    static void FormatMissionTime(double seconds, char *buffer, std::size_t size);

    // --- Peer messages ---------------------------------------------------------
    intptr_t SendPeerMessage(OBJHANDLE target, int code, intptr_t argument);
    intptr_t BroadcastPeerMessage(int code, intptr_t argument);
    void ReportEvent(int kind, const char *text, double latitude, double longitude, OBJHANDLE object);
    void SetPlotColor(int code);
    // The controller's text for a name; leaves a non-empty `buffer` alone
    // unless `force`. Empties it when there is no answer.
    void LookUpText(const char *name, std::string &buffer, bool force);
    double LookUpDouble(const char *name);
    int LookUpInt(const char *name);
    bool LookUpFlag(const char *name);

    // --- Updaters and timer events ---------------------------------------------
    static NameTable FrameworkUpdaters();
    static NameTable FrameworkTimerEvents();
    // The stage's tables, registered once by the class that derives the stage.
    static void RegisterStageTables(NameTable updaters, NameTable timerEvents);
    static NameTable StageUpdaters();
    static NameTable StageTimerEvents();

    std::string UpdaterName(VesselCall call) const;
    std::string TimerName(VesselCall call) const;
    void AddUpdater(VesselCall call);
    void RemoveUpdater(VesselCall call);
    void AddOneShot(double delay, VesselCall call);
    void AddEngineOneShot(double engineSeconds, VesselCall call);
    void AddSecondEvent(VesselCall call);
    void AddMinuteEvent(VesselCall call);
    void RemoveSecondEvent(VesselCall call);
    void RemoveMinuteEvent(VesselCall call);
    bool HasUpdater(VesselCall call) const;
    bool AdmitTimerEvent(std::vector<VesselCall> &list, VesselCall call);
    void WalkUpdaters();

    // The scenario texts of the running lists; empty when there is nothing.
    std::string UpdatersText() const;
    std::string EngineTimersText() const;
    std::string OneShotTimersText() const;
    std::string SecondEventsText() const;
    std::string MinuteEventsText() const;
    // Restores a list from the text behind its scenario key.
    void RestoreUpdaters(const std::string &text);
    void RestoreOneShots(const std::string &text, bool engine);
    void RestorePeriodicEvents(const std::string &text, bool minute);

    // The updaters of the framework.
    void H_TIMER_1T();
    void H_TIMER_1T_ME();
    void H_TIMER_P1S();
    void H_TIMER_P10M();
    void H_ANIM();
    void H_ATM_FLT();
    void H_GROUND_WATCH();
    void H_DEBUG_CAM();
    void H_CONTRAIL();
    void H_FAIL_FIRE();
    void H_COND_SEQ();
    void H_TIMED_SEQ();
    void H_VC();
    void P_WINDS();
    void H_MET();
    void H_PARK();
    // The timer events of the framework.
    void H_DUST();
    void H_DELAYED_EXPL();
    void H_HIDE_ANNOT();
    void H_FAIL_ACT();
    void H_NO_ACT();
    void H_PYRO_SOUND();
    void H_AWARENESS();
    void H_ATM_ENTER_EXIT();
    void H_PLN_ENTER_EXIT();
    void H_NO_TIME_ACCEL();
    void H_CHK_SPOTLIGHTS();
    void H_CHK_SPOTLT_DIST();
    void H_UNPARK();

    // --- Configuration ---------------------------------------------------------
    void FindController();
    void ResolveSubtype();
    void LocateAndReadConfig();
    // A plain key of the merged configuration; empty when not given.
    const std::string &Cfg(const std::string &key) { return cfgMerged.Get(key); }
    // The plain keys of the vessel, in their order of reading; each group
    // makes its host calls at once.
    void ReadPlainKeys();
    void ReadPhysicsKeys();
    void ReadGeometryKeys();
    void ReadToParentKey();
    void ReadReentryKey();
    void ReadNavmodesKey();
    void ReadPitchProfile();
    void ReadAttitudeControls(const std::string &key, AttitudeControlBlock &target);
    void ReadFlagKeys();
    void ReadDockKeys();
    void ReadPlotColorKey();
    void ReadOtherKeys();
    void ReadFailureList(const std::string &value);
    void ReadCrashData();
    // Stores and applies three touchdown points; two equal points put the
    // stored ones back.
    void SetTouchdownPts(const VECTOR3 &p1, const VECTOR3 &p2, const VECTOR3 &p3);

    // --- Scenario ----------------------------------------------------------------
    void FirstPass(void *status);
    // RESOURCE lines of the scenario reach their table; RES_MODS lines are kept
    // as the text of their table.
    void ReadResourceLines();
    void ReadResModsLines();
    // The run-time changes of the four tables that keep them, applied once
    // their records exist.
    void ApplyResourceMods();
    // The modification text of a record, empty when it is as created, and its
    // application; the other record types keep no changes.
    template <class R> std::string ModificationText(const std::string &, R *) { return std::string(); }
    template <class R> void ApplyRecordMods(const std::string &, const std::string &, R *) {}
    std::string ModificationText(const std::string &name, TANK_REC *record);
    std::string ModificationText(const std::string &name, THRUSTERGROUP_REC *record);
    std::string ModificationText(const std::string &name, ANIM_CTRL_REC *record);
    std::string ModificationText(const std::string &name, MESH_REC *record);
    void ApplyRecordMods(const std::string &name, const std::string &value, TANK_REC *record);
    void ApplyRecordMods(const std::string &name, const std::string &value, THRUSTERGROUP_REC *record);
    void ApplyRecordMods(const std::string &name, const std::string &value, ANIM_CTRL_REC *record);
    void ApplyRecordMods(const std::string &name, const std::string &value, MESH_REC *record);
    // A scenario line by the sink rule: to the file if there is one, else to
    // `lines`, else to the vessel's own PendingLines as "key value".
    void EmitScenarioLine(FILEHANDLE scn, std::vector<std::string> *lines, const char *key,
                          const std::string &value);
    void WriteResModsAll(FILEHANDLE scn);
    void WriteResourceAll(FILEHANDLE scn, std::vector<std::string> *lines);
    void WriteMeshTextures(FILEHANDLE scn, std::vector<std::string> *lines);
    // The framework's keys that depend on the configuration's values, in
    // their order of writing.
    void WriteFrameworkKeys(FILEHANDLE scn);
    void WriteListKeys(FILEHANDLE scn);

    // --- Sequences ---------------------------------------------------------------
    // A sequence is a chain of steps that the scenario starts by name; a plain
    // key of the configuration (or, through the controller's look-up, the key
    // that it names) spells out the steps. A timed sequence fires each step at
    // its time on the sequence's own clock; a conditional sequence runs one
    // step at a time, each once its flag is true.
    //
    // The steps a configuration may name are the rows of the vessel class's
    // two tables; HULLKIT has none. A derived class lists its rows in static
    // tables and returns them from the overrides:
    //
    //   const TimedAction kTimed[] = {
    //       {"RELEASE_STAGE", static_cast<VesselCall>(&Carrier::ReleaseStage)}};
    //   const ConditionalAction kConditional[] = {
    //       {"RELEASE_WHEN_STILL", static_cast<VesselCall>(&Carrier::W_STILL),
    //        static_cast<SequenceFlag>(&Carrier::Still),
    //        static_cast<VesselCall>(&Carrier::ReleaseStage)}};
    //   TimedActionTable TimedActions() const override { return kTimed; }
    //   ConditionalActionTable ConditionalActions() const override { return kConditional; }
    //
    // A watch is an updater: it needs a row in the class's updater table
    // (RegisterStageTables), and it sets its flag when its condition holds.
    virtual TimedActionTable TimedActions() const;
    virtual ConditionalActionTable ConditionalActions() const;
    // The value of the sequence key `name`, or of the key the controller names
    // for it; `source` becomes the name that led to the value. Empty when
    // neither gives one.
    std::string FindSequence(const std::string &name, std::string &source);
    // Start a sequence, also from its scenario line: the timed one with its
    // clock at `clock`, the conditional one with the flags of `states` ("1,0,"
    // as saved; null clears every flag).
    void StartTimedSequence(const std::string &name, double clock);
    void StartConditionalSequence(const std::string &name, const char *states);
    void ParseTimedSequence(const std::string &name, std::string value);
    void ParseConditionalSequence(const std::string &name, std::string value);
    void EndTimedSequence();
    // The conditional sequence's watch: armed for its next step (and when the
    // autopilot takes over), stopped when the vessel goes over to manual control.
    void ArmNextConditional();
    void StopConditionalWatch();
    // The texts of the scenario lines, empty when no sequence runs.
    std::string TimedSequenceText() const;
    std::string ConditionalSequenceText() const;
    // The running sequences' members follow the timer lists below.

    // --- Resource tables -----------------------------------------------------------
    // The tables read the configuration, in their order of loading.
    void LoadResourceTables();
    // The default records, the scenario's resource lines, then every record
    // made in the host.
    void BuildResources();
    void AddDefaultResources();
    void CreateResourceTables();
    // The handle of the tank "Main", or null.
    void FindMainTank();
    // Position of the group `label` among the labelled groups of a mesh's file;
    // -1 if the label isn't there or the file can't be read.
    int32_t ResolveGroupLabel(const std::string &meshName, const std::string &label);
    // The vessel's link to the sound library, between the sounds and the textures.
    void ConnectVesselSound();
    // --- Sound, spotlights and wind -----------------------------------------------
    // Loads the wave table (the controller's common one, if there is a
    // controller) through the link, and looks up the sounds by name.
    void LoadSounds();
    // A sound of the table heard from this vessel: mode 0 once, 1 in a loop, 3 stop.
    void PlayVesselSound(int wave, int mode, int volume);
    // The engine loop at the main level; its stop once the engine went out.
    void DriveEngineSound(double level);
    // The lamps' host lights and sprites of every floodlight set, dark.
    void BuildSpotlights();
    // Every set's host light on or off.
    void ActivateSpotlights(bool on);
    // The wind of this run: drawn, or the controller's.
    void SetupWind();

    // --- Animations and their controllers ---------------------------------------
    // Appends a component's groups to the group store and points the record at
    // them; the single group -1 makes a component that moves no group.
    void StoreAnimGroups(ANIM_REC *record);
    // The host component of the named animation record, or null.
    ANIMATIONCOMPONENT_HANDLE FindAnimComponent(const std::string &name);
    // One time step of a controller: speed, end stops or wrap, target, host state.
    void StepController(ANIM_CTRL_REC *controller);
    // A key press for the controllers' keys; 1 if a controller took it.
    int AnimKeyEvent(DWORD key, char *kstate);
    // Controllers that move only while their key is held.
    void DriveHeldKeys(char *kstate);
    // Drive a controller to a state, or in a direction; `immediate` steps it at
    // once and from then on keeps H_ANIM off it.
    void SetControllerTarget(ANIM_CTRL_REC *controller, double value, bool immediate);
    void SetControllerDirection(ANIM_CTRL_REC *controller, int32_t direction, bool immediate);
    // The contrail, hot wake and dust streams, each on its level member.
    void AddLevelStreams();

    // --- Meshes, textures and the visual -----------------------------------------
    // Puts a mesh record's mesh into the host, if its load state (or `force`)
    // asks for it, and sets its visibility; `extPass` makes it EXTPASS.
    void LoadMesh(MESH_REC *record, bool force, bool extPass);
    void LoadMeshByName(const std::string &name, bool force, bool extPass);
    void LoadMeshByName(const char *name, bool force, bool extPass);
    // Visibility of a mesh by record name: never, always, or a host mode.
    void HideMesh(const std::string &name);
    void ShowMesh(const std::string &name);
    void SetMeshVis(const std::string &name, int32_t mode);
    // Replaces a texture of a mesh and remembers it for every visual; false if
    // the mesh or the texture record doesn't exist. `now` applies it at once.
    bool SetMeshTexture(const std::string &mesh, int32_t index, const std::string &texture, bool now);
    void ApplyMeshTexture(const std::string &mesh, int32_t index, const std::string &texture);
    // Hides or shows one group of a mesh in the visual.
    void SetGroupVis(const std::string &mesh, int32_t group, bool hidden);
    // SetGroupVis, and remembers the group while its state differs from `defaultHidden`.
    void SetGroupVisSaved(const std::string &mesh, int32_t group, bool hidden, bool defaultHidden);
    // Marks every group of the meshes in the visual as casting no shadow.
    void SuppressShadows();

    // --- Members, in the order of the object -----------------------------------
    char HullkitMarker;
    std::vector<std::string> PendingLines;
    std::string subtype, variantFile, ClassFolder, moduleFile, moduleName;
    double DryMass;
    ConfigTable cfgCommon, cfgClass, cfgVariant, cfgMerged;
    SectionTable secCommon, secClass, secVariant;

    // Value pools: element 0 of each is what a missing key reads.
    std::vector<std::string> stringPool;
    std::vector<double> doublePool;
    std::vector<int> intPool;
    std::vector<VECTOR3> vectorPool;
    std::vector<PARTICLESTREAMSPEC> particlePool;
    std::vector<std::vector<int>> intListPool;

    // The resource tables, in their order of loading.
    HkResources<PARTICLE_REC> ParticleTable;
    HkResources<TEXTURE_REC> TextureTable;
    HkResources<BEACON_REC> BeaconTable;
    HkResources<TANK_REC> TankTable;
    HkResources<THRUSTER_REC> ThrusterTable;
    HkResources<THRUSTERGROUP_REC> ThrusterGroupTable;
    HkResources<SOUND_REC> SoundTable;
    HkResources<MESH_REC> MeshTable;
    HkResources<MATERIAL_REC> MaterialTable;
    HkResources<ANIM_REC> AnimTable;
    HkResources<ANIM_CTRL_REC> AnimCtrlTable;
    HkResources<CAMERA_REC> CameraTable;
    HkResources<WRECK_REC> WreckTable;
    HkResources<CHILD_REC> ChildTable;
    HkResources<SEPARATION_REC> SeparationTable;
    HkResources<SPOTLIGHTSET_REC> SpotlightSetTable;
    HkResources<AERO_REC> AeroTable;

    // Every created thruster in order of creation, and the standard groups.
    std::vector<THRUSTER_HANDLE> thrusterHandles;
    // The mesh groups of all animation components; the host keeps pointers into it.
    static constexpr int32_t kAnimGroupCapacity = 2000;
    uint32_t AnimGroupStore[kAnimGroupCapacity] = {};
    int32_t AnimGroupCount = 0;
    THGROUP_HANDLE groupMain = nullptr, groupPitchDown = nullptr, groupPitchUp = nullptr,
                   groupYawLeft = nullptr, groupYawRight = nullptr, groupRollLeft = nullptr,
                   groupRollRight = nullptr, groupFwd = nullptr, groupBack = nullptr, groupDown = nullptr,
                   groupUp = nullptr, groupLeft = nullptr, groupRight = nullptr;
    // The tank "Main", null without one.
    PROPELLANT_HANDLE MainTank = nullptr;
    // Name of the camera record in use; the first camera once the tables exist.
    std::string CurrentCamera;
    // The host's visual of the vessel, null while there is none.
    VISHANDLE visual = nullptr;
    // Replaced textures and hidden groups, applied to each new visual.
    std::vector<MeshTextureEntry> meshTextures;
    std::vector<MeshGroupVisEntry> meshGroupVis;
    // Set when a material record of that kind is created.
    bool HasGlowMaterials = false, HasAlphaMaterials = false;

    double SimTime, SimStep, SysStep;

    std::vector<VesselCall> Updaters;
    std::vector<VesselCall> OneShotEvents;
    std::vector<double> OneShotTimes;
    std::vector<VesselCall> EngineEvents;
    std::vector<double> EngineTimes;
    std::vector<VesselCall> SecondEvents;
    double NextSecond;
    std::vector<VesselCall> MinuteEvents;
    double NextMinute;

    // --- Sequences: the running ones --------------------------------------------
    // The timed sequence and its name as started. Its clock and the clock
    // display's format are TimedClock and TimerFormat.
    std::vector<TimedStep> TimedSteps;
    std::string TimedName;
    // The conditional sequence: rows copied from the table, the name that led
    // to its value, which steps have run, and the step waited for.
    static constexpr std::size_t kMaxConditionalSteps = 50;
    std::vector<ConditionalAction> ConditionalSteps;
    std::string ConditionalName;
    bool ConditionalDone[kMaxConditionalSteps] = {};
    int32_t CurrentIndex = 0;
    SequenceFlag CurrentFlag = nullptr;
    VesselCall CurrentAction = nullptr;

    OBJHANDLE ControllerObject;
    HULLKIT *ControllerHullkit;
    void *ControllerData;
    NOTEHANDLE MessageNote;
    int32_t PlotColor;
    bool CreationDeferred;
    bool Crashed;
    bool SkipNextStep;
    bool SoundsAsked;
    double VisLimitMesh, VisLimitSpot;
    int32_t configLevel;

    // First values that other subsystems start from.
    bool Landed, Attached, Destructible, FocusEnabled, HasFocus, AutoSwitchFocus, ReentryGlowEnabled;
    double DefaultSize;
    double TimedClock, MissionTime;
    bool NavImplemented[8];
    double Reliability;
    double Temperature;
    double MaxVerticalSpeed, MaxHorizontalSpeed, MaxDynPressure, MaxImpactSpeed;
    double CurrentTimeAccel, MaxTimeAccel;
    double SpotlightFogProbability;
    int SoundId;
    // Table indices of the named sounds; -1 where the table has none.
    int SndThud = -1, SndEngine = -1, SndAlarm = -1, SndGas = -1, SndPyro = -1, SndMotor = -1, SndClang = -1,
        SndRadio = -1;
    // The floodlight sets' host lights are on.
    bool SpotlightsLit = false;
    // The wind: gusty, the drawn strength (0 to 1), the direction in the
    // horizon frame (a horizontal unit vector), the force [N] and its point
    // of attack in the vessel's frame.
    bool WindGusty = false;
    double WindStrength = 0.0;
    VECTOR3 WindDir{1, 0, 0};
    double WindForce = 0.0;
    VECTOR3 WindPoint{0, 0, 0};
    VECTOR3 ImuYawRef, ImuPitchRef;
    OBJHANDLE EarthHandle, MoonHandle;
    oapi::Pen *HudPen;
    // Presentation: the camera to come back to after a reload, the debug
    // camera's tilt [rad], the pending virtual cockpit key, the clock display.
    std::string SavedCamera;
    double CameraTilt = 0.0;
    bool VcSwitchPending = false, ShowClock = false;
    // The navigation-mode override: the host's modes flown by the vessel itself.
    bool NavOverrideAvailable = false, NavOverrideEnabled = false;
    // The mode the attitude loop flies: 0 none, 1 to 7 the host's numbers,
    // 9 to 12 the program's tangent and body modes.
    int32_t NavOverrideMode = 0;
    // The object of the modes BODY and ANTIBODY; null: those modes command nothing.
    OBJHANDLE NavTargetObject = nullptr;
    // The attitude loop's values of the step, each in the order pitch, yaw,
    // roll (body x, y, z): the command (-1 to 1), the error [rad] and [deg],
    // the rates [rad/s] and [deg/s] with the yaw turned, the error within
    // ErrorLimit [rad] and [deg], and the rate limit, coast rate and blend chosen.
    VECTOR3 AttCommand{0, 0, 0}, AttError{0, 0, 0}, AttErrorDeg{0, 0, 0};
    VECTOR3 AngVel{0, 0, 0}, AngVelDeg{0, 0, 0};
    VECTOR3 ClampedError{0, 0, 0}, ClampedErrorDeg{0, 0, 0};
    VECTOR3 ActiveRateLimit{0, 0, 0}, ActiveCoastRate{0, 0, 0}, ActiveBlend{0, 0, 0};
    // Where a failed control channel is stuck [rad]; 0 while it works.
    double PitchStuckAngle = 0.0, YawStuckAngle = 0.0, RollStuckAngle = 0.0;
    // The ascent pitch's altitude capture: the horizon velocity [m/s], the
    // flight path angle [rad], and whether the capture has latched for good.
    VECTOR3 HorizonVel{0, 0, 0};
    double FlightPathAngle = 0.0;
    bool PeriLatched = false;

    // Scenario-held state of later subsystems: the first pass stores these,
    // the saving writes them back as they stand.
    double BallisticTarget[5] = {};
    double OrbitTargetRadius = 0.0, OrbitInsertRadius = 0.0, OrbitInclination = 0.0;
    bool ShowMet = false;
    int32_t FailureIndex = 0, FailureKind = 0;
    bool PitchFailed = false, YawFailed = false, RollFailed = false;
    double FireGrowTime = 0.0, FireBurnTime = 0.0, EngineFadeTime = 0.0, FireLevel = 0.0, FireMainLevel = 0.0;
    bool AwareWhileAttached = false;

    // Plain keys of the vessel: what they set beyond the first values above.
    VECTOR3 PMI, RotDrag;
    VECTOR3 TouchdownPts[3];
    bool TouchdownPtsFromScenario;
    std::string ToParentId;
    ATTACHMENTHANDLE ToParentAttachment;
    VECTOR3 ToParentPos, ToParentDir, ToParentRot;
    VECTOR3 ConfigToParentPos, ConfigToParentDir, ConfigToParentRot;
    std::vector<PitchProfileEntry> PitchProfile;
    std::string AttControlsName;
    AttitudeControlBlock AttControls;
    bool SelfDestructor, NoFocus, Hidden, NoAtmosphereWatch, hideShadows;
    bool HaveAutopilot, AutopilotActive, AutopilotConfigured;
    // Why the switch to manual control or to the autopilot is refused; empty
    // when it isn't.
    std::string ManualBlockText, AutopilotBlockText;
    bool CanAutoSwitchFocus, AutoSwitchFocusConfigured;
    std::string WreckVesselName, WreckSingle;
    VECTOR3 ReentryShinePos;
    VECTOR3 FirePos, FireDir;
    std::vector<FailureEntry> FailureList;
    VECTOR3 CgOffset;
    std::string TimerFormat;
    VECTOR3 YawOrbital;
    bool SaveOrbit, CanBeCleanedUp;

    // The main engine: running as of the last watch, and failed for good.
    bool mainRunning = false, MainEngineFailed = false;
    // The gimbal's animation controls; null where the vessel has none.
    ANIM_CTRL_REC *pitchControl = nullptr, *yawControl = nullptr, *rollControl = nullptr;
    // The carrier, set when this vessel is hung on it; and the name of the
    // carrier's record that holds it.
    OBJHANDLE ParentObject = nullptr;
    VESSEL *ParentVessel = nullptr;
    HULLKIT *ParentHullkit = nullptr;
    std::string AttachedAs;
    // The shift of the centre of gravity in force from SetCgOffset.
    VECTOR3 CgShift{0, 0, 0};
    // The size before the size toggle shrank the vessel; 0 when not shrunk.
    double SizeBeforeToggle = 0.0;

    // The orbit's apsides around the Earth [m, radii], as the flight program
    // last fetched them.
    double ApDist = 0.0, PeDist = 0.0;
    // The lunar transfer's working data, written only by its preparation.
    // MoonFrame's rows are the Moon's orbit axes (x to its periapsis, z along
    // its angular momentum); the vectors below are in that frame. MoonNodeTime
    // [s] is what is left of the Moon's time to the node once the vessel
    // stands there; MoonNodeRadius [m] is the Moon's radius at the node.
    double MuEarth = 0.0, MuEarthMoon = 0.0;
    MATRIX3 MoonFrame{1, 0, 0, 0, 1, 0, 0, 0, 1};
    double MoonEcc = 0.0, MoonSemiLatus = 0.0, MoonTrueAnomaly = 0.0;
    double MoonNodeTime = 0.0, MoonNodeRadius = 0.0;
    VECTOR3 PosInMoonFrame{0, 0, 0}, VelInMoonFrame{0, 0, 0};
    double RadiusNow = 0.0, SpeedNow = 0.0;
    VECTOR3 NodeVector{0, 0, 0}, NodeUnit{0, 0, 0};

    // Levels of the contrail, hot wake and dust streams. The host reads them
    // through the pointers it was given, so they stay members of the vessel.
    double ContrailLevel, HeatContrailLevel, DustLevel;

    // The air and the watches: the last ground altitude [m], airspeed [m/s]
    // and dynamic pressure [Pa] of H_ATM_FLT; the reentry glow (0 to 2, from
    // Temperature); the layers entered; the surface reference and the one
    // before it.
    double Altitude = 0.0, Airspeed = 0.0, DynPressure = 0.0, Glow = 0.0;
    bool InAtmosphere = false, InPlanetRange = false;
    OBJHANDLE SurfaceRef = nullptr, PrevSurfaceRef = nullptr;
    // The thruster group Shine, null without the reentry glow.
    THGROUP_HANDLE ShineGroup = nullptr;
    // What the airfoil callbacks read; the host keeps a pointer to the vessel.
    // The two airfoils, null until made.
    AirfoilParams Airfoil;
    AIRFOILHANDLE AirfoilVertical = nullptr, AirfoilHorizontal = nullptr;
};

// The marker sits directly behind the host's part of the object, where any
// framework vessel can be recognised through its VESSEL interface.
bool IsHullkit(VESSEL *vessel);

#include "resources/hk_resources_impl.h"
