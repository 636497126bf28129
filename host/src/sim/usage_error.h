// An error in how hullsim was called: a bad option or a bad key script. The
// program ends with exit code 2 for these and 1 for every other error.
#pragma once

#include <stdexcept>

namespace hullhost::sim {

class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

} // namespace hullhost::sim
