// One host thruster with its exhaust flame and exhaust stream.
#pragma once

#include <cstdint>
#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct THRUSTER_REC {
    static constexpr char kTypeName[] = "THRUSTER_REC";

    std::string name;
    VECTOR3 pos{0, 0, 0};   // thrust attack point, vessel frame [m]
    VECTOR3 dir{0, 0, 0};   // thrust direction, vessel frame
    double thrust = 0.0;    // maximum thrust [N]
    std::string tank;       // name of a TANK_REC
    double ispMax = 0.0;    // vacuum specific impulse [m/s]
    double ispGr = 0.0;     // specific impulse at the reference pressure [m/s]
    std::string tex;        // name of a TEXTURE_REC, or empty
    double texL = 0.0;      // exhaust length scale
    double texW = 0.0;      // exhaust width scale
    double texLofs = 0.0;   // exhaust longitudinal offset
    std::string ps;         // name of a PARTICLE_REC, or empty
    VECTOR3 psPos{0, 0, 0}; // source point of the exhaust stream; zero for the thruster's own
    int32_t index = 0;      // position of `handle` in the vessel's thruster list
    PSTREAM_HANDLE stream = nullptr;
    THRUSTER_HANDLE handle = nullptr;
};

template <> void HkResources<THRUSTER_REC>::ParseRecord(std::string name, THRUSTER_REC *record);
