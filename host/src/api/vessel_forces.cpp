// VESSEL: the forces on a vessel.
#include "VesselAPI.h"
#include "core/vessel.h"
#include "core/world.h"
#include "physics/flight_queries.h"

using hullhost::World;

void VESSEL::AddForce(const VECTOR3 &F, const VECTOR3 &r) const { vessel->forces.push_back({F, r}); }

void VESSEL::GetThrustVector(VECTOR3 &T) const {
    T = hullhost::physics::VesselForces(World::Current(), *vessel).thrust;
}

bool VESSEL::GetWeightVector(VECTOR3 &G) const {
    G = hullhost::physics::VesselForces(World::Current(), *vessel).weight;
    return !World::Current().bodies.empty();
}

bool VESSEL::GetLiftVector(VECTOR3 &L) const {
    L = hullhost::physics::VesselForces(World::Current(), *vessel).lift;
    return length(L) > 0.0;
}

bool VESSEL::GetDragVector(VECTOR3 &D) const {
    D = hullhost::physics::VesselForces(World::Current(), *vessel).drag;
    return length(D) > 0.0;
}

bool VESSEL::GetForceVector(VECTOR3 &F) const {
    F = hullhost::physics::VesselForces(World::Current(), *vessel).total;
    return true;
}
