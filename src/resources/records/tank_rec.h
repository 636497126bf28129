// A propellant resource, full at creation.
#pragma once

#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct TANK_REC {
    static constexpr char kTypeName[] = "TANK_REC";

    std::string name;
    double fuel = 0.0; // capacity [kg]
    PROPELLANT_HANDLE handle = nullptr;
};

template <> void HkResources<TANK_REC>::ParseRecord(std::string name, TANK_REC *record);
