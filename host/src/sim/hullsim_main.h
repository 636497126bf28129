// The whole hullsim program behind main(): the command line, the run, and the
// exit code with one line on the error stream for a failure.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace hullhost::sim {

constexpr int kExitOk = 0;
constexpr int kExitRunError = 1;   // a missing file, an unknown class, a failed module...
constexpr int kExitUsageError = 2; // a bad option or key script

// `args` are the arguments after the program's name.
int HullsimMain(const std::vector<std::string> &args, const std::string &defaultRoot, std::ostream &out,
                std::ostream &err);

} // namespace hullhost::sim
