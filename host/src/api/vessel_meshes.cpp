// A vessel's mesh slots: which template is shown where, and when. A slot's
// index is its position in the list; deleting a mesh leaves its slot empty,
// so the indices of the others stay as they were.
#include "VesselAPI.h"
#include "core/vessel.h"
#include "core/world.h"
#include "visual/animation_apply.h"
#include "visual/visual.h"

using hullhost::AnimationComponent;
using hullhost::Mesh;
using hullhost::MeshSlot;
using hullhost::Vessel;
using hullhost::World;

namespace {

MeshSlot *LiveSlot(Vessel &v, UINT idx) {
    if (idx >= v.meshes.size() || v.meshes[idx].deleted)
        return nullptr;
    return &v.meshes[idx];
}

UINT AddSlot(Vessel &v, Mesh *templ, std::string file, const VECTOR3 *ofs) {
    MeshSlot slot;
    slot.templ = templ;
    slot.file = std::move(file);
    if (ofs)
        slot.offset = *ofs;
    v.meshes.push_back(std::move(slot));
    if (v.visual) {
        v.visual->SlotAdded(templ);
        hullhost::ApplyAnimations(v);
    }
    return static_cast<UINT>(v.meshes.size() - 1);
}

// Takes away the animation components that move groups of mesh `idx`, or of
// every mesh if `idx` is negative.
void DropComponentsOf(Vessel &v, long idx) {
    for (auto &anim : v.animations) {
        std::erase_if(anim->components, [&](const std::unique_ptr<AnimationComponent> &c) {
            if (!c->transform || (idx >= 0 && c->transform->mesh != static_cast<UINT>(idx)))
                return false;
            if (c->parent)
                std::erase(c->parent->children, c.get());
            for (AnimationComponent *child : c->children)
                child->parent = nullptr;
            return true;
        });
    }
}

} // namespace

UINT VESSEL::AddMesh(MESHHANDLE hMesh, const VECTOR3 *ofs) const {
    Mesh *templ = World::Current().meshCache.Lookup(hMesh);
    return AddSlot(*vessel, templ, templ ? templ->name : std::string(), ofs);
}

UINT VESSEL::AddMesh(const char *meshname, const VECTOR3 *ofs) const {
    const std::string name = meshname ? meshname : "";
    return AddSlot(*vessel, World::Current().meshCache.Lookup(oapiLoadMeshGlobal(name.c_str())), name, ofs);
}

bool VESSEL::DelMesh(UINT idx, bool retain_anim) const {
    MeshSlot *slot = LiveSlot(*vessel, idx);
    if (!slot)
        return false;
    slot->deleted = true;
    slot->templ = nullptr;
    if (!retain_anim)
        DropComponentsOf(*vessel, idx);
    if (vessel->visual)
        vessel->visual->SlotCleared(idx);
    return true;
}

void VESSEL::ClearMeshes(bool retain_anim) const {
    vessel->meshes.clear();
    if (!retain_anim)
        DropComponentsOf(*vessel, -1);
    if (vessel->visual)
        vessel->visual->Clear();
}

UINT VESSEL::GetMeshCount() const { return static_cast<UINT>(vessel->meshes.size()); }

MESHHANDLE VESSEL::GetMeshTemplate(UINT idx) const {
    MeshSlot *slot = LiveSlot(*vessel, idx);
    return slot && slot->templ ? slot->templ->Handle() : nullptr;
}

bool VESSEL::SetMeshVisibilityMode(UINT idx, WORD mode) const {
    MeshSlot *slot = LiveSlot(*vessel, idx);
    if (!slot)
        return false;
    slot->visibility = mode;
    return true;
}

WORD VESSEL::GetMeshVisibilityMode(UINT idx) const {
    MeshSlot *slot = LiveSlot(*vessel, idx);
    return slot ? slot->visibility : WORD{MESHVIS_NEVER};
}

bool VESSEL::ShiftMesh(UINT idx, const VECTOR3 &ofs) const {
    MeshSlot *slot = LiveSlot(*vessel, idx);
    if (!slot)
        return false;
    slot->offset = slot->offset + ofs;
    return true;
}

bool VESSEL::GetMeshOffset(UINT idx, VECTOR3 &ofs) const {
    MeshSlot *slot = LiveSlot(*vessel, idx);
    if (!slot)
        return false;
    ofs = slot->offset;
    return true;
}

DEVMESHHANDLE VESSEL::GetDevMesh(VISHANDLE vis, UINT idx) const {
    if (!vessel->visual || vis != vessel->visual->Handle())
        return nullptr;
    hullhost::DevMesh *m = vessel->visual->At(idx);
    return m ? m->Handle() : nullptr;
}
