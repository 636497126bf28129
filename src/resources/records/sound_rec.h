// A wave file and its play mode; the table index is the wave number.
#pragma once

#include <cstdint>
#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct SOUND_REC {
    static constexpr char kTypeName[] = "SOUND_REC";

    std::string name;
    std::string file;
    int32_t mode = 0; // play mode, DEFAULT 0 to RADIO_SOUND 8
};

template <> void HkResources<SOUND_REC>::ParseRecord(std::string name, SOUND_REC *record);
