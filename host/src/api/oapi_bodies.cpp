// oapi: mass, size, position, orientation and air of bodies and vessels alike.
#include "OrbiterAPI.h"
#include "core/body.h"
#include "core/vessel.h"
#include "core/world.h"
#include "physics/flight_queries.h"

using hullhost::Body;
using hullhost::Object;
using hullhost::ObjectKind;
using hullhost::Vessel;
using hullhost::World;
namespace physics = hullhost::physics;

double oapiGetMass(OBJHANDLE h) {
    if (const Body *b = World::Current().BodyFromHandle(h)) {
        return b->mass;
    }
    const Vessel *v = World::Current().VesselFromHandle(h);
    return v ? v->Mass() : 0.0;
}

double oapiGetSize(OBJHANDLE h) {
    if (const Body *b = World::Current().BodyFromHandle(h)) {
        return b->radius;
    }
    const Vessel *v = World::Current().VesselFromHandle(h);
    return v ? v->size : 0.0;
}

void oapiGetGlobalPos(OBJHANDLE h, VECTOR3 *pos) {
    const Object *o = World::Current().ObjectFromHandle(h);
    if (pos) {
        *pos = o ? o->pos : VECTOR3{0, 0, 0};
    }
}

void oapiGetGlobalVel(OBJHANDLE h, VECTOR3 *vel) {
    const Object *o = World::Current().ObjectFromHandle(h);
    if (vel) {
        *vel = o ? o->vel : VECTOR3{0, 0, 0};
    }
}

// The position of `from` relative to `to`.
void oapiGetRelativePos(OBJHANDLE from, OBJHANDLE to, VECTOR3 *pos) {
    const Object *a = World::Current().ObjectFromHandle(from), *b = World::Current().ObjectFromHandle(to);
    if (pos) {
        *pos = (a ? a->pos : VECTOR3{0, 0, 0}) - (b ? b->pos : VECTOR3{0, 0, 0});
    }
}

// The velocity of `from` relative to `to`.
void oapiGetRelativeVel(OBJHANDLE from, OBJHANDLE to, VECTOR3 *vel) {
    const Object *a = World::Current().ObjectFromHandle(from), *b = World::Current().ObjectFromHandle(to);
    if (vel) {
        *vel = (a ? a->vel : VECTOR3{0, 0, 0}) - (b ? b->vel : VECTOR3{0, 0, 0});
    }
}

void oapiGetRotationMatrix(OBJHANDLE h, MATRIX3 *mat) {
    if (!mat) {
        return;
    }
    if (const Body *b = World::Current().BodyFromHandle(h)) {
        *mat = b->rot;
    } else if (const Vessel *v = World::Current().VesselFromHandle(h)) {
        *mat = v->rot;
    } else {
        *mat = identity();
    }
}

bool oapiGetHeading(OBJHANDLE h, double *heading) {
    const Vessel *v = World::Current().VesselFromHandle(h);
    if (!v || !heading) {
        return false;
    }
    *heading = physics::VesselAttitude(World::Current(), *v).heading;
    return true;
}

bool oapiGetAltitude(OBJHANDLE h, double *alt) {
    const Vessel *v = World::Current().VesselFromHandle(h);
    if (!v || !alt) {
        return false;
    }
    *alt = physics::VesselAltitude(World::Current(), *v);
    return true;
}

bool oapiPlanetHasAtmosphere(OBJHANDLE h) {
    const Body *b = World::Current().BodyFromHandle(h);
    return b && b->hasAtmosphere;
}

void oapiGetAtmPressureDensity(OBJHANDLE h, double *pressure, double *density) {
    const Vessel *v = World::Current().VesselFromHandle(h);
    physics::AirData air;
    if (v) {
        air = physics::VesselAirData(World::Current(), *v);
    }
    if (pressure) {
        *pressure = air.air.pressure;
    }
    if (density) {
        *density = air.air.density;
    }
}

double oapiGetPlanetPeriod(OBJHANDLE h) {
    const Body *b = World::Current().BodyFromHandle(h);
    return b ? b->siderealPeriod : 0.0;
}
