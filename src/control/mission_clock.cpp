// The mission clock: counts simulation time while its updater runs, and
// shows "T+<seconds>" when the scenario and the controller both ask for it.
#include <cstdio>

#include "frame/hullkit.h"

void HULLKIT::H_MET() {
    MissionTime += SimStep;
    if (ShowMet && ShowClock)
        std::snprintf(oapiDebugString(), 256, "T+%.0f", MissionTime);
}
