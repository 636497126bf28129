// Resource tables: reloading a vessel's visuals and run-time tables.
#include "frame/hullkit.h"

void HULLKIT::ResetVisuals() {}
void HULLKIT::ClearRuntimeTables() {}
