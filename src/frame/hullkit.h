// HULLKIT: a vessel that is entirely described by its configuration files
// and scenario block. Every subsystem is members and virtual operations of
// this one object; what runs in a step is the list of active updaters.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Orbitersdk.h"
#include "config/config_table.h"
#include "frame/vessel_call.h"

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
    virtual void AttitudeStep();
    virtual void AttitudeControlStep();
    virtual void JettisonNext();
    virtual void OnTimeAccelChanged();
    virtual void OnNoAction();
    virtual void SetCgOffset(double x, double z);

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

    // --- Scenario ----------------------------------------------------------------
    void FirstPass(void *status);

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
    VECTOR3 ImuYawReference, ImuPitchReference;
    OBJHANDLE EarthHandle, MoonHandle;
    oapi::Pen *HudPen;
};

// The marker sits directly behind the host's part of the object, where any
// framework vessel can be recognised through its VESSEL interface.
bool IsHullkit(VESSEL *vessel);
