// VESSEL: position, velocity and orientation in the host's frames.
#include "VesselAPI.h"
#include "core/body.h"
#include "core/vessel.h"
#include "core/world.h"
#include "physics/flight_queries.h"
#include "physics/rotation.h"

using hullhost::Object;
using hullhost::World;

namespace {
OBJHANDLE HandleOf(const hullhost::Body *b) {
    return b ? const_cast<hullhost::Body *>(b)->Handle() : nullptr;
}
} // namespace

OBJHANDLE VESSEL::GetSurfaceRef() const {
    return HandleOf(hullhost::physics::SurfaceRef(World::Current(), *vessel));
}

OBJHANDLE VESSEL::GetGravityRef() const {
    return HandleOf(hullhost::physics::GravityRef(World::Current(), *vessel));
}

void VESSEL::GetGlobalPos(VECTOR3 &pos) const { pos = vessel->pos; }
void VESSEL::GetGlobalVel(VECTOR3 &vel) const { vel = vessel->vel; }

void VESSEL::GetRelativePos(OBJHANDLE hRef, VECTOR3 &pos) const {
    pos = vessel->pos;
    if (World::Current().IsObject(hRef)) {
        pos -= reinterpret_cast<Object *>(hRef)->pos;
    }
}

void VESSEL::GetRelativeVel(OBJHANDLE hRef, VECTOR3 &vel) const {
    vel = vessel->vel;
    if (World::Current().IsObject(hRef)) {
        vel -= reinterpret_cast<Object *>(hRef)->vel;
    }
}

void VESSEL::GetRotationMatrix(MATRIX3 &R) const { R = vessel->rot; }
void VESSEL::SetRotationMatrix(const MATRIX3 &R) const {
    vessel->rot = hullhost::physics::Orthonormalised(R);
}

void VESSEL::GlobalRot(const VECTOR3 &rloc, VECTOR3 &rglob) const { rglob = mul(vessel->rot, rloc); }
void VESSEL::Global2Local(const VECTOR3 &glob, VECTOR3 &loc) const {
    loc = tmul(vessel->rot, glob - vessel->pos);
}
void VESSEL::Local2Global(const VECTOR3 &loc, VECTOR3 &glob) const {
    glob = vessel->pos + mul(vessel->rot, loc);
}

void VESSEL::HorizonRot(const VECTOR3 &loc, VECTOR3 &hor) const {
    const MATRIX3 h = hullhost::physics::VesselHorizon(World::Current(), *vessel);
    hor = tmul(h, mul(vessel->rot, loc));
}

void VESSEL::HorizonInvRot(const VECTOR3 &hor, VECTOR3 &loc) const {
    const MATRIX3 h = hullhost::physics::VesselHorizon(World::Current(), *vessel);
    loc = tmul(vessel->rot, mul(h, hor));
}

void VESSEL::GetAngularVel(VECTOR3 &avel) const { avel = vessel->omega; }
void VESSEL::SetAngularVel(const VECTOR3 &avel) const { vessel->omega = avel; }

void VESSEL::GetGlobalOrientation(VECTOR3 &arot) const {
    arot = hullhost::physics::AnglesFromOrientation(vessel->rot);
}
void VESSEL::SetGlobalOrientation(const VECTOR3 &arot) const {
    vessel->rot = hullhost::physics::OrientationFromAngles(arot);
}
