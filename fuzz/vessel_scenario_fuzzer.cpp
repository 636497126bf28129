// A vessel's two passes over its scenario block, RES_MODS and RESOURCE lines
// among them. The input is the block of a Korvan stage, as the shipped
// configuration makes it; the scenario is read by the host, loaded into a
// world, flown for two frames and saved, and the host reads the saved text.
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/world.h"
#include "fuzz_root.h"
#include "scenario/scenario_file.h"
#include "scenario/scenario_world.h"

namespace {

// Loads a scenario with the stage's module, flies two frames and returns the
// saved scenario. The frames are as long as hullsim's by default.
hullhost::ScenarioFile Fly(const hullhost::ScenarioFile &scenario) {
    hullhost::World world(fuzzing::Root());
    world.seed = 1;
    fuzzing::UseModule(world, fuzzing::FleetModule::Korvan);
    hullhost::LoadScenario(world, scenario);
    world.Frame(0.02);
    world.Frame(0.02);
    return hullhost::CaptureScenario(world, scenario);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzzing::Root();
    const std::string text = std::string("BEGIN_SHIPS\nKorvan-1:") + fuzzing::kHostClass + "\n" +
                             std::string(fuzzing::AsText(data, size)) + "\nEND\nEND_SHIPS\n";
    hullhost::ScenarioFile scenario;
    try {
        scenario = hullhost::ScenarioFile::Parse(text, "fuzz");
    } catch (const hullhost::ScenarioError &) {
        return 0;
    }
    // Further blocks in the input are stages too: a class that the root lacks
    // is the host's error, not the vessel's.
    for (const hullhost::VesselBlock &block : scenario.vessels)
        if (block.className != fuzzing::kHostClass)
            return 0;
    // What the vessel writes the host must be able to read back. A stage that
    // crashed without a wreck class to leave leaves no vessel to write.
    const hullhost::ScenarioFile saved = Fly(scenario);
    if (!saved.vessels.empty())
        hullhost::ScenarioFile::Parse(saved.Text(), "saved");
    return 0;
}
