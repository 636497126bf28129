// Numbers of a record compared in one go: a list of fields against the list
// they should hold.
#pragma once

#include <gmock/gmock.h>

#include <vector>

#include "OrbiterAPI.h"

using Numbers = std::vector<double>;

// The coordinates of the vectors, one after the other.
template <class... V> Numbers Of(const V &...v) {
    Numbers n;
    (n.insert(n.end(), {v.x, v.y, v.z}), ...);
    return n;
}

// Matches numbers equal to `want`, each within 1e-12.
inline auto Are(Numbers want) { return ::testing::Pointwise(::testing::DoubleNear(1e-12), want); }
