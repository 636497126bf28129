// Keys that move the focus among the framework's vessels and shrink the one
// in focus.
#include "frame/hullkit.h"

void HULLKIT::StepFocus(bool forward) {
    const int count = static_cast<int>(oapiGetVesselCount());
    if (count <= 1)
        return;
    int own = 0;
    while (own < count && oapiGetVesselByIndex(own) != GetHandle())
        ++own;
    if (own == count)
        return;
    for (int step = 1; step < count; ++step) {
        const int i = forward ? (own + step) % count : (own - step + count) % count;
        OBJHANDLE handle = oapiGetVesselByIndex(i);
        VESSEL *other = oapiGetVesselInterface(handle);
        if (other && other->GetEnableFocus() && IsHullkit(other)) {
            oapiSetFocusObject(handle);
            return;
        }
    }
}

void HULLKIT::ToggleSize() {
    if (SizeBeforeToggle > 0.0) {
        SetSize(SizeBeforeToggle);
        SizeBeforeToggle = 0.0;
        return;
    }
    SizeBeforeToggle = GetSize();
    SetSize(1.0);
}
