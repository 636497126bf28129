// The virtual cockpit: the vessel has one when its configuration says so, and
// presses the host's cockpit-mode key until the view stands in it.
#include "frame/hullkit.h"

namespace {
constexpr BYTE kCockpitModeKey = 66; // scan code of F8
constexpr int kVirtualCockpit = 3;
} // namespace

bool HULLKIT::clbkLoadVC(int) { return Cfg("VC") == "true"; }

void HULLKIT::H_VC() {
    if (VcSwitchPending && oapiCameraInternal() && HasFocus) {
        keybd_event(0, kCockpitModeKey, KEYEVENTF_SCANCODE, 0);
        keybd_event(0, kCockpitModeKey, KEYEVENTF_SCANCODE | KEYEVENTF_KEYUP, 0);
        VcSwitchPending = false;
        return;
    }
    if (oapiCameraInternal() && HasFocus && oapiCockpitMode() != kVirtualCockpit)
        VcSwitchPending = true;
}
