// Failures, atmosphere, ground and wind.
#include "frame/hullkit.h"

void HULLKIT::OnAtmosphereEnter() {}
void HULLKIT::OnAtmosphereExit() {}
void HULLKIT::OnPlanetEnter() {}
void HULLKIT::OnPlanetExit() {}
void HULLKIT::UpdateReentry() {}
void HULLKIT::OnPark() {}
void HULLKIT::H_ATM_FLT() {}
void HULLKIT::H_GROUND_WATCH() {}
void HULLKIT::H_CONTRAIL() {}
void HULLKIT::H_FAIL_FIRE() {}
void HULLKIT::H_PARK() {}
void HULLKIT::H_DUST() {}
void HULLKIT::H_FAIL_ACT() {}
void HULLKIT::H_ATM_ENTER_EXIT() {}
void HULLKIT::H_PLN_ENTER_EXIT() {}
void HULLKIT::H_UNPARK() {}
