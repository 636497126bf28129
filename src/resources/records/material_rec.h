// Materials of a mesh that glow or fade with reentry heating.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct MATERIAL_REC {
    static constexpr char kTypeName[] = "MATERIAL_REC";

    std::string name;
    std::string mesh;             // name of a MESH_REC
    std::string type;             // ReentryGlow or ReentryAlpha
    std::vector<int32_t> matList; // material indices in that mesh
    int32_t kind = 0;             // 0 ReentryGlow, 1 ReentryAlpha
    uint32_t meshIndex = 0;
    MESHHANDLE meshHandle = nullptr;
    bool hiddenState = false;
};

template <> void HkResources<MATERIAL_REC>::ParseRecord(std::string name, MATERIAL_REC *record);
