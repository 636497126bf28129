// VESSEL: where a vessel is over its surface reference, its attitude against
// the horizon, and the air it flies through.
#include "VesselAPI.h"
#include "core/body.h"
#include "core/vessel.h"
#include "core/world.h"
#include "physics/flight_queries.h"

using hullhost::World;
namespace physics = hullhost::physics;

OBJHANDLE VESSEL::GetEquPos(double &longitude, double &latitude, double &radius) const {
    const hullhost::Body *b = physics::SurfaceRef(World::Current(), *vessel);
    if (!b) {
        longitude = latitude = radius = 0.0;
        return nullptr;
    }
    const physics::Surface s = physics::SurfaceOf(b->rot, vessel->pos - b->pos);
    longitude = s.lng;
    latitude = s.lat;
    radius = s.radius;
    return const_cast<hullhost::Body *>(b)->Handle();
}

double VESSEL::GetAltitude() const { return physics::VesselAltitude(World::Current(), *vessel); }

// The ground is the sphere of the mean radius, so both modes agree.
double VESSEL::GetAltitude(int mode, int *reslvl) const {
    (void)mode;
    if (reslvl) {
        *reslvl = 0;
    }
    return physics::VesselAltitude(World::Current(), *vessel);
}

double VESSEL::GetPitch() const { return physics::VesselAttitude(World::Current(), *vessel).pitch; }
double VESSEL::GetBank() const { return physics::VesselAttitude(World::Current(), *vessel).bank; }

// The nose's heading, from north toward east, within (-pi, pi].
double VESSEL::GetYaw() const {
    const double h = physics::VesselAttitude(World::Current(), *vessel).heading;
    return h > PI ? h - PI2 : h;
}

double VESSEL::GetAirspeed() const { return physics::VesselAirData(World::Current(), *vessel).airspeed; }
double VESSEL::GetGroundspeed() const { return physics::VesselAirData(World::Current(), *vessel).airspeed; }

// Frames: 0 global, 1 the vessel's, 2 the reference body's rotating frame,
// 3 the local horizon.
bool VESSEL::GetAirspeedVector(int frame, VECTOR3 &v) const {
    const World &world = World::Current();
    const hullhost::Body *b = physics::SurfaceRef(world, *vessel);
    const physics::AirData air = physics::VesselAirData(world, *vessel);
    switch (frame) {
    case 1:
        v = air.airspeedLocal;
        break;
    case 2:
        v = b ? tmul(b->rot, air.airspeedGlobal) : air.airspeedGlobal;
        break;
    case 3:
        v = tmul(physics::VesselHorizon(world, *vessel), air.airspeedGlobal);
        break;
    default:
        v = air.airspeedGlobal;
    }
    return b != nullptr;
}

bool VESSEL::GetHorizonAirspeedVector(VECTOR3 &v) const { return GetAirspeedVector(3, v); }

double VESSEL::GetDynPressure() const {
    return physics::VesselAirData(World::Current(), *vessel).dynPressure;
}
double VESSEL::GetAtmPressure() const {
    return physics::VesselAirData(World::Current(), *vessel).air.pressure;
}
double VESSEL::GetAtmDensity() const { return physics::VesselAirData(World::Current(), *vessel).air.density; }
double VESSEL::GetAtmTemperature() const {
    return physics::VesselAirData(World::Current(), *vessel).air.temperature;
}
double VESSEL::GetMachNumber() const { return physics::VesselAirData(World::Current(), *vessel).mach; }
