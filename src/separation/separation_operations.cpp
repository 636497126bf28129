// Children, separation and crash.
#include "frame/hullkit.h"

void HULLKIT::OnSoftLanding() {}
void HULLKIT::OnOverpressure() {}
void HULLKIT::OnHardLanding() {}
void HULLKIT::OnImpact() {}
void HULLKIT::OnCrash(bool) {}
void HULLKIT::DoWreck() {}
void HULLKIT::DoBlast(bool) {}
void HULLKIT::H_DELAYED_EXPL() {}
