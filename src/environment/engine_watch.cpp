// The main engine watch, and the switch that installs it.
#include "frame/hullkit.h"

void HULLKIT::UpdateAwareness() {
    const bool aware = !Attached || AwareWhileAttached;
    if (!aware) {
        RemoveUpdater(&HULLKIT::WatchMainEngine);
        return;
    }
    // Only an engine with propellant behind it is worth watching.
    PROPELLANT_HANDLE first = GetPropellantHandleByIndex(0);
    if (GetThrusterGroupHandle(THGROUP_MAIN) && first && GetPropellantMass(first) > 0.0)
        AddUpdater(&HULLKIT::WatchMainEngine);
}

void HULLKIT::H_AWARENESS() { UpdateAwareness(); }

void HULLKIT::WatchMainEngine() {
    const double level = GetThrusterGroupLevel(THGROUP_MAIN);
    DriveEngineSound(level);
    mainRunning = level > 0.0;
}
