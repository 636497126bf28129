// The state records of the host API: VESSELSTATUS and VESSELSTATUS2.
#include <algorithm>

#include "core/body.h"
#include "core/world.h"
#include "physics/ephemeris.h"
#include "physics/flight_model.h"
#include "physics/gravity.h"
#include "physics/horizon.h"
#include "physics/landed.h"
#include "physics/rotation.h"

namespace hullhost::physics {

namespace {

const Body *ReferenceOf(const World &world, const Vessel &v) {
    if (v.ref) {
        return v.ref;
    }
    return world.bodies.empty() ? nullptr : DominantBody(world, v.pos);
}

// The body a status names; the Earth, or the first body, when it names none.
Body *BodyOf(World &world, OBJHANDLE h) {
    if (Body *b = world.BodyFromHandle(h)) {
        return b;
    }
    return world.Earth() ? world.Earth() : (world.bodies.empty() ? nullptr : world.bodies.front().get());
}

// Longitude, latitude and heading where the vessel is: stored when landed.
VECTOR3 SurfacePlace(const Vessel &v, const Body *ref) {
    if (v.landed || !ref) {
        return {v.surfLng, v.surfLat, v.surfHdg};
    }
    const VECTOR3 r = v.pos - ref->pos;
    const Surface s = SurfaceOf(ref->rot, r);
    return {s.lng, s.lat, AttitudeIn(HorizonFrame(*ref, r), v.rot).heading};
}

double GroupLevelOf(const Vessel &v, THGROUP_TYPE type) {
    const ThrusterGroup *g = v.GroupOfType(type);
    return g ? v.GroupLevel(*g) : 0.0;
}

void PlaceFree(Vessel &v, Body *body, const VECTOR3 &rpos, const VECTOR3 &rvel, const VECTOR3 &arot,
               const VECTOR3 &vrot) {
    v.landed = false;
    v.ref = body;
    v.pos = body ? body->pos + rpos : rpos;
    v.vel = body ? body->vel + rvel : rvel;
    v.rot = OrientationFromAngles(arot);
    v.omega = vrot;
    v.placed = {body, rpos, rvel, arot, v.pos, v.vel, v.rot, true};
}

bool Same(const VECTOR3 &a, const VECTOR3 &b) { return a.x == b.x && a.y == b.y && a.z == b.z; }

// True while nothing has moved the vessel since it was placed against `ref`.
bool StillAsPlaced(const Vessel &v, const Body *ref) {
    const Vessel::Placement &p = v.placed;
    const MATRIX3 &a = v.rot, &b = p.rot;
    return p.valid && p.body == ref && !v.landed && Same(v.pos, p.pos) && Same(v.vel, p.vel) &&
           Same({a.m11, a.m12, a.m13}, {b.m11, b.m12, b.m13}) &&
           Same({a.m21, a.m22, a.m23}, {b.m21, b.m22, b.m23}) &&
           Same({a.m31, a.m32, a.m33}, {b.m31, b.m32, b.m33});
}

} // namespace

void GetStatus2(const World &world, const Vessel &v, VESSELSTATUS2 &st) {
    const Body *ref = ReferenceOf(world, v);
    const VECTOR3 origin = ref ? ref->pos : VECTOR3{0, 0, 0};
    const VECTOR3 originVel = ref ? ref->vel : VECTOR3{0, 0, 0};
    st.version = 2;
    st.rbody = ref ? const_cast<Body *>(ref)->Handle() : nullptr;
    st.base = nullptr;
    st.port = 0;
    st.status = v.landed ? 1 : 0;
    st.rpos = v.pos - origin;
    st.rvel = v.vel - originVel;
    st.vrot = v.omega;
    st.arot = AnglesFromOrientation(v.rot);
    if (StillAsPlaced(v, ref)) {
        st.rpos = v.placed.rpos;
        st.rvel = v.placed.rvel;
        st.arot = v.placed.arot;
    }
    const VECTOR3 place = SurfacePlace(v, ref);
    st.surf_lng = place.x;
    st.surf_lat = place.y;
    st.surf_hdg = place.z;
    st.xpdr = 0;
    if (st.flag & VS_FUELLIST) {
        // The caller owns a list that the host allocates (delete[]).
        const size_t n = v.propellants.size();
        if (!st.fuel) {
            st.fuel = new VESSELSTATUS2::FUELSPEC[std::max<size_t>(n, 1)];
        }
        st.nfuel = static_cast<DWORD>(n);
        for (size_t i = 0; i < n; ++i) {
            const Propellant &p = *v.propellants[i];
            st.fuel[i] = {static_cast<DWORD>(i), p.maxMass > 0.0 ? p.mass / p.maxMass : 0.0};
        }
    }
    if (st.flag & VS_THRUSTLIST) {
        const size_t n = v.thrusters.size();
        if (!st.thruster) {
            st.thruster = new VESSELSTATUS2::THRUSTSPEC[std::max<size_t>(n, 1)];
        }
        st.nthruster = static_cast<DWORD>(n);
        for (size_t i = 0; i < n; ++i) {
            st.thruster[i] = {static_cast<DWORD>(i), v.thrusters[i]->level};
        }
    }
}

void GetStatus(const World &world, const Vessel &v, VESSELSTATUS &st) {
    VESSELSTATUS2 s2{};
    s2.version = 2;
    GetStatus2(world, v, s2);
    st = VESSELSTATUS{};
    st.rbody = s2.rbody;
    st.rpos = s2.rpos;
    st.rvel = s2.rvel;
    st.vrot = s2.vrot;
    st.arot = s2.arot;
    st.status = s2.status;
    st.vdata[0] = {s2.surf_lng, s2.surf_lat, s2.surf_hdg};
    if (!v.propellants.empty()) {
        const Propellant &p = *v.propellants.front();
        st.fuel = p.maxMass > 0.0 ? p.mass / p.maxMass : 0.0;
    }
    st.eng_main = GroupLevelOf(v, THGROUP_MAIN) - GroupLevelOf(v, THGROUP_RETRO);
    st.eng_hovr = GroupLevelOf(v, THGROUP_HOVER);
}

void SetStatus2(World &world, Vessel &v, const VESSELSTATUS2 &st) {
    Body *body = BodyOf(world, st.rbody);
    if (st.status == 1 && body) {
        SetLanded(v, *body, st.surf_lng, st.surf_lat, st.surf_hdg, EphemerisTime(world));
    } else {
        PlaceFree(v, body, st.rpos, st.rvel, st.arot, st.vrot);
    }
    if (st.flag & VS_FUELRESET) {
        for (auto &p : v.propellants) {
            p->mass = 0.0;
        }
    }
    if ((st.flag & VS_FUELLIST) && st.fuel) {
        for (DWORD i = 0; i < st.nfuel; ++i) {
            if (st.fuel[i].idx < v.propellants.size()) {
                Propellant &p = *v.propellants[st.fuel[i].idx];
                p.mass = std::clamp(st.fuel[i].level, 0.0, 1.0) * p.maxMass;
            }
        }
    }
    if (st.flag & VS_THRUSTRESET) {
        for (auto &t : v.thrusters) {
            t->level = 0.0;
        }
    }
    if ((st.flag & VS_THRUSTLIST) && st.thruster) {
        for (DWORD i = 0; i < st.nthruster; ++i) {
            if (st.thruster[i].idx < v.thrusters.size()) {
                v.thrusters[st.thruster[i].idx]->level = std::clamp(st.thruster[i].level, 0.0, 1.0);
            }
        }
    }
    PlaceOnParent(v);
}

void SetStatus(World &world, Vessel &v, const VESSELSTATUS &st) {
    Body *body = BodyOf(world, st.rbody);
    if (st.status == 1 && body) {
        SetLanded(v, *body, st.vdata[0].x, st.vdata[0].y, st.vdata[0].z, EphemerisTime(world));
    } else {
        PlaceFree(v, body, st.rpos, st.rvel, st.arot, st.vrot);
    }
    if (!v.propellants.empty()) {
        Propellant &p = *v.propellants.front();
        p.mass = std::clamp(st.fuel, 0.0, 1.0) * p.maxMass;
    }
    if (ThrusterGroup *g = v.GroupOfType(THGROUP_MAIN)) {
        v.SetGroupLevel(*g, std::max(0.0, st.eng_main));
    }
    if (ThrusterGroup *g = v.GroupOfType(THGROUP_RETRO)) {
        v.SetGroupLevel(*g, std::max(0.0, -st.eng_main));
    }
    if (ThrusterGroup *g = v.GroupOfType(THGROUP_HOVER)) {
        v.SetGroupLevel(*g, st.eng_hovr);
    }
    PlaceOnParent(v);
}

} // namespace hullhost::physics
