// The mesh record: file, offset, load request and visibility; the mesh
// comes into the host at once unless the record asks to keep it unloaded.
#include "frame/hullkit.h"

namespace {

struct VisWord {
    const char *word;
    int32_t mode;
};

// The words of the Vis field and their host modes; no word means ALWAYS.
constexpr VisWord kVisWords[] = {
    {"", MESHVIS_ALWAYS},
    {"NEVER", MESHVIS_NEVER},
    {"EXTERNAL", MESHVIS_EXTERNAL},
    {"COCKPIT", MESHVIS_COCKPIT},
    {"ALWAYS", MESHVIS_ALWAYS},
    {"VC", MESHVIS_VC},
    {"EXTPASS", MESH_REC::kExtPassVis},
};

} // namespace

template <> void HkResources<MESH_REC>::ParseRecord(std::string name, MESH_REC *record) {
    record->name = name;
    record->file = GetString(name, "File");
    record->pos = GetVector(name, "Pos");
    record->loadText = GetString(name, "Load");
    record->visText = GetString(name, "Vis");

    record->load = record->loadText.empty() || record->loadText == "LOAD";
    // A word that isn't one of the list leaves the mode as it was.
    for (const VisWord &entry : kVisWords)
        if (record->visText == entry.word) {
            record->vis = entry.mode;
            break;
        }

    // What the configuration says: saved changes are the differences from it.
    record->pos0 = record->pos;
    record->load0 = record->load;
    record->vis0 = record->vis;

    owner->LoadMesh(record, false, false);
}
