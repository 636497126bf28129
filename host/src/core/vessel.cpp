#include "vessel.h"

#include <algorithm>

#include "visual/visual.h"

namespace hullhost {

Vessel::Vessel(std::string name, std::string className, const Module *module)
    : Object(ObjectKind::Vessel, std::move(name)), className_(std::move(className)), module_(module) {}

Vessel::~Vessel() = default;

double Vessel::PropellantMass() const {
    double m = 0.0;
    for (auto &p : propellants)
        m += p->mass;
    return m;
}

double Vessel::Mass() const { return emptyMass + PropellantMass(); }

ThrusterGroup *Vessel::GroupOfType(THGROUP_TYPE type) const {
    if (type == THGROUP_USER)
        return nullptr;
    for (auto &g : groups)
        if (g->type == type)
            return g.get();
    return nullptr;
}

void Vessel::SetGroupLevel(ThrusterGroup &group, double level) {
    level = std::clamp(level, 0.0, 1.0);
    for (Thruster *t : group.thrusters)
        t->level = level;
}

double Vessel::GroupLevel(const ThrusterGroup &group) const {
    if (group.thrusters.empty())
        return 0.0;
    double sum = 0.0;
    for (const Thruster *t : group.thrusters)
        sum += t->level;
    return sum / static_cast<double>(group.thrusters.size());
}

Attachment *Vessel::ParentPoint() const {
    for (auto &a : attachments)
        if (a->toParent && a->attached)
            return a.get();
    return nullptr;
}

} // namespace hullhost
