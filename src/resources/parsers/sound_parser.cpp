// The sound record: a wave file and its play mode. The sound link loads the
// files; the record only holds them.
#include "frame/hullkit.h"

template <> void HkResources<SOUND_REC>::ParseRecord(std::string name, SOUND_REC *record) {
    record->name = name;
    record->file = GetString(name, "File");
    record->mode = GetInt(name, "Mode");
}
