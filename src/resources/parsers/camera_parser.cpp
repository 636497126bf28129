// The camera record: a cockpit position, its default direction and its
// rotation limits.
#include "frame/hullkit.h"

template <> void HkResources<CAMERA_REC>::ParseRecord(std::string name, CAMERA_REC *record) {
    record->name = name;
    record->pos = GetVector(name, "Pos");
    record->dir = GetVector(name, "Dir");
    record->tilt = GetDouble(name, "Tilt");
    record->disabled = GetInt(name, "Disabled") != 0;
    record->limRotLeft = GetDouble(name, "LimRotLeft");
    record->limRotRight = GetDouble(name, "LimRotRight");
    record->limRotUp = GetDouble(name, "LimRotUp");
    record->limRotDown = GetDouble(name, "LimRotDown");
}
