// The lines of the resource tables: the records that the scenario brought in,
// and the textures replaced at run time.
#include <cstdio>

#include "frame/hullkit.h"

void HULLKIT::WriteResourceAll(FILEHANDLE scn, std::vector<std::string> *lines) {
    BeaconTable.WriteResourceLines(scn, lines);
    MeshTable.WriteResourceLines(scn, lines);
    MaterialTable.WriteResourceLines(scn, lines);
    AnimTable.WriteResourceLines(scn, lines);
    AnimCtrlTable.WriteResourceLines(scn, lines);
    SoundTable.WriteResourceLines(scn, lines);
    TextureTable.WriteResourceLines(scn, lines);
    ParticleTable.WriteResourceLines(scn, lines);
    TankTable.WriteResourceLines(scn, lines);
    ThrusterTable.WriteResourceLines(scn, lines);
    ThrusterGroupTable.WriteResourceLines(scn, lines);
    SpotlightSetTable.WriteResourceLines(scn, lines);
    CameraTable.WriteResourceLines(scn, lines);
    WreckTable.WriteResourceLines(scn, lines);
    ChildTable.WriteResourceLines(scn, lines);
    SeparationTable.WriteResourceLines(scn, lines);
}

void HULLKIT::WriteMeshTextures(FILEHANDLE scn, std::vector<std::string> *lines) {
    for (const MeshTextureEntry &entry : meshTextures) {
        char text[1024];
        std::snprintf(text, sizeof text, "%s %d %s", entry.mesh.c_str(), static_cast<int>(entry.index),
                      entry.texture.c_str());
        EmitScenarioLine(scn, lines, "MESH_TEXTURE", text);
    }
}
