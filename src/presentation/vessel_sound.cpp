// The vessel's link to the sound library.
#include "frame/hullkit.h"

// The vessel runs silently until it is linked.
void HULLKIT::ConnectVesselSound() {}

// Nothing is heard until the vessel is linked to the sound library.
void HULLKIT::PlayVesselSound(int, int, int) {}
