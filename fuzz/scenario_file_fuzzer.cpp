// The host's scenario file reader. A scenario that it reads must come back
// equal from the text that it writes for it.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "fuzz_root.h"
#include "scenario/scenario_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    hullhost::ScenarioFile scenario;
    try {
        scenario = hullhost::ScenarioFile::Parse(fuzzing::AsText(data, size), "fuzz");
    } catch (const hullhost::ScenarioError &) {
        return 0;
    }
    if (hullhost::ScenarioFile::Parse(scenario.Text(), "written") != scenario)
        std::abort();
    return 0;
}
