// The host's navigation modes, taken over by the vessel's own attitude loop:
// with the override on, a mode the user switches on in the host is cancelled
// there at once and flown by the loop under the same number.
#include <cstdio>

#include "control/navmode_names.h"
#include "frame/hullkit.h"

void HULLKIT::clbkNavMode(int mode, bool active) {
    if (NavOverrideEnabled) {
        const int32_t previous = NavOverrideMode;
        oapiDebugString()[0] = '\0';
        NavOverrideMode = 0;
        // Each real deactivation calls back here with `active` false; that
        // nested call only repeats the clearing.
        ClearHostNavmodes();
        ZeroAttitudeGroups();
        if (mode == previous) // a second press of the mode's key ends it
            return;
    }
    if (!active)
        return;
    if (AutopilotActive) {
        DeactivateNavmode(mode);
        ShowMessage("Manual controls disabled. To enable, use M key.");
        return;
    }
    if (Attached && !AwareWhileAttached) {
        DeactivateNavmode(mode);
        ShowMessage("Navmodes are disabled until separation.");
        return;
    }
    if (mode < 0 || mode > 7 || !NavImplemented[mode]) {
        DeactivateNavmode(mode);
        char text[64];
        std::snprintf(text, sizeof text, "%s Navmode is not implemented!",
                      mode >= 0 && mode < 8 ? kNavModeNames[mode] : "?");
        ShowMessage(text);
        return;
    }
    if (NavOverrideEnabled) {
        DeactivateNavmode(mode);
        NavOverrideMode = mode;
    }
}

void HULLKIT::ToggleNavOverride() {
    if (!NavOverrideAvailable)
        return;
    if (NavOverrideEnabled) {
        NavOverrideEnabled = false;
        ShowMessage("NAVMODES override is disabled");
        ZeroAttitudeGroups();
        // The host takes over the modes it has; HOLDALT and the program's own don't go back.
        if (NavOverrideMode >= 1 && NavOverrideMode <= 6)
            ActivateNavmode(NavOverrideMode);
        NavOverrideMode = 0;
        return;
    }
    NavOverrideEnabled = true;
    ShowMessage("NAVMODES override is enabled");
    ZeroAttitudeGroups();
    for (int mode : {1, 3, 4, 5, 6})
        if (GetNavmodeState(mode)) {
            clbkNavMode(mode, true);
            break;
        }
}

void HULLKIT::ClearHostNavmodes() {
    for (int mode : {1, 2, 4, 5, 6, 7, 3})
        DeactivateNavmode(mode);
}

void HULLKIT::ZeroAttitudeGroups() { StopThrusterGroups("Main"); }
