// The wreck piece record. Its name is only its key in the table.
#include "frame/hullkit.h"

template <> void HkResources<WRECK_REC>::ParseRecord(std::string name, WRECK_REC *record) {
    record->file = GetString(name, "File");
}
