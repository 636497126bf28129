// Mesh templates and the device meshes of visuals: loading, materials,
// properties and group edits. Handles that name no mesh of this world are
// refused, not followed.
#include "OrbiterAPI.h"
#include "core/world.h"
#include "visual/asset_files.h"
#include "visual/dev_mesh.h"
#include "visual/visual.h"

using hullhost::DevMesh;
using hullhost::Mesh;
using hullhost::World;

namespace {

// Results of the calls that return a code.
constexpr int kOk = 0;
constexpr int kBadHandle = 3;
constexpr int kBadIndex = 4;

Mesh *Template(MESHHANDLE h) { return World::Current().meshCache.Lookup(h); }
DevMesh *Device(DEVMESHHANDLE h) { return hullhost::FindDevMesh(World::Current(), h); }

bool SetProperty(DWORD &modulateMatAlpha, DWORD property, DWORD value) {
    if (property != MESHPROPERTY_MODULATEMATALPHA)
        return false;
    modulateMatAlpha = value;
    return true;
}

} // namespace

MESHHANDLE oapiLoadMesh(const char *fname) {
    if (!fname)
        return nullptr;
    Mesh *m = hullhost::LoadWorldMesh(World::Current(), fname, false);
    return m ? m->Handle() : nullptr;
}

MESHHANDLE oapiLoadMeshGlobal(const char *fname) {
    if (!fname)
        return nullptr;
    Mesh *m = hullhost::LoadWorldMesh(World::Current(), fname, true);
    return m ? m->Handle() : nullptr;
}

DWORD oapiMeshGroupCount(MESHHANDLE hMesh) {
    Mesh *m = Template(hMesh);
    return m ? static_cast<DWORD>(m->groups.size()) : 0;
}

DWORD oapiMeshMaterialCount(MESHHANDLE hMesh) {
    Mesh *m = Template(hMesh);
    return m ? static_cast<DWORD>(m->materials.size()) : 0;
}

MATERIAL *oapiMeshMaterial(MESHHANDLE hMesh, DWORD idx) {
    Mesh *m = Template(hMesh);
    return m && idx < m->materials.size() ? &m->materials[idx] : nullptr;
}

int oapiSetMaterial(DEVMESHHANDLE hMesh, int matidx, const MATERIAL *mat) {
    DevMesh *m = Device(hMesh);
    if (!m || !mat)
        return kBadHandle;
    if (matidx < 0 || static_cast<size_t>(matidx) >= m->materials.size())
        return kBadIndex;
    m->materials[static_cast<size_t>(matidx)] = *mat;
    return kOk;
}

bool oapiSetMeshProperty(MESHHANDLE hMesh, DWORD property, DWORD value) {
    Mesh *m = Template(hMesh);
    return m && SetProperty(m->modulateMatAlpha, property, value);
}

bool oapiSetMeshProperty(DEVMESHHANDLE hMesh, DWORD property, DWORD value) {
    DevMesh *m = Device(hMesh);
    return m && SetProperty(m->modulateMatAlpha, property, value);
}

int oapiEditMeshGroup(DEVMESHHANDLE hMesh, DWORD grpidx, GROUPEDITSPEC *ges) {
    DevMesh *m = Device(hMesh);
    if (!m || !ges)
        return kBadHandle;
    if (grpidx >= m->groups.size())
        return kBadIndex;
    return hullhost::EditGroupFlags(m->groups[grpidx], ges);
}

int oapiEditMeshGroup(MESHHANDLE hMesh, DWORD grpidx, GROUPEDITSPEC *ges) {
    Mesh *m = Template(hMesh);
    if (!m || !ges)
        return kBadHandle;
    if (grpidx >= m->groups.size())
        return kBadIndex;
    return hullhost::EditGroupFlags(m->groups[grpidx], ges);
}
