#include "generic/generic_piece.h"

#include <cstdio>
#include <cstring>

#include "scenario/scenario_keys.h"

namespace {

// How long the particle burst of an explosion lasts [s].
constexpr double kExplosionTime = 3.0;

const NamedCall kPieceTimerEvents[] = {
    {"G_EXPLOSION_END", static_cast<VesselCall>(&GenericPiece::G_EXPLOSION_END)}};
const bool kRegistered = (HULLKIT::RegisterStageTables({}, kPieceTimerEvents), true);

} // namespace

void GenericPiece::clbkSaveState(FILEHANDLE scn) {
    HULLKIT::clbkSaveState(scn);
    if (!Look.empty())
        oapiWriteScenario_string(scn, "LOOK", Look.c_str());
    // A piece without a variant is a wreck: its share of the crashed vessel.
    if (subtype.empty()) {
        VECTOR3 cs;
        GetCrossSections(cs);
        char text[160];
        std::snprintf(text, sizeof text, "%f %f %f %f %f", GetEmptyMass(), GetSize(), cs.x, cs.y, cs.z);
        oapiWriteScenario_string(scn, "WRECK", text);
    }
}

void GenericPiece::ParseScenarioLine(char *line, void *status) {
    if (BeginsWithKey(line, "LOOK"))
        Look = TextBehindKey(line, "LOOK");
    else if (BeginsWithKey(line, "WRECK"))
        shareLoaded = std::sscanf(line + 5, "%lf %lf %lf %lf %lf", &shareMass, &shareSize, &shareCs.x,
                                  &shareCs.y, &shareCs.z) == 5;
    else
        HULLKIT::ParseScenarioLine(line, status);
}

void GenericPiece::clbkConfigLoaded() {
    // The records are made later from their lines: the look takes the
    // line of the mesh Body.
    if (!Look.empty())
        MeshTable.AddResourceLine("Body " + Look + " xyz0 ALWAYS", false);
    if (shareLoaded) {
        SetEmptyMass(shareMass);
        SetSize(shareSize);
        SetCrossSections(shareCs);
    }
}

intptr_t GenericPiece::OnPeerMessage(OBJHANDLE sender, int code, intptr_t argument) {
    switch (code) {
    case 17:
        if (PARTICLE_REC *burst = ParticleTable.Find("Explosion")) {
            ExplosionLevel = 1.0;
            AddParticleStream(&burst->spec, _V(0, 0, 0), _V(0, 1, 0), &ExplosionLevel);
            AddOneShot(kExplosionTime, static_cast<VesselCall>(&GenericPiece::G_EXPLOSION_END));
        }
        return 0;
    case 18:
        if (const char *look = reinterpret_cast<const char *>(argument))
            Look.assign(look, strnlen(look, 256));
        return 0;
    default:
        return HULLKIT::OnPeerMessage(sender, code, argument);
    }
}

void GenericPiece::G_EXPLOSION_END() { ExplosionLevel = 0.0; }
