// hullsim's run command: load a scenario into a world, run its frames with
// the key script, and write the scenario, the state and the telemetry at the
// end.
#pragma once

#include <string>

#include "options.h"

namespace hullhost::sim {

// Runs a scenario. The working directory is the root while the world exists
// and is restored afterwards. Throws UsageError for a bad key script and
// std::runtime_error for every other failure; --save, --state, --telemetry
// and --plot are written only when the whole run succeeded.
void RunScenario(const RunOptions &options);

// The scenario file that `name` means: the path as given if it is a file,
// else ROOT/Scenarios/name, else ROOT/Scenarios/name.scn. Throws
// std::runtime_error naming the places looked at.
std::string FindScenario(const std::string &name, const std::string &root);

} // namespace hullhost::sim
