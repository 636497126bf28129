// A mesh of the vessel, with its load and visibility state.
#pragma once

#include <cstdint>
#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct MESH_REC {
    static constexpr char kTypeName[] = "MESH_REC";
    // Visibility of "EXTPASS": drawn in all views and in the external pass.
    static constexpr int32_t kExtPassVis = 0x13;

    std::string name;
    std::string file;      // mesh file as the host takes it, without root folder
    VECTOR3 pos{0, 0, 0};  // offset in the vessel frame
    std::string loadText;  // key Load, as written
    std::string visText;   // key Vis, as written
    bool load = false;     // current load state
    int32_t vis = 0;       // current visibility mode
    VECTOR3 pos0{0, 0, 0}; // the parse-time values, the reference for saved changes
    bool load0 = false;
    int32_t vis0 = 0;
    uint32_t index = 0; // mesh index in the host
    MESHHANDLE handle = nullptr;
    bool added = false; // the host has a mesh slot for it: `index` is valid
};

template <> void HkResources<MESH_REC>::ParseRecord(std::string name, MESH_REC *record);
