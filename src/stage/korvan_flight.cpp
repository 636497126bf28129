// The stage's attitude hold: one step of the three-axis loop, from the
// separation from the carrier on. Under the autopilot a failed control
// channel is felt while the engine burns, as an error the loop can't remove;
// by hand the user's keypad input replaces the computed command.
#include "stage/korvan.h"

void Korvan::K_FLIGHT() {
    ReadRates();
    ComputeError();
    if (AutopilotActive) {
        if (groupMain && GetThrusterGroupLevel(groupMain) > 0.0) {
            AttError.x += PitchStuckAngle;
            AttError.y += YawStuckAngle;
            AttError.z += RollStuckAngle;
        }
        RunControlLaw();
    } else {
        RunControlLaw();
        ReadManualInput();
    }
    ApplyThrusters();
    ApplyGimbal();
}

// The mission clock, for a vessel that starts the stage's mission.
void Korvan::StartMissionClock() {
    MissionTime = 0.0;
    AddUpdater(&HULLKIT::H_MET);
}
