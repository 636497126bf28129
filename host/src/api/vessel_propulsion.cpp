// Propellant resources, thrusters and thruster groups.
#include <algorithm>

#include "VesselAPI.h"
#include "core/handle_lookup.h"
#include "core/manual_control.h"
#include "core/vessel.h"
#include "core/world.h"

using hullhost::Propellant;
using hullhost::Thruster;
using hullhost::ThrusterGroup;

using hullhost::FindByHandle;

PROPELLANT_HANDLE VESSEL::CreatePropellantResource(double maxmass, double mass, double efficiency) const {
    auto p = std::make_unique<Propellant>();
    p->maxMass = std::max(maxmass, 0.0);
    p->mass = mass < 0.0 ? p->maxMass : std::min(mass, p->maxMass);
    p->efficiency = efficiency;
    vessel->propellants.push_back(std::move(p));
    return vessel->propellants.back()->Handle();
}

void VESSEL::DelPropellantResource(PROPELLANT_HANDLE &ph) const {
    Propellant *p = FindByHandle(vessel->propellants, ph);
    if (!p)
        return;
    for (auto &t : vessel->thrusters)
        if (t->propellant == p)
            t->propellant = nullptr;
    std::erase_if(vessel->propellants, [p](auto &q) { return q.get() == p; });
    ph = nullptr;
}

void VESSEL::ClearPropellantResources() const {
    for (auto &t : vessel->thrusters)
        t->propellant = nullptr;
    vessel->propellants.clear();
}

DWORD VESSEL::GetPropellantCount() const { return static_cast<DWORD>(vessel->propellants.size()); }

PROPELLANT_HANDLE VESSEL::GetPropellantHandleByIndex(DWORD idx) const {
    return idx < vessel->propellants.size() ? vessel->propellants[idx]->Handle() : nullptr;
}

double VESSEL::GetPropellantMaxMass(PROPELLANT_HANDLE ph) const {
    Propellant *p = FindByHandle(vessel->propellants, ph);
    return p ? p->maxMass : 0.0;
}

void VESSEL::SetPropellantMaxMass(PROPELLANT_HANDLE ph, double maxmass) const {
    if (Propellant *p = FindByHandle(vessel->propellants, ph)) {
        p->maxMass = std::max(maxmass, 0.0);
        p->mass = std::min(p->mass, p->maxMass);
    }
}

double VESSEL::GetPropellantMass(PROPELLANT_HANDLE ph) const {
    Propellant *p = FindByHandle(vessel->propellants, ph);
    return p ? p->mass : 0.0;
}

void VESSEL::SetPropellantMass(PROPELLANT_HANDLE ph, double mass) const {
    if (Propellant *p = FindByHandle(vessel->propellants, ph))
        p->mass = std::clamp(mass, 0.0, p->maxMass);
}

double VESSEL::GetTotalPropellantMass() const { return vessel->PropellantMass(); }

double VESSEL::GetPropellantFlowrate(PROPELLANT_HANDLE ph) const {
    Propellant *p = FindByHandle(vessel->propellants, ph);
    return p ? p->flowRate : 0.0;
}

THRUSTER_HANDLE VESSEL::CreateThruster(const VECTOR3 &pos, const VECTOR3 &dir, double maxth0,
                                       PROPELLANT_HANDLE hp, double isp0, double isp_ref,
                                       double p_ref) const {
    auto t = std::make_unique<Thruster>();
    t->pos = pos;
    t->dir = unit(dir);
    t->maxThrust0 = maxth0;
    t->propellant = FindByHandle(vessel->propellants, hp);
    t->isp0 = isp0;
    t->ispRef = isp_ref;
    t->pRef = p_ref;
    vessel->thrusters.push_back(std::move(t));
    return vessel->thrusters.back()->Handle();
}

