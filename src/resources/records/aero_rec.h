// Aerodynamic data of the vessel's airfoils.
#pragma once

#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct AERO_REC {
    static constexpr char kTypeName[] = "AERO_REC";

    std::string name;
    VECTOR3 centerOfPressure{0, 0, 0};
    double wingChord = 0.0;
    double wingS = 0.0;
    double wingAspect = 0.0;
    double dcMomentMax = 0.0;
    double cdragMin = 0.0;
    double cdragMax = 0.0;
    double cdragSpan = 0.0; // cdragMax - cdragMin
};

template <> void HkResources<AERO_REC>::ParseRecord(std::string name, AERO_REC *record);
