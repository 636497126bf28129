// A beacon light. It has no name field: its name is only its key in the table.
// The host keeps pointers to `spec` and, through it, to `pos` and `color`.
#pragma once

#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct BEACON_REC {
    static constexpr char kTypeName[] = "BEACON_REC";

    VECTOR3 pos{0, 0, 0};
    VECTOR3 color{0, 0, 0};
    BEACONLIGHTSPEC spec{}; // shape, size, falloff, period, duration, tofs; pos and col point above
};

template <> void HkResources<BEACON_REC>::ParseRecord(std::string name, BEACON_REC *record);
