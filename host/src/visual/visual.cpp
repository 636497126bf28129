#include "visual.h"

#include "core/world.h"

namespace hullhost {

Visual::Visual(const Vessel &v) {
    for (const auto &slot : v.meshes)
        SlotAdded(slot.deleted ? nullptr : slot.templ);
}

DevMesh *Visual::At(size_t idx) const { return idx < meshes_.size() ? meshes_[idx].get() : nullptr; }

void Visual::SlotAdded(const Mesh *templ) {
    meshes_.push_back(templ ? std::make_unique<DevMesh>(*templ) : nullptr);
}

void Visual::SlotCleared(size_t idx) {
    if (idx < meshes_.size())
        meshes_[idx].reset();
}

DevMesh *FindDevMesh(const World &w, DEVMESHHANDLE h) {
    if (!h)
        return nullptr;
    for (const auto &v : w.Vessels()) {
        if (!v->visual)
            continue;
        for (size_t i = 0; i < v->visual->Count(); ++i)
            if (DevMesh *m = v->visual->At(i); m && m->Handle() == h)
                return m;
    }
    return nullptr;
}

} // namespace hullhost
