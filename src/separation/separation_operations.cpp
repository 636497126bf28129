// Children, separation and crash.
#include "frame/hullkit.h"

void HULLKIT::KeepAwareWhileAttached() {}
void HULLKIT::OnAttached() {}
void HULLKIT::OnDetached() {}
void HULLKIT::OnChildLost(OBJHANDLE) {}
void HULLKIT::SetCgOffset(double, double) {}
void HULLKIT::OnSoftLanding() {}
void HULLKIT::OnOverpressure() {}
void HULLKIT::OnHardLanding() {}
void HULLKIT::OnImpact() {}
void HULLKIT::OnCrash(bool) {}
void HULLKIT::DoWreck() {}
void HULLKIT::DoBlast(bool) {}
void HULLKIT::H_DELAYED_EXPL() {}
void HULLKIT::H_PYRO_SOUND() {}
