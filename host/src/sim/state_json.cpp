#include "state_json.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "core/body.h"
#include "physics/flight_queries.h"
#include "physics/horizon.h"
#include "state_json_visuals.h"

namespace hullhost::sim {

using json = nlohmann::ordered_json;

namespace {

json Vec(const VECTOR3 &v) { return json::array({v.x, v.y, v.z}); }

// The index of `item` in a list of owned items, or -1.
template <typename T> int IndexOf(const std::vector<std::unique_ptr<T>> &list, const T *item) {
    auto it = std::find_if(list.begin(), list.end(), [item](auto &p) { return p.get() == item; });
    return it == list.end() ? -1 : static_cast<int>(std::distance(list.begin(), it));
}

json Body(const Vessel &v) {
    json touchdown = json::array();
    for (const auto &t : v.touchdown)
        touchdown.push_back(Vec(t.pos));
    return {
        {"emptyMass", v.emptyMass},
        {"mass", v.Mass()},
        {"size", v.size},
        {"pmi", Vec(v.pmi)},
        {"crossSections", Vec(v.crossSections)},
        {"rotDrag", Vec(v.rotDrag)},
        {"cw", json::array({v.cw[0], v.cw[1], v.cw[2], v.cw[3]})},
        {"touchdownPoints", touchdown},
        {"focusEnabled", v.focusEnabled},
    };
}

json Flight(const World &world, const Vessel &v) {
    const hullhost::Body *earth = world.Earth();
    VECTOR3 origin = earth ? earth->pos : VECTOR3{0, 0, 0};
    VECTOR3 originVel = earth ? earth->vel : VECTOR3{0, 0, 0};
    json flight = {
        {"status", v.landed ? "landed" : "free"},
        {"parent", v.parent ? json(v.parent->Name()) : json(nullptr)},
        {"rpos", Vec(v.pos - origin)},
        {"rvel", Vec(v.vel - originVel)},
        // The vessel's axes in the global frame: the rows are x, y and z.
        {"axes", json::array({Vec({v.rot.m11, v.rot.m21, v.rot.m31}), Vec({v.rot.m12, v.rot.m22, v.rot.m32}),
                              Vec({v.rot.m13, v.rot.m23, v.rot.m33})})},
        {"angularVel", Vec(v.omega)},
    };
    // Where the vessel is over the nearest body and how it lies against its
    // horizon, from its position and orientation as they are.
    if (const hullhost::Body *body = physics::SurfaceRef(world, v)) {
        const physics::Surface place = physics::SurfaceOf(body->rot, v.pos - body->pos);
        const physics::Attitude attitude = physics::VesselAttitude(world, v);
        flight["surface"] = {
            {"body", body->Name()},
            {"longitude", place.lng * DEG},
            {"latitude", place.lat * DEG},
            {"altitude", physics::VesselAltitude(world, v)},
            {"heading", attitude.heading * DEG},
            {"pitch", attitude.pitch * DEG},
            {"bank", attitude.bank * DEG},
        };
    }
    return flight;
}

json Propellants(const Vessel &v) {
    json list = json::array();
    for (const auto &p : v.propellants)
        list.push_back({{"maxMass", p->maxMass}, {"mass", p->mass}});
    return list;
}

json Thrusters(const Vessel &v) {
    json list = json::array();
    for (const auto &t : v.thrusters)
        list.push_back({
            {"pos", Vec(t->pos)},
            {"dir", Vec(t->dir)},
            {"maxThrust", t->maxThrust0},
            {"isp", t->isp0},
            {"propellant", IndexOf(v.propellants, t->propellant)},
            {"level", t->level},
        });
    return list;
}

json ThrusterGroups(const Vessel &v) {
    json list = json::array();
    for (const auto &g : v.groups) {
        json members = json::array();
        for (const Thruster *t : g->thrusters)
            members.push_back(IndexOf(v.thrusters, t));
        list.push_back(
            {{"type", static_cast<int>(g->type)}, {"thrusters", members}, {"level", v.GroupLevel(*g)}});
    }
    return list;
}

// Every mesh slot, so that list positions are mesh indices; a deleted slot
// says so.
json Meshes(const World &world, const Vessel &v) {
    json list = json::array();
    for (size_t i = 0; i < v.meshes.size(); ++i) {
        const MeshSlot &m = v.meshes[i];
        json mesh = {{"file", m.file}, {"offset", Vec(m.offset)}, {"visibility", m.visibility}};
        if (m.deleted)
            mesh["deleted"] = true;
        mesh.update(MeshDetails(world, v, i));
        list.push_back(mesh);
    }
    return list;
}

json Docks(const Vessel &v) {
    json list = json::array();
    for (const auto &d : v.docks)
        list.push_back({{"pos", Vec(d->pos)}, {"dir", Vec(d->dir)}, {"rot", Vec(d->rot)}});
    return list;
}

json Attachments(const Vessel &v) {
    json list = json::array();
    for (const auto &a : v.attachments)
        list.push_back({
            {"toParent", a->toParent},
            {"id", a->id},
            {"pos", Vec(a->pos)},
            {"dir", Vec(a->dir)},
            {"rot", Vec(a->rot)},
            {"attached", a->attached ? json(a->attached->Name()) : json(nullptr)},
        });
    return list;
}

// The Sun, the Earth and the Moon, placed like the vessels: against the Earth.
json Bodies(const World &world) {
    const hullhost::Body *earth = world.Earth();
    const VECTOR3 origin = earth ? earth->pos : VECTOR3{0, 0, 0};
    const VECTOR3 originVel = earth ? earth->vel : VECTOR3{0, 0, 0};
    json list = json::array();
    for (const char *name : {"Sun", "Earth", "Moon"})
        if (const hullhost::Body *b = world.FindBody(name))
            list.push_back({{"name", b->Name()},
                            {"mass", b->mass},
                            {"radius", b->radius},
                            {"rpos", Vec(b->pos - origin)},
                            {"rvel", Vec(b->vel - originVel)}});
    return list;
}

} // namespace

json VesselState(const World &world, const Vessel &v) {
    json out = {{"name", v.Name()}, {"class", v.ClassName()}};
    out.update(Body(v));
    out.update(Flight(world, v));
    out["propellants"] = Propellants(v);
    out["thrusters"] = Thrusters(v);
    out["thrusterGroups"] = ThrusterGroups(v);
    out["meshes"] = Meshes(world, v);
    out["docks"] = Docks(v);
    out["attachments"] = Attachments(v);
    out["visual"] = v.visual != nullptr;
    out["exhausts"] = Exhausts(world, v);
    out["particleStreams"] = ParticleStreams(world, v);
    out["beacons"] = Beacons(v);
    out["animations"] = Animations(v);
    out["lights"] = Lights(v);
    return out;
}

json WorldState(const World &world) {
    json annotations = json::array();
    for (const auto &a : world.annotations)
        annotations.push_back(a->text);
    json vessels = json::array();
    for (const auto &v : world.Vessels())
        vessels.push_back(VesselState(world, *v));
    return {
        {"simt", world.simt},
        {"mjd", world.Mjd()},
        {"focus", world.focus ? json(world.focus->Name()) : json(nullptr)},
        {"annotations", annotations},
        {"debugString", std::string(world.debugString, strnlen(world.debugString, sizeof world.debugString))},
        {"bodies", Bodies(world)},
        {"vessels", vessels},
    };
}

} // namespace hullhost::sim
