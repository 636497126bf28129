// Changes to the vessel's meshes that live in its visual: replaced textures
// and hidden groups. A new visual starts from the mesh files, so the vessel
// keeps these lists and applies them each time a visual is made.
#pragma once

#include <cstdint>
#include <string>

struct MeshTextureEntry {
    std::string mesh;    // mesh record name
    int32_t index = 0;   // texture index in the mesh, from 1
    std::string texture; // texture record name
};

struct MeshGroupVisEntry {
    std::string mesh; // mesh record name
    int32_t group = 0;
    bool hidden = false;
};
