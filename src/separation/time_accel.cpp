// The time acceleration as the vessel last saw it, its cap, and the drop back
// to real time that failures and ignitions ask for.
#include "frame/hullkit.h"

void HULLKIT::WatchTimeAccel() {
    double accel = oapiGetTimeAcceleration();
    if (accel > MaxTimeAccel) {
        oapiSetTimeAcceleration(MaxTimeAccel);
        accel = MaxTimeAccel;
    }
    if (accel != CurrentTimeAccel) {
        CurrentTimeAccel = accel;
        OnTimeAccelChanged();
    }
}

void HULLKIT::SetTimeAccel(double value) {
    oapiSetTimeAcceleration(value);
    if (value != CurrentTimeAccel) {
        CurrentTimeAccel = value;
        OnTimeAccelChanged();
    }
}

void HULLKIT::DropTimeAccel() {
    if (CurrentTimeAccel <= 1.0)
        return;
    // The controller may let a busy scenario keep its pace.
    if (SendPeerMessage(ControllerObject, 6, 0) == 1)
        return;
    SetTimeAccel(1.0);
}

void HULLKIT::H_NO_TIME_ACCEL() { DropTimeAccel(); }
