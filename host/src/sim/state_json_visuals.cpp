#include "state_json_visuals.h"

#include "visual/visual.h"

namespace hullhost::sim {

using json = nlohmann::ordered_json;

namespace {

json Vec(const VECTOR3 &v) { return json::array({v.x, v.y, v.z}); }
json Colour(const COLOUR4 &c) { return json::array({c.r, c.g, c.b, c.a}); }

// A surface by its texture name; null for none, "?" for a handle that isn't
// one of the world's surfaces.
json Texture(const World &world, SURFHANDLE tex) {
    if (!tex)
        return nullptr;
    const Surface *s = world.textures.Lookup(tex);
    return s ? json(s->name) : json("?");
}

int ThrusterIndex(const Vessel &v, const Thruster *t) {
    for (size_t i = 0; i < v.thrusters.size(); ++i)
        if (v.thrusters[i].get() == t)
            return static_cast<int>(i);
    return -1;
}

json StreamParams(const PARTICLESTREAMSPEC &s) {
    return {{"srcsize", s.srcsize},
            {"srcrate", s.srcrate},
            {"v0", s.v0},
            {"srcspread", s.srcspread},
            {"lifetime", s.lifetime},
            {"growthrate", s.growthrate},
            {"atmslowdown", s.atmslowdown},
            {"ltype", static_cast<int>(s.ltype)},
            {"levelmap", static_cast<int>(s.levelmap)},
            {"lmin", s.lmin},
            {"lmax", s.lmax},
            {"atmsmap", static_cast<int>(s.atmsmap)},
            {"amin", s.amin},
            {"amax", s.amax}};
}

// [animation, component] of a component of this vessel, or null.
json ComponentId(const Vessel &v, const AnimationComponent *c) {
    if (!c)
        return nullptr;
    for (size_t a = 0; a < v.animations.size(); ++a)
        for (size_t i = 0; i < v.animations[a]->components.size(); ++i)
            if (v.animations[a]->components[i].get() == c)
                return json::array({a, i});
    return nullptr;
}

json Transform(const MGROUP_TRANSFORM &t) {
    json groups = json::array();
    for (UINT i = 0; t.grp && i < t.ngrp; ++i)
        groups.push_back(t.grp[i]);
    json out = {{"mesh", t.mesh}, {"groups", groups}};
    switch (t.Type()) {
    case MGROUP_TRANSFORM::ROTATE: {
        const auto &r = static_cast<const MGROUP_ROTATE &>(t);
        out.update({{"type", "rotate"}, {"ref", Vec(r.ref)}, {"axis", Vec(r.axis)}, {"angle", r.angle}});
        break;
    }
    case MGROUP_TRANSFORM::TRANSLATE:
        out.update({{"type", "translate"}, {"shift", Vec(static_cast<const MGROUP_TRANSLATE &>(t).shift)}});
        break;
    case MGROUP_TRANSFORM::SCALE: {
        const auto &s = static_cast<const MGROUP_SCALE &>(t);
        out.update({{"type", "scale"}, {"ref", Vec(s.ref)}, {"scale", Vec(s.scale)}});
        break;
    }
    case MGROUP_TRANSFORM::NULLTRANSFORM:
        out["type"] = "none";
        break;
    }
    return out;
}

json Device(const World &world, const DevMesh &m) {
    json flags = json::array(), textures = json::array(), materials = json::array();
    for (const auto &g : m.groups)
        flags.push_back(g.userFlag);
    for (SURFHANDLE t : m.textures)
        textures.push_back(Texture(world, t));
    for (const auto &mat : m.materials)
        materials.push_back({{"diffuse", Colour(mat.diffuse)}, {"emissive", Colour(mat.emissive)}});
    return {{"userFlags", flags},
            {"textures", textures},
            {"materials", materials},
            {"modulateMatAlpha", m.modulateMatAlpha}};
}

} // namespace

json Exhausts(const World &world, const Vessel &v) {
    json list = json::array();
    for (const auto &e : v.exhausts) {
        json item = {{"thruster", ThrusterIndex(v, e.thruster)},
                     {"lscale", e.lscale},
                     {"wscale", e.wscale},
                     {"lofs", e.lofs},
                     {"texture", Texture(world, e.tex)},
                     {"level", e.thruster ? e.thruster->level : 0.0}};
        if (e.ownPosDir)
            item.update({{"pos", Vec(e.pos)}, {"dir", Vec(e.dir)}});
        list.push_back(item);
    }
    return list;
}

json ParticleStreams(const World &world, const Vessel &v) {
    json list = json::array();
    for (const auto &s : v.streams) {
        const double level = s->thruster ? s->thruster->level : s->level ? *s->level : 0.0;
        json item = {{"thruster", ThrusterIndex(v, s->thruster)},
                     {"level", level},
                     {"texture", Texture(world, s->spec.tex)}};
        if (s->ownPos)
            item["pos"] = Vec(s->pos);
        if (!s->thruster)
            item["dir"] = Vec(s->dir);
        item["params"] = StreamParams(s->spec);
        list.push_back(item);
    }
    return list;
}

json Beacons(const Vessel &v) {
    json list = json::array();
    for (const BEACONLIGHTSPEC *b : v.beacons)
        list.push_back({{"shape", b->shape},
                        {"pos", b->pos ? Vec(*b->pos) : json(nullptr)},
                        {"col", b->col ? Vec(*b->col) : json(nullptr)},
                        {"size", b->size},
                        {"falloff", b->falloff},
                        {"period", b->period},
                        {"duration", b->duration},
                        {"tofs", b->tofs},
                        {"active", b->active}});
    return list;
}

json Animations(const Vessel &v) {
    json list = json::array();
    for (const auto &a : v.animations) {
        json components = json::array();
        for (const auto &c : a->components) {
            json item = {{"state0", c->state0}, {"state1", c->state1}, {"parent", ComponentId(v, c->parent)}};
            if (c->transform)
                item.update(Transform(*c->transform));
            components.push_back(item);
        }
        json anim = {{"defaultState", a->defaultState}, {"state", a->state}, {"components", components}};
        if (a->deleted)
            anim["deleted"] = true;
        list.push_back(anim);
    }
    return list;
}

json Lights(const Vessel &v) {
    json list = json::array();
    for (const auto &l : v.lights)
        list.push_back({{"pos", Vec(l->GetPosition())},
                        {"dir", Vec(l->GetDirection())},
                        {"range", l->range},
                        {"umbra", l->umbra},
                        {"penumbra", l->penumbra},
                        {"active", l->IsActive()}});
    return list;
}

json MeshDetails(const World &world, const Vessel &v, size_t idx) {
    const MeshSlot &slot = v.meshes[idx];
    json out = {{"groups", slot.templ ? slot.templ->groups.size() : 0}};
    if (v.visual)
        if (const DevMesh *m = v.visual->At(idx))
            out["device"] = Device(world, *m);
    return out;
}

} // namespace hullhost::sim
