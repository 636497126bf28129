// The beacon record. Its name is only its key in the table. The host keeps
// the parameter block by pointer once the beacons are added, and the
// parameter block points at the record's own position and colour.
#include "frame/hullkit.h"

template <> void HkResources<BEACON_REC>::ParseRecord(std::string name, BEACON_REC *record) {
    record->pos = GetVector(name, "Pos");
    record->color = GetVector(name, "Color");
    BEACONLIGHTSPEC &spec = record->spec;
    spec.shape = static_cast<DWORD>(GetInt(name, "Type"));
    spec.pos = &record->pos;
    spec.col = &record->color;
    spec.size = GetDouble(name, "SizeB");
    spec.falloff = GetDouble(name, "Falloff");
    spec.period = GetDouble(name, "Period");
    spec.duration = GetDouble(name, "Duration");
    spec.tofs = GetDouble(name, "Tofs");
    // Beacons are switched on at run time.
    spec.active = false;
}
