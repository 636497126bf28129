// The attachment point record. The configured vectors are kept beside the
// ones that change at run time, so that saving can tell them apart.
#include "frame/hullkit.h"

template <> void HkResources<CHILD_REC>::ParseRecord(std::string name, CHILD_REC *record) {
    record->name = name;
    record->pos = GetVector(name, "Pos");
    record->dir = GetVector(name, "Dir");
    record->rot = GetVector(name, "Rot");
    record->scnVar = GetString(name, "ScnVar");
    record->ConfigPos = record->pos;
    record->ConfigDir = record->dir;
    record->ConfigRot = record->rot;
}
