// Sound, lights, cameras, message line and head-up display.
#include "frame/hullkit.h"

void HULLKIT::RegisterSoundFiles() {}
void HULLKIT::ReselectCamera() {}
void HULLKIT::ShowMessage(const char *) {}
void HULLKIT::OnFocusLost(OBJHANDLE) {}
void HULLKIT::OnFocusGained(OBJHANDLE) {}
void HULLKIT::OnClockResumed(OBJHANDLE) {}
void HULLKIT::OnClockHeld(OBJHANDLE) {}
bool HULLKIT::clbkLoadVC(int) { return false; }
bool HULLKIT::clbkDrawHUD(int, const HUDPAINTSPEC *, oapi::Sketchpad *) { return true; }
void HULLKIT::H_DEBUG_CAM() {}
void HULLKIT::H_VC() {}
void HULLKIT::H_HIDE_ANNOT() {}
void HULLKIT::H_CHK_SPOTLIGHTS() {}
void HULLKIT::H_CHK_SPOTLT_DIST() {}
