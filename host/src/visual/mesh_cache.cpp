#include "mesh_cache.h"

namespace hullhost {

bool MeshCache::FindShared(const std::string &name, Mesh *&mesh) const {
    auto it = shared_.find(name);
    if (it == shared_.end())
        return false;
    mesh = it->second.get();
    return true;
}

Mesh *MeshCache::StoreShared(const std::string &name, std::unique_ptr<Mesh> mesh) {
    auto &slot = shared_[name];
    slot = std::move(mesh);
    return slot.get();
}

Mesh *MeshCache::StoreOwn(std::unique_ptr<Mesh> mesh) {
    own_.push_back(std::move(mesh));
    return own_.back().get();
}

Mesh *MeshCache::Lookup(MESHHANDLE h) const {
    if (!h)
        return nullptr;
    for (auto &[name, m] : shared_)
        if (m && m->Handle() == h)
            return m.get();
    for (auto &m : own_)
        if (m->Handle() == h)
            return m.get();
    return nullptr;
}

} // namespace hullhost
