// Wind.
#include "frame/hullkit.h"

void HULLKIT::P_WINDS() {}
