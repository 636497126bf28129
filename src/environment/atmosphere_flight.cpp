// Flight in air, each step: the skin heats and cools, the hot wake and the
// reentry glow follow the temperature, and too much dynamic pressure breaks
// the vessel up.
#include <cmath>

#include "environment/heating.h"
#include "frame/hullkit.h"

void HULLKIT::H_ATM_FLT() {
    VECTOR3 air;
    GetHorizonAirspeedVector(air);
    GetGroundAltitude();
    Airspeed = GetAirspeed();
    DynPressure = GetDynPressure();
    const double h = Altitude, v = Airspeed;
    const double rate = SpeedHeating(h, v, air.y) + PressureHeating(DynPressure, v) + Cooling(h, v);
    Temperature = NextTemperature(Temperature, rate, SimStep);
    HeatContrailLevel = h > 9000.0 && h < 50000.0 && v > 1000.0 && Temperature > 1000.0 ? 1.0 : 0.0;
    if (ReentryGlowEnabled)
        UpdateReentry();
    if (Destructible && DynPressure > MaxDynPressure)
        OnOverpressure();
}

namespace {

// Mesh property 1 switches the mesh's transparency handling.
constexpr DWORD kMeshAlphaProperty = 1;

} // namespace

void HULLKIT::UpdateReentry() {
    Glow = GlowOf(Temperature);
    // Below 30 km the glow is the materials' alone.
    if (ShineGroup)
        SetThrusterGroupLevel(ShineGroup, Altitude > 30000.0 ? Glow : 0.0);
    if (!HasGlowMaterials && !HasAlphaMaterials)
        return;
    for (int32_t i = 0; i < MaterialTable.Count(); ++i) {
        MATERIAL_REC *rec = MaterialTable.At(i);
        const MESH_REC *mesh = rec ? MeshTable.Find(rec->mesh) : nullptr;
        if (!mesh || !mesh->added)
            continue;
        DEVMESHHANDLE device = visual ? GetDevMesh(visual, mesh->index) : nullptr;
        if (rec->kind == 0) {
            if (!device || !(Glow > 0.0))
                continue;
            for (int32_t index : rec->matList) {
                const MATERIAL *source = oapiMeshMaterial(mesh->handle, static_cast<DWORD>(index));
                if (!source)
                    continue;
                MATERIAL m = *source;
                m.emissive = {static_cast<float>(Glow * m.ambient.r * 2.0),
                              static_cast<float>(Glow * m.ambient.g), static_cast<float>(Glow * m.ambient.b),
                              m.emissive.a};
                oapiSetMaterial(device, index, &m);
            }
            continue;
        }
        const double a = Glow;
        if (a == 0.0 && rec->hiddenState)
            return;
        if (rec->hiddenState) {
            rec->hiddenState = false;
            oapiSetMeshProperty(mesh->handle, kMeshAlphaProperty, 1);
            if (device)
                oapiSetMeshProperty(device, kMeshAlphaProperty, 1);
            SetMeshVisibilityMode(mesh->index, 1);
        }
        if (device)
            for (int32_t index : rec->matList) {
                const MATERIAL *source = oapiMeshMaterial(mesh->handle, static_cast<DWORD>(index));
                if (!source)
                    continue;
                MATERIAL m = *source;
                const auto alpha = static_cast<float>(a);
                m.diffuse.a = m.ambient.a = m.specular.a = m.emissive.a = alpha;
                oapiSetMaterial(device, index, &m);
            }
        if (a < 0.05 && !rec->hiddenState) {
            rec->hiddenState = true;
            oapiSetMeshProperty(mesh->handle, kMeshAlphaProperty, 0);
            if (device)
                oapiSetMeshProperty(device, kMeshAlphaProperty, 0);
            HideMesh(rec->mesh);
        }
    }
}
