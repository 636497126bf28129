// Operations that do nothing in HULLKIT: derived vessel classes fill them.
#include "frame/hullkit.h"

void HULLKIT::clbkNoSubtype() {}
void HULLKIT::clbkConfigLoaded() {}
void HULLKIT::OnCamerasBuilt() {}
bool HULLKIT::AnimKeyAllowed(DWORD, char *, ANIM_CTRL_REC *) { return true; }
void HULLKIT::OnControllerMoved(ANIM_CTRL_REC *) {}
void HULLKIT::OnControllerEndStop(ANIM_CTRL_REC *) {}
void HULLKIT::OnControllerTargetReached(ANIM_CTRL_REC *) {}
void HULLKIT::OnPlanetChanged() {}
void HULLKIT::OnChildCrashed(OBJHANDLE) {}
void HULLKIT::OnFailure() {}
void HULLKIT::OnSequenceStep() {}
void HULLKIT::OnManualControl() {}
void HULLKIT::OnAutopilotEngaged() {}
void HULLKIT::StartMissionClock() {}
void HULLKIT::JettisonNext() {}
void HULLKIT::OnTimeAccelChanged() {}
void HULLKIT::OnNoAction() {}

// The main engine's level, for the autopilot and for other framework vessels.
void HULLKIT::OnAutopilotThrottle() { SetThrusterGroupLevel(THGROUP_MAIN, 1.0); }
void HULLKIT::ThrottleTo(double level) { SetThrusterGroupLevel(THGROUP_MAIN, level); }
void HULLKIT::FullThrottle() { SetThrusterGroupLevel(THGROUP_MAIN, 1.0); }

// A timer event that does nothing, for a timer that only has to stand.
void HULLKIT::H_NO_ACT() {}
