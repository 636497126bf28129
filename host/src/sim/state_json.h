// The host-side state of a world as JSON, for outside tools and tests. The
// field names are fixed; new fields go into the function of their part.
#pragma once

#include <nlohmann/json.hpp>

#include "core/world.h"

namespace hullhost::sim {

// {"simt", "mjd", "focus", "annotations", "debugString", "bodies", "vessels"}:
// "bodies" holds the Sun, the Earth and the Moon with "name", "mass",
// "radius", "rpos" and "rvel" (relative to the Earth, global frame).
nlohmann::ordered_json WorldState(const World &world);
// One vessel: mass and shape, flight state (rpos and rvel relative to the
// Earth, global frame; "axes", its x, y and z axes in the global frame;
// "angularVel", vessel frame [rad/s]), propellants, thrusters, groups, meshes, docks,
// attachments, and the visual parts of state_json_visuals.h.
nlohmann::ordered_json VesselState(const World &world, const Vessel &v);

} // namespace hullhost::sim
