// Reads the host's text mesh format (docs/mesh-format.md). A malformed line
// is skipped and noted; whatever else the file holds is kept.
#pragma once

#include <istream>
#include <memory>
#include <string>
#include <vector>

#include "mesh.h"

namespace hullhost {

struct MeshLoadNotes {
    int skipped = 0;                // lines skipped or values corrected
    std::vector<std::string> first; // the first few, "line 12: ..."
    void Add(int line, const std::string &what);
};

Mesh ParseMesh(std::istream &in, MeshLoadNotes &notes);

// Null if the file can't be opened.
std::unique_ptr<Mesh> LoadMeshFile(const std::string &path, MeshLoadNotes &notes);

} // namespace hullhost
