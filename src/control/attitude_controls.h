// The tuning of the three-axis attitude loop: six triples in the order pitch,
// yaw, roll. The first five hold radians and radians per second.
#pragma once

#include "OrbiterAPI.h"

struct AttitudeControlBlock {
    VECTOR3 ErrorLimit{};
    VECTOR3 RateLimitFar{};
    VECTOR3 CoastRateFar{};
    VECTOR3 RateLimitNear{};
    VECTOR3 CoastRateNear{};
    VECTOR3 BlendNear{};

    // The number at position `i` (0 to 17) of the configuration list.
    double &At(int i) {
        VECTOR3 *triples[] = {&ErrorLimit,    &RateLimitFar,  &CoastRateFar,
                              &RateLimitNear, &CoastRateNear, &BlendNear};
        return (*triples[i / 3])[i % 3];
    }
};
