// Mesh and texture files under the world's root, loaded on a module's
// request. Missing files and malformed lines go to the world's log.
#pragma once

#include <string>

#include "mesh.h"
#include "surface.h"

namespace hullhost {

class World;

// "Fleet\\Korvan" is Meshes/Fleet/Korvan.msh; a name that already ends in
// ".msh" keeps it.
std::string MeshFilePath(const World &w, const std::string &name);

// A mesh template. Shared ones are loaded once per name; the others anew at
// each call. Null if the file is missing.
Mesh *LoadWorldMesh(World &w, const std::string &name, bool shared);

// The surface of a texture under Textures/: the name as given or, without an
// extension, with ".dds". A missing file still gives a surface, marked not
// found, and a line in the log.
Surface *TextureByName(World &w, const std::string &name, SurfaceKind kind);

} // namespace hullhost
