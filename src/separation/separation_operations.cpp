// Children, separation and crash.
#include "frame/hullkit.h"

void HULLKIT::H_PYRO_SOUND() {}
