// A wreck piece left by a crash. Its name is only its key in the table.
#pragma once

#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct WRECK_REC {
    static constexpr char kTypeName[] = "WRECK_REC";

    std::string file; // wreck text
};

template <> void HkResources<WRECK_REC>::ParseRecord(std::string name, WRECK_REC *record);
