// A run of thrusters, consecutive in creation order, bound to one host group.
#pragma once

#include <cstdint>
#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct THRUSTERGROUP_REC {
    static constexpr char kTypeName[] = "THRUSTERGROUP_REC";

    std::string name;      // also selects the group type
    std::string firstThId; // name of the group's first THRUSTER_REC
    int32_t thCount = 0;   // number of thrusters in the group
    THGROUP_HANDLE handle = nullptr;
};

template <> void HkResources<THRUSTERGROUP_REC>::ParseRecord(std::string name, THRUSTERGROUP_REC *record);
