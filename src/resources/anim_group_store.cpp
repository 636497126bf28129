// The mesh groups of the vessel's animation components, in one store that
// only grows: the host keeps pointers into it for the vessel's life.
#include <algorithm>

#include "frame/hullkit.h"

namespace {

// The group array of components that move no group of their own.
uint32_t NoGroups[1] = {0};

} // namespace

void HULLKIT::StoreAnimGroups(ANIM_REC *record) {
    const std::vector<int32_t> &groups = record->groups;
    record->groupCount = static_cast<int32_t>(groups.size());
    if (groups.empty()) {
        record->groupArray = nullptr;
        return;
    }
    if (groups.size() == 1 && groups[0] == -1) {
        record->groupArray = NoGroups;
        record->groupCount = 0;
        return;
    }
    // Groups beyond the store's room are dropped.
    const int32_t room = kAnimGroupCapacity - AnimGroupCount;
    const int32_t count = std::min(record->groupCount, room);
    record->groupArray = count > 0 ? AnimGroupStore + AnimGroupCount : nullptr;
    record->groupCount = count;
    for (int32_t i = 0; i < count; ++i)
        AnimGroupStore[AnimGroupCount++] = static_cast<uint32_t>(groups[static_cast<std::size_t>(i)]);
}
