// Animation components by the name of their record.
#include "frame/hullkit.h"

ANIMATIONCOMPONENT_HANDLE HULLKIT::FindAnimComponent(const std::string &name) {
    const ANIM_REC *record = AnimTable.Find(name);
    return record ? record->component : nullptr;
}
