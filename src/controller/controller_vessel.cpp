// The controller as a vessel: its keys and scenario line, its step, and the
// watch that tells the framework vessels about the host's focus.
#include <array>
#include <cstdio>

#include "config/number_lists.h"
#include "config/value_scan.h"
#include "controller/fleet_controller.h"
#include "scenario/scenario_keys.h"

namespace {

// The framework object behind a handle, or null for a vessel of another
// kind and for a handle that names no vessel (any more).
HULLKIT *FrameworkVessel(OBJHANDLE handle) {
    if (!handle || !oapiIsVessel(handle))
        return nullptr;
    VESSEL *vessel = oapiGetVesselInterface(handle);
    return IsHullkit(vessel) ? static_cast<HULLKIT *>(vessel) : nullptr;
}

} // namespace

FleetController::FleetController(OBJHANDLE hVessel, int flightModel) : HULLKIT(hVessel, flightModel) {}

// "TARGETS insertion target inclination": the fleet's orbit, in km and
// degrees; it beats the configuration's keys.
void FleetController::ParseScenarioLine(char *line, void *status) {
    if (BeginsWithKey(line, "TARGETS"))
        scenarioTargets = TextBehindKey(line, "TARGETS");
    else
        HULLKIT::ParseScenarioLine(line, status);
}

void FleetController::clbkSaveState(FILEHANDLE scn) {
    HULLKIT::clbkSaveState(scn);
    if (scenarioTargets.empty())
        return;
    char text[128];
    std::snprintf(text, sizeof text, "%f %f %f", block.insertionAltitude, block.targetAltitude,
                  block.inclination);
    oapiWriteScenario_string(scn, "TARGETS", text);
}

// Runs at the end of the configuration's reading, before any other vessel of
// the scenario looks for the controller.
void FleetController::clbkConfigLoaded() {
    keepTimeAccel = IsTrue(Cfg("KeepTimeAcceleration"));
    block.alertsAllowed = IsTrue(Cfg("NoAlerts")) ? 0 : 1;
    ScanDouble(Cfg("InsertionAltitude"), block.insertionAltitude);
    ScanDouble(Cfg("TargetAltitude"), block.targetAltitude);
    ScanDouble(Cfg("TargetInclination"), block.inclination);
    std::array<double, 3> targets{block.insertionAltitude, block.targetAltitude, block.inclination};
    ScanNumbers(scenarioTargets, targets);
    block.insertionAltitude = targets[0];
    block.targetAltitude = targets[1];
    block.inclination = targets[2];
    ReadLookUps();
}

// The sections LookUpTexts, LookUpDoubles and LookUpIntegers, a name in the
// variant file beating the class file and that the common file. A value that
// isn't a number leaves its name without an answer.
void FleetController::ReadLookUps() {
    texts.clear();
    doubles.clear();
    integers.clear();
    for (const SectionTable *level : {&secVariant, &secClass, &secCommon}) {
        if (const ConfigTable *section = level->Find("LookUpTexts"))
            for (const auto &[name, value] : *section)
                if (!texts.contains(name))
                    texts.emplace(name, textStore.emplace_back(value).c_str());
        if (const ConfigTable *section = level->Find("LookUpDoubles"))
            for (const auto &[name, value] : *section)
                if (double number; !doubles.contains(name) && ScanDouble(value, number))
                    doubles.emplace(name, &doubleStore.emplace_back(number));
        if (const ConfigTable *section = level->Find("LookUpIntegers"))
            for (const auto &[name, value] : *section)
                if (int number; !integers.contains(name) && ScanInt(value, number))
                    integers.emplace(name, number);
    }
}

void FleetController::clbkPostCreation() {
    HULLKIT::clbkPostCreation();
    WatchFocus();
}

void FleetController::clbkPreStep(double simt, double simdt, double mjd) {
    WatchFocus();
    if (block.alertBusy && simt >= alertUntil)
        block.alertBusy = 0;
    HULLKIT::clbkPreStep(simt, simdt, mjd);
}

// A vessel's own step may move the focus (a separation hands it on); the
// vessels hear of it in the same frame.
void FleetController::clbkPostStep(double, double, double) { WatchFocus(); }

// The host tells only the two vessels concerned of a change of focus, and
// the framework vessels don't listen: the controller polls the focus and
// passes each change on. The host has no pause, so OnClockHeld and
// OnClockResumed have nothing to report.
void FleetController::WatchFocus() {
    const OBJHANDLE focus = oapiGetFocusObject();
    if (focus == focusSeen)
        return;
    const OBJHANDLE before = focusSeen;
    focusSeen = focus;
    if (HULLKIT *lost = FrameworkVessel(before))
        lost->OnFocusLost(focus);
    if (HULLKIT *gained = FrameworkVessel(focus))
        gained->OnFocusGained(before);
}
