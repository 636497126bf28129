// The particle stream record: its stream parameters and the texture it is drawn
// with. The host copies the parameters when a stream is added.
#include "frame/hullkit.h"

template <> void HkResources<PARTICLE_REC>::ParseRecord(std::string name, PARTICLE_REC *record) {
    record->name = name;
    // The compiled parameters have no texture; a record parsed again starts
    // from it too.
    record->spec = GetParticleSpec(name, "PSS");
    record->tex = GetString(name, "Tex");
    if (record->tex.empty())
        return;
    // Textures are created before particles; a name without a record leaves
    // the stream untextured.
    if (const TEXTURE_REC *texture = owner->TextureTable.Find(record->tex))
        record->spec.tex = texture->surface;
}
