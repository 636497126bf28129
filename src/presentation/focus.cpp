// The user's focus and the clock display, as the controller vessel reports
// them, and the keys that change which vessels may take the focus.
#include "frame/hullkit.h"

void HULLKIT::OnFocusLost(OBJHANDLE) {
    HasFocus = false;
    // A vessel shrunk by the size toggle gets its size back with the focus.
    if (SizeBeforeToggle > 0.0)
        ToggleSize();
}

void HULLKIT::OnFocusGained(OBJHANDLE) { HasFocus = true; }
void HULLKIT::OnClockResumed(OBJHANDLE) { ShowClock = false; }
void HULLKIT::OnClockHeld(OBJHANDLE) { ShowClock = true; }

void HULLKIT::ToggleSecondaryFocus() {
    bool enable = true;
    bool decided = false;
    const DWORD count = oapiGetVesselCount();
    for (DWORD i = 0; i < count; ++i) {
        VESSEL *other = oapiGetVesselInterface(oapiGetVesselByIndex(static_cast<int>(i)));
        if (!IsHullkit(other))
            continue;
        auto *item = static_cast<HULLKIT *>(other);
        if (item->Hidden || (item->FocusEnabled && !item->NoFocus))
            continue;
        if (!decided) {
            enable = !item->FocusEnabled;
            decided = true;
        }
        item->FocusEnabled = enable;
        item->SetEnableFocus(enable);
    }
    ShowMessage(enable ? "Focus is ENABLED on all secondary items in the scenario."
                       : "Focus is DISABLED on all secondary items in the scenario.");
}

void HULLKIT::ToggleAutoSwitchFocus() {
    if (!CanAutoSwitchFocus)
        return;
    AutoSwitchFocus = !AutoSwitchFocus;
    ShowMessage(AutoSwitchFocus ? "Switch focus to the next separated element? YES!"
                                : "Switch focus to the next separated element? NO!");
}
