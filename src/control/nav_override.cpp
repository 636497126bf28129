// The host's navigation modes, taken over by the vessel's own attitude loop.
#include "frame/hullkit.h"

// The attitude loop that would fly the taken-over modes comes with the
// navigation modes; until then the host keeps its modes.
void HULLKIT::clbkNavMode(int, bool) {}
void HULLKIT::ToggleNavOverride() {}
