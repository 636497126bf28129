// The vessel's random draws. Every draw is formed as rand() / 32767.0 * span +
// from on a generator whose largest value is 32767, so that both ends of a band
// can come up. Libraries whose rand() reaches further are scaled down to that.
#pragma once

#include <algorithm>
#include <cstdlib>

#include "OrbiterAPI.h"

// One draw of the standard generator, from 0 to 32767.
inline int Rand15() {
    if constexpr (RAND_MAX == 32767) {
        return std::rand();
    } else {
        constexpr unsigned long long kBucket = (static_cast<unsigned long long>(RAND_MAX) + 1) / 32768;
        const unsigned long long scaled = static_cast<unsigned long long>(std::rand()) / kBucket;
        return static_cast<int>(std::min(scaled, 32767ULL));
    }
}

// A number from `from` to `from + span`.
inline double RandomDraw(double from, double span) { return Rand15() / 32767.0 * span + from; }

// Three independent draws; the first serves z, the second y, the third x.
inline VECTOR3 RandomVector(const VECTOR3 &from, const VECTOR3 &span) {
    VECTOR3 v{};
    v.z = RandomDraw(from.z, span.z);
    v.y = RandomDraw(from.y, span.y);
    v.x = RandomDraw(from.x, span.x);
    return v;
}
