// The configuration reader: a vessel's three files, their merge, the macros,
// the record tables with their headers and the plain keys, and everything the
// vessel builds from them.
//
// Input: one byte that picks the module ('G' the Generic module, any other
// byte Korvan's), then the common file, the class file and the variant file,
// separated by form feeds. The files go into the root where the module looks
// for them; a vessel of the module is made from a scenario block, flies two
// frames and is saved.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/world.h"
#include "fuzz_root.h"
#include "scenario/scenario_world.h"

namespace {

constexpr char kSeparator = '\f';

// The next file of the input, up to the next separator or the end.
std::string_view NextFile(std::string_view &rest) {
    const size_t end = rest.find(kSeparator);
    const std::string_view file = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return file;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    if (size == 0)
        return 0;
    const fuzzing::FleetModule module =
        data[0] == 'G' ? fuzzing::FleetModule::Generic : fuzzing::FleetModule::Korvan;
    const std::string name = module == fuzzing::FleetModule::Generic ? "Generic" : "Korvan";
    std::string_view rest = fuzzing::AsText(data + 1, size - 1);
    const std::string_view common = NextFile(rest);
    const std::string_view cls = NextFile(rest);
    const std::string_view variant = NextFile(rest);

    const std::string folder = "Config/Vessels/Fleet/";
    fuzzing::WriteRootFile(folder + "HullKit.cfg", common);
    fuzzing::WriteRootFile(folder + name + ".cfg", cls);
    fuzzing::WriteRootFile(folder + name + "/Fuzz.cfg", variant);

    hullhost::World world(fuzzing::Root());
    world.seed = 1;
    fuzzing::UseModule(world, module);
    hullhost::ScenarioFile scenario;
    scenario.vessels.push_back({"V",
                                fuzzing::kHostClass,
                                {"STATUS Orbiting Earth", "RPOS 6571010 0 0", "RVEL 0 0 7788.48",
                                 "AROT 0 0 0", "VROT 0 0 0", "SUBTYPE Fuzz"}});
    hullhost::LoadScenario(world, scenario);
    world.Frame(0.02);
    world.Frame(0.02);
    hullhost::CaptureScenario(world, scenario).Text();
    return 0;
}
