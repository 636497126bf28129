// The records come into being in the host, table after table. A record may
// refer to records of tables made before its own, and to earlier records of
// its own table.
#include "frame/hullkit.h"

void HULLKIT::BuildResources() {
    AddDefaultResources();
    ReadResourceLines();
    ReadResModsLines();
    CreateResourceTables();
    ApplyResourceMods();
}

void HULLKIT::CreateResourceTables() {
    BeaconTable.CreateAll();
    MeshTable.CreateAll();
    MaterialTable.CreateAll();
    AnimTable.CreateAll();
    AnimCtrlTable.CreateAll();
    SoundTable.CreateAll();
    ConnectVesselSound();
    TextureTable.CreateAll();
    ParticleTable.CreateAll();
    TankTable.CreateAll();
    ThrusterTable.CreateAll();
    ThrusterGroupTable.CreateAll();
    SpotlightSetTable.CreateAll();
    CameraTable.CreateAll();
    WreckTable.CreateAll();
    ChildTable.CreateAll();
    SeparationTable.CreateAll();
    AeroTable.CreateAll();

    // The host keeps the beacon parameter blocks by pointer; the records stay put.
    for (int32_t i = 0; i < BeaconTable.Count(); ++i)
        if (BEACON_REC *beacon = BeaconTable.At(i))
            AddBeacon(&beacon->spec);
    BuildSpotlights();

    CurrentCamera = CameraTable.NameAt(0);
}

void HULLKIT::FindMainTank() {
    MainTank = nullptr;
    if (const TANK_REC *main = TankTable.Find("Main"))
        MainTank = main->handle;
}
