// The vessel's meshes by record name: loading, visibility, replaced textures
// and hidden groups. Texture and group changes are also kept in lists, so
// that each new visual gets them again.
#include <algorithm>
#include <iterator>

#include "frame/hullkit.h"

namespace {

// User flags of a hidden group: no shadow, not drawn, not lit.
constexpr DWORD kHiddenGroupFlags = 7;

} // namespace

void HULLKIT::LoadMesh(MESH_REC *record, bool force, bool extPass) {
    if (force)
        record->load = true;
    if (!record->load)
        return;
    // A mesh is added once: a further request only sets its visibility, so
    // its index and the meshes behind it stay as they are.
    if (!record->added) {
        record->handle = oapiLoadMeshGlobal(record->file.c_str());
        record->index = AddMesh(record->handle, &record->pos);
        record->added = true;
    }
    if (extPass)
        record->vis = MESH_REC::kExtPassVis;
    SetMeshVisibilityMode(record->index, static_cast<WORD>(record->vis));
}

void HULLKIT::LoadMeshByName(const std::string &name, bool force, bool extPass) {
    if (MESH_REC *record = MeshTable.Find(name))
        LoadMesh(record, force, extPass);
}

void HULLKIT::LoadMeshByName(const char *name, bool force, bool extPass) {
    if (MESH_REC *record = MeshTable.Find(name))
        LoadMesh(record, force, extPass);
}

void HULLKIT::HideMesh(const std::string &name) { SetMeshVis(name, MESHVIS_NEVER); }

void HULLKIT::ShowMesh(const std::string &name) { SetMeshVis(name, MESHVIS_ALWAYS); }

void HULLKIT::SetMeshVis(const std::string &name, int32_t mode) {
    MESH_REC *record = MeshTable.Find(name);
    if (!record)
        return;
    record->vis = mode;
    // A mesh that isn't in the host yet gets the mode when it is loaded.
    if (record->added)
        SetMeshVisibilityMode(record->index, static_cast<WORD>(mode));
}

bool HULLKIT::SetMeshTexture(const std::string &mesh, int32_t index, const std::string &texture, bool now) {
    if (!MeshTable.Find(mesh) || !TextureTable.Find(texture))
        return false;
    std::erase_if(meshTextures,
                  [&](const MeshTextureEntry &entry) { return entry.mesh == mesh && entry.index == index; });
    meshTextures.push_back({mesh, index, texture});
    if (now && visual)
        ApplyMeshTexture(mesh, index, texture);
    return true;
}

void HULLKIT::ApplyMeshTexture(const std::string &mesh, int32_t index, const std::string &texture) {
    const MESH_REC *record = MeshTable.Find(mesh);
    const TEXTURE_REC *surface = TextureTable.Find(texture);
    if (!visual || !record || !record->added || !surface || index < 0)
        return;
    if (DEVMESHHANDLE device = GetDevMesh(visual, record->index))
        oapiSetTexture(device, static_cast<DWORD>(index), surface->surface);
}

void HULLKIT::SetGroupVis(const std::string &mesh, int32_t group, bool hidden) {
    const MESH_REC *record = MeshTable.Find(mesh);
    if (!visual || !record || !record->added || group < 0 ||
        static_cast<DWORD>(group) >= oapiMeshGroupCount(record->handle))
        return;
    DEVMESHHANDLE device = GetDevMesh(visual, record->index);
    if (!device)
        return;
    GROUPEDITSPEC spec{};
    spec.flags = GRPEDIT_SETUSERFLAG;
    spec.UsrFlag = hidden ? kHiddenGroupFlags : 0;
    oapiEditMeshGroup(device, static_cast<DWORD>(group), &spec);
}

void HULLKIT::SetGroupVisSaved(const std::string &mesh, int32_t group, bool hidden, bool defaultHidden) {
    SetGroupVis(mesh, group, hidden);
    auto last = std::find_if(meshGroupVis.rbegin(), meshGroupVis.rend(), [&](const MeshGroupVisEntry &entry) {
        return entry.mesh == mesh && entry.group == group;
    });
    if (hidden != defaultHidden) {
        if (last == meshGroupVis.rend())
            meshGroupVis.push_back({mesh, group, hidden});
        else
            last->hidden = hidden; // an entry from the scenario may say the opposite
    } else if (last != meshGroupVis.rend()) {
        meshGroupVis.erase(std::next(last).base());
    }
}
