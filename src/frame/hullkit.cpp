#include "frame/hullkit.h"

#include <cstdlib>
#include <cstring>
#include <ctime>

HULLKIT::HULLKIT(OBJHANDLE hVessel, int flightModel) : VESSEL3(hVessel, flightModel) {
    HullkitMarker = 'Q';
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    MessageNote = oapiCreateAnnotation(true, 0.5, _V(1, 1, 1));
    oapiAnnotationSetPos(MessageNote, 0, 0.1, 1, 1);
}

HULLKIT::~HULLKIT() {
    char empty[] = "";
    oapiAnnotationSetText(MessageNote, empty);
    oapiDebugString()[0] = '\0';
}

bool IsHullkit(VESSEL *vessel) {
    return vessel && reinterpret_cast<const char *>(vessel)[sizeof(VESSEL)] == 'Q';
}

// The host's class file handle is not used: the vessel reads its own files
// once its subtype is known.
void HULLKIT::clbkSetClassCaps(FILEHANDLE) {
    InitPools();
    InitDefaults();
}

void HULLKIT::InitPools() {
    stringPool.assign(1, std::string());
    doublePool.assign(1, 0.0);
    intPool.assign(1, 0);
    vectorPool.assign(1, _V(0, 0, 0));
    particlePool.assign(1, PARTICLESTREAMSPEC{});
    intListPool.assign(1, std::vector<int>());
}

void HULLKIT::InitDefaults() {
    HullkitMarker = 'Q';
    DryMass = 0.0;
    SimTime = SimStep = SysStep = 0.0;
    // The lists run on every step: room up front keeps the step free of allocation.
    for (auto *list : {&Updaters, &OneShotEvents, &EngineEvents, &SecondEvents, &MinuteEvents}) {
        list->clear();
        list->reserve(32);
    }
    OneShotTimes.clear();
    OneShotTimes.reserve(32);
    EngineTimes.clear();
    EngineTimes.reserve(32);
    NextSecond = NextMinute = 0.0;

    ControllerObject = nullptr;
    ControllerHullkit = nullptr;
    ControllerData = nullptr;
    PlotColor = 6;
    CreationDeferred = true;
    Crashed = false;
    SkipNextStep = true;
    SoundsAsked = false;
    VisLimitMesh = 0.001;
    VisLimitSpot = -1.0;
    configLevel = 0;

    Landed = Attached = HasFocus = AutoSwitchFocus = false;
    Destructible = FocusEnabled = ReentryGlowEnabled = true;
    DefaultSize = 10.0;
    TimedClock = MissionTime = -100000000.0;
    for (bool &implemented : NavImplemented)
        implemented = true;
    Reliability = 100.0;
    Temperature = 20.0;
    MaxVerticalSpeed = 1.0;
    MaxHorizontalSpeed = 1.0;
    MaxDynPressure = 20000.0;
    MaxImpactSpeed = 1000.0;
    CurrentTimeAccel = 1.0;
    MaxTimeAccel = 1000000.0;
    SpotlightFogProbability = 0.2;
    SoundId = -1;
    ImuYawRef = _V(1, 0, 0);
    ImuPitchRef = _V(0, 0, 1);
    EarthHandle = oapiGetGbodyByName("Earth");
    MoonHandle = oapiGetGbodyByName("Moon");
    HudPen = nullptr;
    CameraTilt = 0.0;
    VcSwitchPending = ShowClock = false;
    NavOverrideAvailable = NavOverrideEnabled = false;
    NavOverrideMode = 0;

    PMI = RotDrag = _V(0, 0, 0);
    for (VECTOR3 &point : TouchdownPts)
        point = _V(0, 0, 0);
    TouchdownPtsFromScenario = false;
    ToParentId.clear();
    ToParentAttachment = nullptr;
    ToParentPos = ToParentDir = ToParentRot = _V(0, 0, 0);
    ConfigToParentPos = ConfigToParentDir = ConfigToParentRot = _V(0, 0, 0);
    PitchProfile.clear();
    AttControlsName.clear();
    AttControls = AttitudeControlBlock{};
    SelfDestructor = NoFocus = Hidden = NoAtmosphereWatch = hideShadows = false;
    HaveAutopilot = AutopilotActive = AutopilotConfigured = false;
    CanAutoSwitchFocus = AutoSwitchFocusConfigured = false;
    WreckVesselName.clear();
    WreckSingle.clear();
    ReentryShinePos = FirePos = FireDir = CgOffset = YawOrbital = _V(0, 0, 0);
    FailureList.clear();
    TimerFormat.clear();
    SaveOrbit = CanBeCleanedUp = false;
    ContrailLevel = HeatContrailLevel = DustLevel = 0.0;
}
