#include "physics/flight_queries.h"

#include "core/body.h"
#include "core/world.h"
#include "physics/gravity.h"
#include "physics/ground_contact.h"
#include "physics/propulsion.h"

namespace hullhost::physics {

const Body *SurfaceRef(const World &world, const Vessel &v) { return StrongestGravitySource(world, v.pos); }

const Body *GravityRef(const World &world, const Vessel &v) {
    if (v.ref) {
        return v.ref;
    }
    return world.bodies.empty() ? nullptr : DominantBody(world, v.pos);
}

AirData VesselAirData(const World &world, const Vessel &v) {
    const Body *b = SurfaceRef(world, v);
    if (!b) {
        return AirDataAt(nullptr, v.pos, v.vel, v.rot);
    }
    return AirDataAt(b, v.pos - b->pos, v.vel - b->vel, v.rot);
}

MATRIX3 VesselHorizon(const World &world, const Vessel &v) {
    const Body *b = SurfaceRef(world, v);
    return b ? HorizonFrame(*b, v.pos - b->pos) : identity();
}

Attitude VesselAttitude(const World &world, const Vessel &v) {
    return AttitudeIn(VesselHorizon(world, v), v.rot);
}

double VesselAltitude(const World &world, const Vessel &v) {
    const Body *b = SurfaceRef(world, v);
    return b ? length(v.pos - b->pos) - b->radius : length(v.pos);
}

bool InGroundContact(const World &world, const Vessel &v) {
    if (v.landed) {
        return true;
    }
    const Body *b = SurfaceRef(world, v);
    return b && LowestPointHeight(v, *b, v.pos - b->pos, v.rot) <= 0.0;
}

ForceBreakdown VesselForces(const World &world, const Vessel &v) {
    ForceBreakdown f;
    const AirData air = VesselAirData(world, v);
    const double mass = v.Mass();
    f.thrust = TotalThrust(v, air.air.pressure).force;
    f.weight = tmul(v.rot, TotalGravity(CurrentSnapshot(world), v.pos) * mass);
    const AeroLoad aero = AerodynamicLoad(v, air);
    f.lift = aero.lift;
    f.drag = aero.drag;
    f.total = f.thrust + f.weight + f.lift + f.drag;
    for (const AppliedForce &a : v.forces) {
        f.total += a.force;
    }
    if (const Body *b = SurfaceRef(world, v); b && !v.landed) {
        const ContactLoad ground = GroundLoad(v, *b, v.pos - b->pos, v.vel - b->vel, v.rot, v.omega, mass);
        f.total += tmul(v.rot, ground.force);
    } else if (v.landed) {
        f.total = {0, 0, 0}; // the ground holds the vessel
    }
    return f;
}

Orbit VesselOrbit(const Vessel &v, const Body &ref, int frame) {
    VECTOR3 r = v.pos - ref.pos, vel = v.vel - ref.vel;
    if (frame == FRAME_EQU) {
        r = tmul(ref.equatorial, r);
        vel = tmul(ref.equatorial, vel);
    }
    return OrbitFromState(r, vel, ref.gm);
}

} // namespace hullhost::physics
