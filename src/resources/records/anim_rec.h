// One component of a host animation. The transform objects live as long as the record,
// since the host keeps pointers to them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct ANIM_REC {
    static constexpr char kTypeName[] = "ANIM_REC";

    std::string name;
    int32_t type = 0;      // 1 rotate, 2 translate, 3 scale
    std::string mesh;      // name of a MESH_REC
    VECTOR3 vec1{0, 0, 0}; // rotate, scale: reference point; translate: shift
    VECTOR3 vec2{0, 0, 0}; // rotate: axis; scale: scale
    double deg = 0.0;      // rotate: angle [deg]
    double from = 0.0;     // component's state at its start
    double to = 0.0;       // component's state at its end
    double start = 0.0;    // initial state of the host animation
    std::string existing;  // ANIM_REC whose animation this component joins; empty for a new one
    std::string parent;    // parent ANIM_REC; empty for none
    std::vector<int32_t> groups;
    int32_t groupCount = 0;
    uint32_t *groupArray = nullptr; // first group in the vessel's group store
    MGROUP_ROTATE *rotate = nullptr;
    MGROUP_TRANSLATE *translate = nullptr;
    MGROUP_SCALE *scale = nullptr;
    std::unique_ptr<MGROUP_TRANSFORM> transform; // owns the one of the three above
    uint32_t animation = 0;
    ANIMATIONCOMPONENT_HANDLE component = nullptr;
};

template <> void HkResources<ANIM_REC>::ParseRecord(std::string name, ANIM_REC *record);
