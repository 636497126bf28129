// Control modes, keys, attitude loop and navigation modes.
#include "frame/hullkit.h"

int HULLKIT::clbkConsumeDirectKey(char *) { return 0; }
int HULLKIT::clbkConsumeBufferedKey(DWORD, bool, char *) { return 0; }
void HULLKIT::clbkNavMode(int, bool) {}
int HULLKIT::KeyWithControl(DWORD) { return 0; }
int HULLKIT::KeyWithShift(DWORD) { return 0; }
int HULLKIT::KeyWithAlt(DWORD) { return 0; }
int HULLKIT::KeyPlain(DWORD) { return 0; }
void HULLKIT::PrepareControlToggle() {}
double HULLKIT::PitchAngle() { return 0.0; }
double HULLKIT::YawAngle() { return 0.0; }
double HULLKIT::RollAngle() { return 0.0; }
void HULLKIT::AttitudeStep() {}
void HULLKIT::AttitudeControlStep() {}
void HULLKIT::H_MET() {}
