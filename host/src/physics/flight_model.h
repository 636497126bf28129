// The host's flight model: the bodies' motion, and each vessel's gravity,
// thrust, aerodynamics, rotation and ground contact.
#pragma once

#include "OrbiterAPI.h"

namespace hullhost {
class World;
class Vessel;
class Body;
} // namespace hullhost

namespace hullhost::physics {

struct SolarSystemOptions {
    bool earthJ2 = false; // the Earth's oblateness (J2) in its gravity
};

// Creates the Sun, the Earth and the Moon in an empty world, placed for the
// world's current date.
void InitSolarSystem(World &world);
void InitSolarSystem(World &world, const SolarSystemOptions &options);

// Places the bodies (position, velocity, rotation) for the world's current date.
void UpdateBodies(World &world);
// Places the bodies for `t` seconds after MJD 51544.5.
void PlaceBodies(World &world, double t);

// Advances every vessel by `simdt` seconds of simulation time, subdividing the
// step as accuracy needs, and moves the bodies along. Consumes propellant,
// applies and then clears the forces that the modules added for this frame.
// Does not advance world.simt; the caller does, before the call: the step
// runs from world.simt - simdt to world.simt, from the bodies' places as they
// stand to their places at world.simt.
void Advance(World &world, double simdt);

// The state records of the host API, read from and written to a vessel.
void GetStatus(const World &world, const Vessel &v, VESSELSTATUS &status);
void GetStatus2(const World &world, const Vessel &v, VESSELSTATUS2 &status);
void SetStatus(World &world, Vessel &v, const VESSELSTATUS &status);
void SetStatus2(World &world, Vessel &v, const VESSELSTATUS2 &status);

// Puts a vessel that hangs on a parent's attachment point where that point
// holds it: position, velocity, orientation and rotation follow the parent.
void PlaceOnParent(Vessel &child);

} // namespace hullhost::physics

namespace hullhost::physics {
// A child just released from `parent`'s point whose direction (parent frame)
// is `dir`: it leaves along that direction at `vel` m/s relative to the parent.
void Detach(Vessel &child, const Vessel &parent, const VECTOR3 &dir, double vel);
} // namespace hullhost::physics
