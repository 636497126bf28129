// One entry of the pitch profile that the attitude loop follows.
#pragma once

#include <cstdint>

enum PitchProfileKind : int32_t {
    PITCH_UNKNOWN = -1, // a kind word outside the three; the loop never takes it
    PITCH_CONST = 0,
    PITCH_LIN = 1,
    PITCH_PERI = 2,
};

struct PitchProfileEntry {
    int32_t kind = PITCH_UNKNOWN;
    double start = 0.0;                         // s, the end time of the entry before
    double end = 0.0;                           // s; -1.0 means open-ended
    double firstValue = 0.0, secondValue = 0.0; // degrees
};
