// The visual parts of a vessel in the --state JSON: exhausts, particle
// streams, beacons, animations, spot lights, and what each mesh slot's
// template and device mesh hold.
#pragma once

#include <nlohmann/json.hpp>

#include "core/world.h"

namespace hullhost::sim {

// [{"thruster", "lscale", "wscale", "lofs", "texture", "level", ["pos", "dir"]}]
nlohmann::ordered_json Exhausts(const World &world, const Vessel &v);
// [{"thruster" (-1 for none), "level", "texture", ["pos"], ["dir"], "params": {...}}];
// "level" is read through the pointer the module gave, or from the thruster.
nlohmann::ordered_json ParticleStreams(const World &world, const Vessel &v);
// [{"shape", "pos", "col", "size", "falloff", "period", "duration", "tofs", "active"}]
nlohmann::ordered_json Beacons(const Vessel &v);
// [{"defaultState", "state", "components": [{"state0", "state1", "type", "mesh",
// "groups", "parent": [animation, component] or null, ...}]}]
nlohmann::ordered_json Animations(const Vessel &v);
// [{"pos", "dir", "range", "umbra", "penumbra", "active"}]
nlohmann::ordered_json Lights(const Vessel &v);
// For mesh slot `idx`: {"groups"} and, while the vessel has a visual,
// "device": {"userFlags", "textures", "materials", "modulateMatAlpha"}.
nlohmann::ordered_json MeshDetails(const World &world, const Vessel &v, size_t idx);

} // namespace hullhost::sim
