// Sound and lights of the presentation subsystem.
#include "frame/hullkit.h"

void HULLKIT::RegisterSoundFiles() {}
void HULLKIT::H_CHK_SPOTLIGHTS() {}
void HULLKIT::H_CHK_SPOTLT_DIST() {}
