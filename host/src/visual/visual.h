// What a renderer would hold for one vessel: a device mesh for each of its
// mesh slots. A headless host has no camera, so every vessel with a module
// gets one (see visual_lifecycle.h).
#pragma once

#include <memory>
#include <vector>

#include "OrbiterAPI.h"
#include "dev_mesh.h"

namespace hullhost {

class Vessel;
class World;

class Visual {
  public:
    // Device meshes for the vessel's current mesh slots.
    explicit Visual(const Vessel &v);

    // The device mesh of a slot; null for an empty slot or a bad index.
    DevMesh *At(size_t idx) const;
    // Follows the vessel's slots: a mesh added, removed, or all removed.
    void SlotAdded(const Mesh *templ);
    void SlotCleared(size_t idx);
    void Clear() { meshes_.clear(); }
    size_t Count() const { return meshes_.size(); }

    VISHANDLE Handle() { return reinterpret_cast<VISHANDLE>(this); }

  private:
    std::vector<std::unique_ptr<DevMesh>> meshes_;
};

// The device mesh behind a handle, in any vessel's visual; null if none.
DevMesh *FindDevMesh(const World &w, DEVMESHHANDLE h);

} // namespace hullhost
