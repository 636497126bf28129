// The attitude loop's hooks, and the mission clock.
#include "frame/hullkit.h"

double HULLKIT::PitchAngle() { return 0.0; }
double HULLKIT::YawAngle() { return 0.0; }
double HULLKIT::RollAngle() { return 0.0; }
void HULLKIT::AttitudeStep() {}
void HULLKIT::AttitudeControlStep() {}
void HULLKIT::H_MET() {}
