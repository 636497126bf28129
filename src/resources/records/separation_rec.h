// The release impulses of a separated vessel.
#pragma once

#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct SEPARATION_REC {
    static constexpr char kTypeName[] = "SEPARATION_REC";

    std::string name;
    double vFrom = 0.0; // least release speed
    double vSpan = 0.0; // width of the random band above vFrom
    VECTOR3 f1From{0, 0, 0};
    VECTOR3 f1Span{0, 0, 0};
    VECTOR3 f1Pos{0, 0, 0};
    VECTOR3 f2From{0, 0, 0};
    VECTOR3 f2Span{0, 0, 0};
    VECTOR3 f2Pos{0, 0, 0};
};

template <> void HkResources<SEPARATION_REC>::ParseRecord(std::string name, SEPARATION_REC *record);
