// The world's mesh templates: those shared by name (oapiLoadMeshGlobal) and
// those loaded for one caller (oapiLoadMesh). All live as long as the world.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "mesh.h"

namespace hullhost {

class MeshCache {
  public:
    // Whether a shared name was asked for before; `mesh` is its template,
    // null if its file was missing then.
    bool FindShared(const std::string &name, Mesh *&mesh) const;
    Mesh *StoreShared(const std::string &name, std::unique_ptr<Mesh> mesh);
    Mesh *StoreOwn(std::unique_ptr<Mesh> mesh);
    // The template behind a handle, or null if the handle isn't one of ours.
    Mesh *Lookup(MESHHANDLE h) const;

  private:
    std::map<std::string, std::unique_ptr<Mesh>> shared_;
    std::vector<std::unique_ptr<Mesh>> own_;
};

} // namespace hullhost
