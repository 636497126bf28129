// The road of a vessel: loading its scenario block, reading its
// configuration, finishing it in the host, and its step.
#include <cstring>
#include <strings.h>

#include "config/value_scan.h"
#include "frame/hullkit.h"

void HULLKIT::clbkLoadStateEx(FILEHANDLE scn, void *status) {
    CreationDeferred = false;
    char *line;
    while (oapiReadScenario_nextline(scn, line))
        PendingLines.emplace_back(line);
    FirstPass(status);
    LoadConfiguration();
}

// Each line goes to ParseScenarioLine; STATUS and SUBTYPE are noted on the
// way. A block without STATUS lands on the Earth.
void HULLKIT::FirstPass(void *status) {
    bool statusSeen = false;
    for (size_t i = 0; i < PendingLines.size(); ++i) {
        std::string line = PendingLines[i];
        if (strncasecmp(line.c_str(), "STATUS", 6) == 0) {
            statusSeen = true;
            if (line.size() >= 13 && line.compare(7, 6, "Landed") == 0)
                Landed = true;
        } else if (strncasecmp(line.c_str(), "SUBTYPE", 7) == 0) {
            subtype = line.size() > 8 ? line.substr(8) : std::string();
        }
        ParseScenarioLine(line.data(), status);
    }
    if (!statusSeen && status) {
        char landed[] = "STATUS Landed Earth";
        ParseScenarioLine(landed, status);
    }
}

void HULLKIT::LoadConfiguration() {
    FindController();
    ResolveSubtype();
    LocateAndReadConfig();
    MergeInto(cfgMerged, cfgVariant, cfgClass, cfgCommon);
    LoadResourceTables();
    // After the resource tables: the plain keys of the vessel as a whole.
    ReadPlainKeys();
    clbkConfigLoaded();
}

void HULLKIT::clbkPostCreation() {
    if (!CreationDeferred)
        ApplyConfiguration();
}

void HULLKIT::ApplyConfiguration() {
    BuildResources();
    DrawFailure();
    SetVisibilityLimit(VisLimitMesh, VisLimitSpot);
    if (AnimCtrlTable.Count() > 0)
        AddUpdater(&HULLKIT::H_ANIM);
    for (int32_t i = 0; i < ChildTable.Count(); ++i)
        if (CHILD_REC *rec = ChildTable.At(i))
            AttachChildRec(*rec);
    if (ReentryGlowEnabled) {
        const THRUSTERGROUP_REC *group = ThrusterGroupTable.Find("Shine");
        ShineGroup = group ? group->handle : nullptr;
        const THRUSTER_REC *shine = ThrusterTable.Find("ShinePlus");
        const TEXTURE_REC *glow = TextureTable.Find("txGlow");
        if (shine && shine->handle)
            AddExhaust(shine->handle, 0.0, 1.0, glow ? glow->surface : nullptr);
    }
    AddLevelStreams();
    if (CgOffset.x != 0.0 || CgOffset.y != 0.0 || CgOffset.z != 0.0)
        ShiftCG(CgOffset);
    if (SpotlightSetTable.Count() > 0) {
        AddOneShot(2.0, &HULLKIT::H_CHK_SPOTLIGHTS);
        AddMinuteEvent(&HULLKIT::H_CHK_SPOTLIGHTS);
    }
    ReplayScenarioLines();
    SetEnableFocus(FocusEnabled);
    // A fire that burned when the scenario was saved burns on.
    if (FireLevel > 0.0) {
        SetThrusterGroupLevel(THGROUP_MAIN, FireMainLevel);
        AddFireStreams();
    }
    FindMainTank();
    // The controller's block holds the fleet's orbit: two altitudes in km
    // above the fixed Earth radius and an inclination in degrees.
    if (ControllerObject && ControllerData) {
        const auto *block = static_cast<const unsigned char *>(ControllerData);
        double insertion, target, inclination;
        std::memcpy(&insertion, block + 152, sizeof insertion);
        std::memcpy(&target, block + 160, sizeof target);
        std::memcpy(&inclination, block + 168, sizeof inclination);
        OrbitInsertRadius = insertion * 1000.0 + 6371000.0;
        OrbitTargetRadius = target * 1000.0 + 6371000.0;
        OrbitInclination = inclination * 0.017453292519943295;
    }
    BuildAirfoils();
    SetupWind();
    if (IsTrue(Cfg("VC")))
        AddUpdater(&HULLKIT::H_VC);
    UpdateAwareness();
}

void HULLKIT::clbkPreStep(double simt, double simdt, double) {
    if (Crashed)
        return;
    if (SkipNextStep) {
        SkipNextStep = false;
        return;
    }
    SimTime = simt;
    SimStep = simdt;
    SysStep = oapiGetSysStep();
    WatchTimeAccel();
    WalkUpdaters();
}

void HULLKIT::ReplayScenarioLines() {
    for (size_t i = 0; i < PendingLines.size(); ++i) {
        std::string line = PendingLines[i];
        ParseScenarioLineLate(line.data());
    }
}
