// A mesh as read from its file: the template that vessels share. Vessels
// don't draw from it directly; each visual copies what it may change.
#pragma once

#include <string>
#include <vector>

#include "OrbiterAPI.h"

namespace hullhost {

struct MeshGroup {
    std::string label;
    std::vector<NTVERTEX> vertices;
    std::vector<WORD> indices; // three per triangle, into `vertices`
    int material = -1;         // index into the mesh's materials, -1 for none
    DWORD texture = 0;         // texture index (from 1), 0 for none
    DWORD userFlag = 0;
};

// The material every MATERIAL line starts from.
inline constexpr MATERIAL kDefaultMaterial{{1, 1, 1, 1}, {1, 1, 1, 1}, {0, 0, 0, 1}, {0, 0, 0, 1}, 0.0f};

class Mesh {
  public:
    std::string name; // as the module named it, "Fleet\\Korvan"
    std::vector<MeshGroup> groups;
    std::vector<MATERIAL> materials;
    std::vector<std::string> textureNames; // texture index n names textureNames[n - 1]
    std::vector<SURFHANDLE> textures;      // the surfaces of textureNames, in the same order
    DWORD modulateMatAlpha = 0;            // MESHPROPERTY_MODULATEMATALPHA

    MESHHANDLE Handle() { return reinterpret_cast<MESHHANDLE>(this); }
};

} // namespace hullhost
