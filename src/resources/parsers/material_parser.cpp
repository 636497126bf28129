// The reentry material record: materials of a mesh that glow or fade as the
// vessel heats up. It takes the mesh's host index and template from the mesh
// record, which is created before it.
#include "frame/hullkit.h"

template <> void HkResources<MATERIAL_REC>::ParseRecord(std::string name, MATERIAL_REC *record) {
    record->name = name;
    record->mesh = GetString(name, "Mesh");
    record->type = GetString(name, "Type");
    record->matList = GetIntList(name, "MatList");

    // A mesh name without a record leaves no mesh to act on.
    const MESH_REC *mesh = owner->MeshTable.Find(record->mesh);
    record->meshIndex = mesh ? mesh->index : 0;
    record->meshHandle = mesh ? mesh->handle : nullptr;
    record->hiddenState = true;

    if (record->type == "ReentryGlow") {
        record->kind = 0;
        owner->HasGlowMaterials = true;
    } else if (record->type == "ReentryAlpha") {
        record->kind = 1;
        owner->HasAlphaMaterials = true;
    }
}
