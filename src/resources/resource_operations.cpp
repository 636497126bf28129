// Resource tables: reloading a vessel's visuals and run-time tables.
#include "frame/hullkit.h"

void HULLKIT::ResetVisuals() {}
void HULLKIT::ClearRuntimeTables() {}
void HULLKIT::clbkVisualCreated(VISHANDLE, int) {}
void HULLKIT::clbkVisualDestroyed(VISHANDLE, int) {}
void HULLKIT::H_ANIM() {}
