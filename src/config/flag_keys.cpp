// The flags of the vessel. Each is set only by the exact word "true"; any other
// value, and a missing key, sets it false.
#include "config/value_scan.h"
#include "frame/hullkit.h"

void HULLKIT::ReadFlagKeys() {
    Destructible = !IsTrue(Cfg("Indestructable"));
    SelfDestructor = IsTrue(Cfg("SelfDestructor"));
    ReentryGlowEnabled = !IsTrue(Cfg("NoReentryGlow"));
    NoFocus = IsTrue(Cfg("NoFocus"));
    FocusEnabled = !NoFocus;
    Hidden = IsTrue(Cfg("Hidden"));
    NoAtmosphereWatch = IsTrue(Cfg("NoAtmosphereWatch"));
    hideShadows = IsTrue(Cfg("HideShadows"));
    HaveAutopilot = AutopilotActive = AutopilotConfigured = IsTrue(Cfg("HaveAutopilot"));
    CanAutoSwitchFocus = AutoSwitchFocus = AutoSwitchFocusConfigured = IsTrue(Cfg("CanAutoSwitchFocus"));
    if (IsTrue(Cfg("DebugInternalCameraMove")))
        AddUpdater(&HULLKIT::H_DEBUG_CAM);
}
