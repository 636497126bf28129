// A thruster group: a run of thrusters consecutive in creation order, from the
// named first thruster on. Thirteen names make the standard groups of the host.
#include <algorithm>

#include "frame/hullkit.h"

namespace {

struct StandardGroup {
    const char *name;
    THGROUP_TYPE type;
    THGROUP_HANDLE HULLKIT::*member;
};

constexpr StandardGroup kStandardGroups[] = {
    {"Main", THGROUP_MAIN, &HULLKIT::groupMain},
    {"PitchUp", THGROUP_ATT_PITCHUP, &HULLKIT::groupPitchUp},
    {"PitchDown", THGROUP_ATT_PITCHDOWN, &HULLKIT::groupPitchDown},
    {"YawLeft", THGROUP_ATT_YAWLEFT, &HULLKIT::groupYawLeft},
    {"YawRight", THGROUP_ATT_YAWRIGHT, &HULLKIT::groupYawRight},
    {"RollLeft", THGROUP_ATT_BANKLEFT, &HULLKIT::groupRollLeft},
    {"RollRight", THGROUP_ATT_BANKRIGHT, &HULLKIT::groupRollRight},
    {"Right", THGROUP_ATT_RIGHT, &HULLKIT::groupRight},
    {"Left", THGROUP_ATT_LEFT, &HULLKIT::groupLeft},
    {"Up", THGROUP_ATT_UP, &HULLKIT::groupUp},
    {"Down", THGROUP_ATT_DOWN, &HULLKIT::groupDown},
    {"Fwd", THGROUP_ATT_FORWARD, &HULLKIT::groupFwd},
    {"Back", THGROUP_ATT_BACK, &HULLKIT::groupBack},
};

} // namespace

template <> void HkResources<THRUSTERGROUP_REC>::ParseRecord(std::string name, THRUSTERGROUP_REC *record) {
    record->name = name;
    record->firstThId = GetString(name, "FirstThId");
    record->thCount = GetInt(name, "ThCount");

    // A first thruster that doesn't exist makes no group; a count that runs
    // past the last thruster is cut there.
    const THRUSTER_REC *first = owner->ThrusterTable.Find(record->firstThId);
    if (!first)
        return;
    std::vector<THRUSTER_HANDLE> &list = owner->thrusterHandles;
    const std::size_t start = std::min(static_cast<std::size_t>(std::max(first->index, 0)), list.size());
    const std::size_t count =
        std::min(static_cast<std::size_t>(std::max(record->thCount, 0)), list.size() - start);

    const StandardGroup *standard = std::find_if(std::begin(kStandardGroups), std::end(kStandardGroups),
                                                 [&name](const StandardGroup &g) { return name == g.name; });
    const bool isStandard = standard != std::end(kStandardGroups);
    record->handle =
        owner->CreateThrusterGroup(count ? list.data() + start : nullptr, static_cast<int>(count),
                                   isStandard ? standard->type : THGROUP_USER);
    if (isStandard)
        owner->*(standard->member) = record->handle;
}
