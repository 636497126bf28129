// What a vessel shows besides its meshes: exhaust flames, particle streams,
// beacons and spot lights. The host draws none of them, but keeps each as
// the module set it up, with the pointers it was given.
#include <algorithm>

#include "VesselAPI.h"
#include "core/handle_lookup.h"
#include "core/vessel.h"

using hullhost::Exhaust;
using hullhost::ParticleStream;
using hullhost::Thruster;
using hullhost::Vessel;

namespace {

Thruster *FindThruster(const Vessel &v, THRUSTER_HANDLE h) { return hullhost::FindByHandle(v.thrusters, h); }

// The parameters of a stream that comes without any: a small grey plume.
PARTICLESTREAMSPEC DefaultStreamSpec() {
    PARTICLESTREAMSPEC s{};
    s.srcsize = 1.0;
    s.srcrate = 10.0;
    s.v0 = 20.0;
    s.srcspread = 0.1;
    s.lifetime = 2.0;
    s.growthrate = 1.0;
    s.atmslowdown = 1.0;
    s.ltype = PARTICLESTREAMSPEC::DIFFUSE;
    s.levelmap = PARTICLESTREAMSPEC::LVL_LIN;
    s.lmin = 0.0;
    s.lmax = 1.0;
    s.atmsmap = PARTICLESTREAMSPEC::ATM_FLAT;
    s.amin = 1.0;
    s.amax = 1.0;
    return s;
}

UINT AddExhaustOf(Vessel &v, Exhaust e) {
    if (!e.thruster)
        return static_cast<UINT>(-1);
    v.exhausts.push_back(e);
    return static_cast<UINT>(v.exhausts.size() - 1);
}

PSTREAM_HANDLE AddStream(Vessel &v, const PARTICLESTREAMSPEC *pss, ParticleStream s) {
    s.spec = pss ? *pss : DefaultStreamSpec();
    v.streams.push_back(std::make_unique<ParticleStream>(s));
    return v.streams.back()->Handle();
}

} // namespace

// --- Exhaust flames ----------------------------------------------------------
// An exhaust's id is its position in the list; deleting one moves the later
// ones down, as deleting a thruster does.

UINT VESSEL::AddExhaust(THRUSTER_HANDLE th, double lscale, double wscale, SURFHANDLE tex) const {
    return AddExhaust(th, lscale, wscale, 0.0, tex);
}

UINT VESSEL::AddExhaust(THRUSTER_HANDLE th, double lscale, double wscale, double lofs, SURFHANDLE tex) const {
    return AddExhaustOf(*vessel,
                        {FindThruster(*vessel, th), lscale, wscale, lofs, false, {0, 0, 0}, {0, 0, 0}, tex});
}

UINT VESSEL::AddExhaust(THRUSTER_HANDLE th, double lscale, double wscale, const VECTOR3 &pos,
                        const VECTOR3 &dir, SURFHANDLE tex) const {
    return AddExhaustOf(*vessel, {FindThruster(*vessel, th), lscale, wscale, 0.0, true, pos, dir, tex});
}

bool VESSEL::DelExhaust(UINT idx) const {
    if (idx >= vessel->exhausts.size())
        return false;
    vessel->exhausts.erase(vessel->exhausts.begin() + idx);
    return true;
}

DWORD VESSEL::GetExhaustCount() const { return static_cast<DWORD>(vessel->exhausts.size()); }

// --- Particle streams --------------------------------------------------------
// An exhaust stream follows its thruster's level; a free stream reads the
// module's level member through the pointer it was given.

PSTREAM_HANDLE VESSEL::AddExhaustStream(THRUSTER_HANDLE th, PARTICLESTREAMSPEC *pss) const {
    Thruster *t = FindThruster(*vessel, th);
    if (!t)
        return nullptr;
    ParticleStream s;
    s.thruster = t;
    return AddStream(*vessel, pss, s);
}

PSTREAM_HANDLE VESSEL::AddExhaustStream(THRUSTER_HANDLE th, const VECTOR3 &pos,
                                        PARTICLESTREAMSPEC *pss) const {
    Thruster *t = FindThruster(*vessel, th);
    if (!t)
        return nullptr;
    ParticleStream s;
    s.thruster = t;
    s.pos = pos;
    s.ownPos = true;
    return AddStream(*vessel, pss, s);
}

PSTREAM_HANDLE VESSEL::AddParticleStream(PARTICLESTREAMSPEC *pss, const VECTOR3 &pos, const VECTOR3 &dir,
                                         double *lvl) const {
    ParticleStream s;
    s.pos = pos;
    s.dir = dir;
    s.ownPos = true;
    s.level = lvl;
    return AddStream(*vessel, pss, s);
}

bool VESSEL::DelExhaustStream(PSTREAM_HANDLE ch) const {
    return hullhost::EraseByHandle(vessel->streams, ch);
}

// --- Beacons -----------------------------------------------------------------
// The module's records are kept by pointer: it switches them on and off.

bool VESSEL::AddBeacon(BEACONLIGHTSPEC *bs) {
    if (!bs || std::find(vessel->beacons.begin(), vessel->beacons.end(), bs) != vessel->beacons.end())
        return false;
    vessel->beacons.push_back(bs);
    return true;
}

bool VESSEL::DelBeacon(BEACONLIGHTSPEC *bs) { return std::erase(vessel->beacons, bs) > 0; }

void VESSEL::ClearBeacons() { vessel->beacons.clear(); }

// --- Spot lights -------------------------------------------------------------

LightEmitter *VESSEL::AddSpotLight(const VECTOR3 &pos, const VECTOR3 &dir, double range, double att0,
                                   double att1, double att2, double umbra, double penumbra,
                                   const COLOUR4 &diffuse, const COLOUR4 &specular,
                                   const COLOUR4 &ambient) const {
    auto light = std::make_unique<SpotLight>();
    light->SetPosition(pos);
    light->SetDirection(dir);
    light->range = range;
    light->att0 = att0;
    light->att1 = att1;
    light->att2 = att2;
    light->umbra = umbra;
    light->penumbra = penumbra;
    light->diffuse = diffuse;
    light->specular = specular;
    light->ambient = ambient;
    vessel->lights.push_back(std::move(light));
    return vessel->lights.back().get();
}

DWORD VESSEL::LightEmitterCount() const { return static_cast<DWORD>(vessel->lights.size()); }

const LightEmitter *VESSEL::GetLightEmitter(DWORD i) const {
    return i < vessel->lights.size() ? vessel->lights[i].get() : nullptr;
}
