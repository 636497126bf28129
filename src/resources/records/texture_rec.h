// A texture and how it is loaded.
#pragma once

#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct TEXTURE_REC {
    static constexpr char kTypeName[] = "TEXTURE_REC";

    std::string name;
    std::string type; // EXHAUST, PARTICLE, DYNAMIC, SURFHANDLE or HBITMAP
    std::string file;
    SURFHANDLE surface = nullptr; // a bitmap handle for HBITMAP; null for an unknown type
};

template <> void HkResources<TEXTURE_REC>::ParseRecord(std::string name, TEXTURE_REC *record);
