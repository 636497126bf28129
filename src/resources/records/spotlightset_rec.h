// A set of floodlights. Its name is only its key in the table.
#pragma once

#include <cstdint>
#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct SPOTLIGHTSET_REC {
    static constexpr char kTypeName[] = "SPOTLIGHTSET_REC";

    VECTOR3 pos{0, 0, 0};
    int32_t cols = 0;
    int32_t rows = 0;
    double len = 0.0;
    double wid = 0.0;
    double faceWidth = 0.0;
    double azm = 0.0; // [deg]
    double elev = 0.0;
    double dAzm = 0.0;
    double dElev = 0.0;
    double dHorStep = 0.0;
    double dVertStep = 0.0;
    double lightAzmAngle = 0.0;
    LightEmitter *Emitter = nullptr; // the set's spot light, owned by the host
};

template <> void HkResources<SPOTLIGHTSET_REC>::ParseRecord(std::string name, SPOTLIGHTSET_REC *record);
