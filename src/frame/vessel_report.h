// The record of peer message 13, a byte layout shared with the controller
// vessel.
#pragma once

#include <cstddef>
#include <cstdint>

struct VesselReport {
    uint32_t object; // host handle (its low 32 bits), the own handle or 666
    char text[512];
    int32_t kind;
    double latitude;  // degrees
    double longitude; // degrees
    double altitude;  // above ground [m]
    double simTime;   // [s]
};

static_assert(offsetof(VesselReport, object) == 0);
static_assert(offsetof(VesselReport, text) == 4);
static_assert(offsetof(VesselReport, kind) == 516);
static_assert(offsetof(VesselReport, latitude) == 520);
static_assert(offsetof(VesselReport, longitude) == 528);
static_assert(offsetof(VesselReport, altitude) == 536);
static_assert(offsetof(VesselReport, simTime) == 544);
static_assert(sizeof(VesselReport) == 552);