bool VESSEL::DelThruster(THRUSTER_HANDLE &th) const {
    Thruster *t = FindByHandle(vessel->thrusters, th);
    if (!t)
        return false;
    for (auto &g : vessel->groups)
        std::erase(g->thrusters, t);
    std::erase_if(vessel->exhausts, [t](auto &e) { return e.thruster == t; });
    for (auto &s : vessel->streams)
        if (s->thruster == t)
            s->thruster = nullptr;
    std::erase_if(vessel->thrusters, [t](auto &u) { return u.get() == t; });
    th = nullptr;
    return true;
}

void VESSEL::ClearThrusterDefinitions() const {
    vessel->groups.clear();
    vessel->exhausts.clear();
    for (auto &s : vessel->streams)
        s->thruster = nullptr;
    vessel->thrusters.clear();
}

DWORD VESSEL::GetThrusterCount() const { return static_cast<DWORD>(vessel->thrusters.size()); }

THRUSTER_HANDLE VESSEL::GetThrusterHandleByIndex(DWORD idx) const {
    return idx < vessel->thrusters.size() ? vessel->thrusters[idx]->Handle() : nullptr;
}

void VESSEL::GetThrusterRef(THRUSTER_HANDLE th, VECTOR3 &pos) const {
    Thruster *t = FindByHandle(vessel->thrusters, th);
    pos = t ? t->pos : VECTOR3{0, 0, 0};
}

void VESSEL::SetThrusterRef(THRUSTER_HANDLE th, const VECTOR3 &pos) const {
    if (Thruster *t = FindByHandle(vessel->thrusters, th))
        t->pos = pos;
}

void VESSEL::GetThrusterDir(THRUSTER_HANDLE th, VECTOR3 &dir) const {
    Thruster *t = FindByHandle(vessel->thrusters, th);
    dir = t ? t->dir : VECTOR3{0, 0, 1};
}

void VESSEL::SetThrusterDir(THRUSTER_HANDLE th, const VECTOR3 &dir) const {
    if (Thruster *t = FindByHandle(vessel->thrusters, th))
        t->dir = unit(dir);
}

double VESSEL::GetThrusterMax0(THRUSTER_HANDLE th) const {
    Thruster *t = FindByHandle(vessel->thrusters, th);
    return t ? t->maxThrust0 : 0.0;
}

void VESSEL::SetThrusterMax0(THRUSTER_HANDLE th, double maxth0) const {
    if (Thruster *t = FindByHandle(vessel->thrusters, th))
        t->maxThrust0 = maxth0;
}

double VESSEL::GetThrusterIsp0(THRUSTER_HANDLE th) const {
    Thruster *t = FindByHandle(vessel->thrusters, th);
    return t ? t->isp0 : 0.0;
}

void VESSEL::SetThrusterIsp(THRUSTER_HANDLE th, double isp0, double isp_ref, double p_ref) const {
    if (Thruster *t = FindByHandle(vessel->thrusters, th)) {
        t->isp0 = isp0;
        t->ispRef = isp_ref;
        t->pRef = p_ref;
    }
}

PROPELLANT_HANDLE VESSEL::GetThrusterResource(THRUSTER_HANDLE th) const {
    Thruster *t = FindByHandle(vessel->thrusters, th);
    return t && t->propellant ? t->propellant->Handle() : nullptr;
}

void VESSEL::SetThrusterResource(THRUSTER_HANDLE th, PROPELLANT_HANDLE ph) const {
    if (Thruster *t = FindByHandle(vessel->thrusters, th))
        t->propellant = FindByHandle(vessel->propellants, ph);
}

double VESSEL::GetThrusterLevel(THRUSTER_HANDLE th) const {
    Thruster *t = FindByHandle(vessel->thrusters, th);
    return t ? t->level : 0.0;
}

void VESSEL::SetThrusterLevel(THRUSTER_HANDLE th, double level) const {
    if (Thruster *t = FindByHandle(vessel->thrusters, th))
        t->level = std::clamp(level, 0.0, 1.0);
}

void VESSEL::IncThrusterLevel(THRUSTER_HANDLE th, double dlevel) const {
    if (Thruster *t = FindByHandle(vessel->thrusters, th))
        t->level = std::clamp(t->level + dlevel, 0.0, 1.0);
}

