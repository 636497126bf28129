// A vessel's own copy of a mesh template, as a renderer would hold it: the
// groups (with the geometry that animations move and the user flags that
// edits set), the materials and the texture surfaces.
#pragma once

#include <vector>

#include "mesh.h"

namespace hullhost {

class DevMesh {
  public:
    explicit DevMesh(const Mesh &templ)
        : groups(templ.groups), materials(templ.materials), textures(templ.textures),
          modulateMatAlpha(templ.modulateMatAlpha), templ_(&templ) {}

    const Mesh &Template() const { return *templ_; }
    // Puts the template's geometry back into every group. Allocates nothing.
    void ResetGeometry();

    std::vector<MeshGroup> groups;
    std::vector<MATERIAL> materials;
    std::vector<SURFHANDLE> textures; // texture index n is textures[n - 1]
    DWORD modulateMatAlpha = 0;

    DEVMESHHANDLE Handle() { return reinterpret_cast<DEVMESHHANDLE>(this); }

  private:
    const Mesh *templ_;
};

// Applies the user-flag part of a group edit: set, then add, then remove the
// bits. Returns 0, or 1 without an edit.
int EditGroupFlags(MeshGroup &group, const GROUPEDITSPEC *edit);

} // namespace hullhost
