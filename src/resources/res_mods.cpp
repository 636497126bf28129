// The run-time changes of the records, applied right after all records are
// made in the host, and written back as one RES_MODS line for each table.
#include "frame/hullkit.h"

void HULLKIT::ApplyResourceMods() {
    MeshTable.ApplyMods();
    AnimCtrlTable.ApplyMods();
    TankTable.ApplyMods();
    ThrusterGroupTable.ApplyMods();
}

void HULLKIT::WriteResModsAll(FILEHANDLE scn) {
    AnimCtrlTable.WriteResMods(scn, nullptr);
    MeshTable.WriteResMods(scn, nullptr);
    TankTable.WriteResMods(scn, nullptr);
    ThrusterGroupTable.WriteResMods(scn, nullptr);
}