// The array is copied: the caller's may go away after the call. A standard
// type replaces the group of that type that stood before.
THGROUP_HANDLE VESSEL::CreateThrusterGroup(THRUSTER_HANDLE *th, int nth, THGROUP_TYPE thgt) const {
    auto g = std::make_unique<ThrusterGroup>();
    g->type = thgt;
    for (int i = 0; th && i < nth; ++i)
        if (Thruster *t = FindByHandle(vessel->thrusters, th[i]))
            g->thrusters.push_back(t);
    if (thgt != THGROUP_USER)
        std::erase_if(vessel->groups, [thgt](auto &old) { return old->type == thgt; });
    vessel->groups.push_back(std::move(g));
    return vessel->groups.back()->Handle();
}

bool VESSEL::DelThrusterGroup(THGROUP_HANDLE thg, bool delth) const {
    ThrusterGroup *g = FindByHandle(vessel->groups, thg);
    if (!g)
        return false;
    if (delth) {
        for (Thruster *t : std::vector<Thruster *>(g->thrusters)) {
            THRUSTER_HANDLE h = t->Handle();
            DelThruster(h);
        }
    }
    std::erase_if(vessel->groups, [g](auto &u) { return u.get() == g; });
    return true;
}

THGROUP_HANDLE VESSEL::GetThrusterGroupHandle(THGROUP_TYPE thgt) const {
    ThrusterGroup *g = vessel->GroupOfType(thgt);
    return g ? g->Handle() : nullptr;
}

DWORD VESSEL::GetGroupThrusterCount(THGROUP_HANDLE thg) const {
    ThrusterGroup *g = FindByHandle(vessel->groups, thg);
    return g ? static_cast<DWORD>(g->thrusters.size()) : 0;
}

THRUSTER_HANDLE VESSEL::GetGroupThruster(THGROUP_HANDLE thg, DWORD idx) const {
    ThrusterGroup *g = FindByHandle(vessel->groups, thg);
    return g && idx < g->thrusters.size() ? g->thrusters[idx]->Handle() : nullptr;
}

double VESSEL::GetThrusterGroupLevel(THGROUP_TYPE thgt) const {
    ThrusterGroup *g = vessel->GroupOfType(thgt);
    return g ? vessel->GroupLevel(*g) : 0.0;
}

double VESSEL::GetThrusterGroupLevel(THGROUP_HANDLE thg) const {
    ThrusterGroup *g = FindByHandle(vessel->groups, thg);
    return g ? vessel->GroupLevel(*g) : 0.0;
}

void VESSEL::SetThrusterGroupLevel(THGROUP_TYPE thgt, double level) const {
    if (ThrusterGroup *g = vessel->GroupOfType(thgt))
        vessel->SetGroupLevel(*g, level);
}

void VESSEL::SetThrusterGroupLevel(THGROUP_HANDLE thg, double level) const {
    if (ThrusterGroup *g = FindByHandle(vessel->groups, thg))
        vessel->SetGroupLevel(*g, level);
}

void VESSEL::IncThrusterGroupLevel(THGROUP_TYPE thgt, double dlevel) const {
    if (ThrusterGroup *g = vessel->GroupOfType(thgt))
        vessel->SetGroupLevel(*g, vessel->GroupLevel(*g) + dlevel);
}

// The user's manual command for a group: the keypad keys held down on the
// focus vessel that it left to the host, in the attitude mode that their
// group belongs to.
double VESSEL::GetManualControlLevel(THGROUP_TYPE thgt, DWORD mode, DWORD device) const {
    auto &world = hullhost::World::Current();
    if (world.focus != vessel || device == MANCTRL_JOYSTICK)
        return 0.0;
    return hullhost::ManualControlLevel(world.HostKeys(), vessel->attitudeMode, thgt, mode);
}

int VESSEL::GetAttitudeMode() const { return vessel->attitudeMode; }

bool VESSEL::SetAttitudeMode(int mode) const {
    if (mode < RCS_NONE || mode > RCS_LIN)
        return false;
    vessel->attitudeMode = mode;
    return true;
}
