// A scenario brought into a world, and a world written back as a scenario.
#pragma once

#include "scenario_file.h"

namespace hullhost {

class World;

// Sets the date (the time acceleration is the running program's to choose),
// then constructs every vessel of the scenario and hands it its lines
// (clbkSetClassCaps, clbkLoadStateEx), then post-creates every vessel in the
// scenario's order, then gives the focus to the named vessel, else to the
// first one. Throws std::runtime_error for an unknown class or a module that
// can't be loaded.
void LoadScenario(World &world, const ScenarioFile &scenario);

// The world as a scenario: the current date, the time acceleration when it
// isn't 1, the focus, and each vessel's block as its clbkSaveState writes
// it. The description, the other environment lines and the other sections
// come from `base`, the scenario that the world was loaded from.
ScenarioFile CaptureScenario(World &world, const ScenarioFile &base = {});

} // namespace hullhost
