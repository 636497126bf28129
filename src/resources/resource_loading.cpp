// The resource tables read their records from the three configuration levels.
#include "frame/hullkit.h"

void HULLKIT::LoadResourceTables() {
    ParticleTable.Init(this);
    TextureTable.Init(this);
    BeaconTable.Init(this);
    TankTable.Init(this);
    ThrusterTable.Init(this);
    ThrusterGroupTable.Init(this);
    SoundTable.Init(this);
    MeshTable.Init(this);
    MaterialTable.Init(this);
    AnimTable.Init(this);
    AnimCtrlTable.Init(this);
    CameraTable.Init(this);
    WreckTable.Init(this);
    ChildTable.Init(this);
    SeparationTable.Init(this);
    SpotlightSetTable.Init(this);
    AeroTable.Init(this);
}
