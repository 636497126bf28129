// The floodlight set record. Its name is only its key in the table; the
// set's light is made when the spotlights are set up.
#include "frame/hullkit.h"

template <> void HkResources<SPOTLIGHTSET_REC>::ParseRecord(std::string name, SPOTLIGHTSET_REC *record) {
    record->pos = GetVector(name, "Pos");
    record->cols = GetInt(name, "Cols");
    record->rows = GetInt(name, "Rows");
    record->len = GetDouble(name, "Len");
    record->wid = GetDouble(name, "Wid");
    record->faceWidth = GetDouble(name, "FaceWidth");
    record->azm = GetDouble(name, "Azm");
    record->elev = GetDouble(name, "Elev");
    record->dAzm = GetDouble(name, "dAzm");
    record->dElev = GetDouble(name, "dElev");
    record->dHorStep = GetDouble(name, "dHorStep");
    record->dVertStep = GetDouble(name, "dVertStep");
    record->lightAzmAngle = GetDouble(name, "LightAzmAngle");
}
