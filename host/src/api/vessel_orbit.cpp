// VESSEL: the osculating orbit.
#include "VesselAPI.h"
#include "core/body.h"
#include "core/vessel.h"
#include "core/world.h"
#include "physics/flight_queries.h"
#include "physics/kepler.h"

using hullhost::Body;
using hullhost::World;
namespace physics = hullhost::physics;

namespace {} // namespace

OBJHANDLE VESSEL::GetElements(ELEMENTS &el, double &mjd_ref) const {
    const World &world = World::Current();
    const Body *ref = physics::GravityRef(world, *vessel);
    mjd_ref = world.Mjd();
    if (!ref) {
        el = ELEMENTS{};
        return nullptr;
    }
    el = physics::VesselOrbit(*vessel, *ref, FRAME_ECL).el;
    return const_cast<Body *>(ref)->Handle();
}

// With mjd_ref other than 0 the mean longitude L is given for that date;
// everything else describes the orbit now.
bool VESSEL::GetElements(OBJHANDLE hRef, ELEMENTS &el, ORBITPARAM *prm, double mjd_ref, int frame) const {
    const World &world = World::Current();
    const Body *ref = hRef ? world.BodyFromHandle(hRef) : physics::GravityRef(world, *vessel);
    if (!ref) {
        return false;
    }
    const physics::Orbit o = physics::VesselOrbit(*vessel, *ref, frame);
    el = o.el;
    if (mjd_ref != 0.0 && o.el.a > 0.0) {
        const double n = PI2 / o.prm.T;
        el.L = physics::NormalAngle(el.L + n * (mjd_ref - world.Mjd()) * 86400.0);
    }
    if (prm) {
        *prm = o.prm;
    }
    return true;
}

OBJHANDLE VESSEL::GetApDist(double &apdist) const {
    const World &world = World::Current();
    const Body *ref = physics::GravityRef(world, *vessel);
    apdist = ref ? physics::VesselOrbit(*vessel, *ref, FRAME_ECL).prm.ApD : 0.0;
    return ref ? const_cast<Body *>(ref)->Handle() : nullptr;
}

OBJHANDLE VESSEL::GetPeDist(double &pedist) const {
    const World &world = World::Current();
    const Body *ref = physics::GravityRef(world, *vessel);
    pedist = ref ? physics::VesselOrbit(*vessel, *ref, FRAME_ECL).prm.PeD : 0.0;
    return ref ? const_cast<Body *>(ref)->Handle() : nullptr;
}
