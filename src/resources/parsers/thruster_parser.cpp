// A thruster: the host thruster on its tank, its place in the vessel's list
// of thrusters, its exhaust flame and its exhaust stream.
#include "frame/hullkit.h"

namespace {

// Reference pressure of the second specific impulse [Pa].
constexpr double kReferencePressure = 101400.0;

} // namespace

template <> void HkResources<THRUSTER_REC>::ParseRecord(std::string name, THRUSTER_REC *record) {
    record->name = name;
    record->pos = GetVector(name, "Pos");
    record->dir = GetVector(name, "Dir");
    record->thrust = GetDouble(name, "Thrust");
    record->tank = GetString(name, "Tank");
    record->ispMax = GetDouble(name, "IspMax");
    record->ispGr = GetDouble(name, "IspGr");
    record->tex = GetString(name, "Tex");
    record->texL = GetDouble(name, "TexL");
    record->texW = GetDouble(name, "TexW");
    record->texLofs = GetDouble(name, "TexLofs");
    record->ps = GetString(name, "Ps");
    record->psPos = GetVector(name, "PsPos");

    // A tank name without a record gives a thruster without propellant.
    const TANK_REC *tank = owner->TankTable.Find(record->tank);
    record->handle =
        owner->CreateThruster(record->pos, record->dir, record->thrust, tank ? tank->handle : nullptr,
                              record->ispMax, record->ispGr, kReferencePressure);
    owner->thrusterHandles.push_back(record->handle);
    record->index = static_cast<int32_t>(owner->thrusterHandles.size()) - 1;

    if (!record->tex.empty()) {
        const TEXTURE_REC *texture = owner->TextureTable.Find(record->tex);
        if (texture && texture->surface)
            owner->AddExhaust(record->handle, record->texL, record->texW, record->texLofs, texture->surface);
    }

    record->stream = nullptr;
    if (!record->ps.empty()) {
        // The host keeps the parameters' address: it stays in the particle record.
        PARTICLE_REC *particle = owner->ParticleTable.Find(record->ps);
        if (particle) {
            const VECTOR3 &p = record->psPos;
            if (p.x == 0.0 && p.y == 0.0 && p.z == 0.0)
                record->stream = owner->AddExhaustStream(record->handle, &particle->spec);
            else
                record->stream = owner->AddExhaustStream(record->handle, p, &particle->spec);
        }
    }
}
