// A cockpit camera position; the first of the table is the default camera.
#pragma once

#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct CAMERA_REC {
    static constexpr char kTypeName[] = "CAMERA_REC";

    std::string name;
    VECTOR3 pos{0, 0, 0};
    VECTOR3 dir{0, 0, 0};
    double tilt = 0.0; // [rad]
    bool disabled = false;
    double limRotLeft = 0.0; // rotation limits [rad]
    double limRotRight = 0.0;
    double limRotUp = 0.0;
    double limRotDown = 0.0;
};

template <> void HkResources<CAMERA_REC>::ParseRecord(std::string name, CAMERA_REC *record);
