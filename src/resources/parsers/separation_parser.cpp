// The separation record: the release speed band and the two random forces
// that act on a released vessel.
#include "frame/hullkit.h"

template <> void HkResources<SEPARATION_REC>::ParseRecord(std::string name, SEPARATION_REC *record) {
    record->name = name;
    record->vFrom = GetDouble(name, "VFrom");
    record->vSpan = GetDouble(name, "VSpan");
    record->f1From = GetVector(name, "F1From");
    record->f1Span = GetVector(name, "F1Span");
    record->f1Pos = GetVector(name, "F1Pos");
    record->f2From = GetVector(name, "F2From");
    record->f2Span = GetVector(name, "F2Span");
    record->f2Pos = GetVector(name, "F2Pos");
}
