// The aerodynamic data record; the drag span is worked out once here.
#include "frame/hullkit.h"

template <> void HkResources<AERO_REC>::ParseRecord(std::string name, AERO_REC *record) {
    record->name = name;
    record->centerOfPressure = GetVector(name, "CenterOfPressure");
    record->wingChord = GetDouble(name, "WingChord");
    record->wingS = GetDouble(name, "WingS");
    record->wingAspect = GetDouble(name, "WingAspect");
    record->dcMomentMax = GetDouble(name, "DCmomentMax");
    record->cdragMin = GetDouble(name, "CdragMin");
    record->cdragMax = GetDouble(name, "CdragMax");
    record->cdragSpan = record->cdragMax - record->cdragMin;
}
