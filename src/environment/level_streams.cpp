// The particle streams that the vessel drives through level members: the
// contrail behind the main engine, the hot wake of reentry and the dust of a
// touchdown. A stream whose particle record is missing is left out.
#include <array>

#include "config/number_lists.h"
#include "frame/hullkit.h"

namespace {

// How far behind the main engine the contrail starts [m].
constexpr double kContrailBehindEngine = 50.0;

} // namespace

void HULLKIT::AddLevelStreams() {
    const THRUSTERGROUP_REC *main = ThrusterGroupTable.Find("Main");
    PARTICLE_REC *contrail = ParticleTable.Find("Contrail");
    if (main && main->handle && contrail && GetGroupThrusterCount(main->handle) > 0) {
        VECTOR3 engine;
        GetThrusterRef(GetGroupThruster(main->handle, 0), engine);
        AddParticleStream(&contrail->spec, _V(0, 0, engine.z - kContrailBehindEngine), _V(0, 0, -1),
                          &ContrailLevel);
    }

    if (PARTICLE_REC *heat = ParticleTable.Find("ContrailHeat")) {
        std::array<double, 3> pos{0.0, 0.0, -10.0};
        ScanNumbers(Cfg("HeatContrailPos"), pos);
        AddParticleStream(&heat->spec, _V(pos[0], pos[1], pos[2]), _V(0, 0, -1), &HeatContrailLevel);
    }

    if (PARTICLE_REC *dust = ParticleTable.Find("Dust"))
        AddParticleStream(&dust->spec, _V(0, 0, 0), _V(0, 1, 0), &DustLevel);
}
