// The host's visual of the vessel: kept while it exists, and given the
// shadow edit, the replaced textures and the hidden groups each time it is made.
#include "frame/hullkit.h"

void HULLKIT::clbkVisualCreated(VISHANDLE vis, int) {
    visual = vis;
    if (hideShadows)
        SuppressShadows();
    for (const MeshTextureEntry &entry : meshTextures)
        ApplyMeshTexture(entry.mesh, entry.index, entry.texture);
    for (const MeshGroupVisEntry &entry : meshGroupVis)
        SetGroupVis(entry.mesh, entry.group, entry.hidden);
}

void HULLKIT::clbkVisualDestroyed(VISHANDLE, int) { visual = nullptr; }

void HULLKIT::SuppressShadows() {
    if (!visual)
        return;
    GROUPEDITSPEC spec{};
    spec.flags = GRPEDIT_ADDUSERFLAG;
    spec.UsrFlag = 1; // casts no shadow
    // Meshes in table order; the walk ends at the first one that has no
    // device mesh or no template, such as a mesh that wasn't loaded.
    for (int32_t i = 0; i < MeshTable.Count(); ++i) {
        const MESH_REC *record = MeshTable.At(i);
        DEVMESHHANDLE device = record ? GetDevMesh(visual, record->index) : nullptr;
        if (!device || !record->handle)
            return;
        const DWORD groups = oapiMeshGroupCount(record->handle);
        for (DWORD group = 0; group < groups; ++group)
            oapiEditMeshGroup(device, group, &spec);
    }
}
