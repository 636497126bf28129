// The parameters of a particle stream, used by exhausts, fire, contrail and dust.
#pragma once

#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct PARTICLE_REC {
    static constexpr char kTypeName[] = "PARTICLE_REC";

    std::string name;
    PARTICLESTREAMSPEC spec{}; // key PSS; spec.tex from the texture record
    std::string tex;           // name of a TEXTURE_REC, or empty
};

template <> void HkResources<PARTICLE_REC>::ParseRecord(std::string name, PARTICLE_REC *record);
