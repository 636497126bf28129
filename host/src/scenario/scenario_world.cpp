#include "scenario_world.h"

#include <algorithm>
#include <stdexcept>

#include "core/printable_text.h"
#include "core/world.h"
#include "physics/flight_model.h"

namespace hullhost {

namespace {

bool StillExists(const World &world, const Vessel *v) {
    const auto &all = world.Vessels();
    return std::any_of(all.begin(), all.end(), [v](auto &p) { return p.get() == v; });
}

} // namespace

void LoadScenario(World &world, const ScenarioFile &scenario) {
    if (scenario.mjd) {
        world.mjd0 = *scenario.mjd;
        physics::UpdateBodies(world);
    }
    std::vector<Vessel *> created;
    for (const auto &block : scenario.vessels) {
        Vessel *v = nullptr;
        try {
            v = &world.ConstructVessel(block.name, block.className);
        } catch (const std::runtime_error &e) {
            throw std::runtime_error("vessel " + Quoted(block.name) + ": " + e.what());
        }
        created.push_back(v);
        world.LoadVesselState(*v, block.lines);
    }
    // A module may delete a vessel while the others are being set up.
    for (Vessel *v : created)
        if (StillExists(world, v))
            world.PostCreate(*v);
    Vessel *focus = scenario.focus.empty() ? nullptr : world.FindVessel(scenario.focus);
    if (!focus || !focus->focusEnabled) {
        focus = nullptr;
        for (auto &v : world.Vessels())
            if (v->focusEnabled) {
                focus = v.get();
                break;
            }
    }
    world.SetFocus(focus);
}

ScenarioFile CaptureScenario(World &world, const ScenarioFile &base) {
    ScenarioFile scn;
    scn.description = base.description;
    scn.environment = base.environment;
    scn.otherSections = base.otherSections;
    scn.mjd = world.Mjd();
    if (world.accel != 1.0)
        scn.timeAccel = world.accel;
    scn.focus = world.focus ? world.focus->Name() : std::string();
    // A module may create vessels while it saves; they are written too.
    for (size_t i = 0; i < world.Vessels().size(); ++i) {
        Vessel *v = world.Vessels()[i].get();
        if (!v->iface)
            continue;
        LineFile file;
        {
            CallbackScope scope(world, v);
            static_cast<VESSEL2 *>(v->iface)->clbkSaveState(file.Handle());
        }
        scn.vessels.push_back({v->Name(), v->ClassName(), file.Written()});
    }
    return scn;
}

} // namespace hullhost
