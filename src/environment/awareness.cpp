// The layers of watching. Awareness starts the planet watch, once a second;
// within reach of a body that starts the ground watch and, where the body
// has air, the atmosphere watch, which in air starts the flight watch.
#include "frame/hullkit.h"

namespace {

// Within this altitude of the ground a body is near [m].
constexpr double kPlanetRange = 20000000.0;
// Above this pressure the vessel is in air [Pa].
constexpr double kAirPressure = 0.000325;

} // namespace

void HULLKIT::UpdateAwareness() {
    const bool aware = !Landed && (AwareWhileAttached || !Attached);
    if (!aware) {
        RemoveUpdater(&HULLKIT::WatchMainEngine);
        RemoveSecondEvent(&HULLKIT::H_PLN_ENTER_EXIT);
        if (InPlanetRange)
            OnPlanetExit();
        return;
    }
    // Only an engine with propellant behind it is worth watching.
    PROPELLANT_HANDLE first = GetPropellantHandleByIndex(0);
    if (GetThrusterGroupHandle(THGROUP_MAIN) && first && GetPropellantMass(first) > 0.0)
        AddUpdater(&HULLKIT::WatchMainEngine);
    AddSecondEvent(&HULLKIT::H_PLN_ENTER_EXIT);
    H_PLN_ENTER_EXIT();
}

void HULLKIT::H_AWARENESS() { UpdateAwareness(); }

double HULLKIT::GetGroundAltitude() {
    Altitude = GetAltitude(1, nullptr);
    return Altitude;
}

void HULLKIT::H_PLN_ENTER_EXIT() {
    GetGroundAltitude();
    if (Altitude > kPlanetRange && InPlanetRange)
        OnPlanetExit();
    if (Altitude < kPlanetRange && !InPlanetRange)
        OnPlanetEnter();
    if (OBJHANDLE ref = GetSurfaceRef(); ref != SurfaceRef) {
        PrevSurfaceRef = SurfaceRef;
        SurfaceRef = ref;
        OnPlanetChanged();
    }
}

void HULLKIT::OnPlanetEnter() {
    InPlanetRange = true;
    AddUpdater(&HULLKIT::H_GROUND_WATCH);
    SendPeerMessage(ControllerObject, 14, 0);
    if (oapiPlanetHasAtmosphere(GetSurfaceRef())) {
        AddSecondEvent(&HULLKIT::H_ATM_ENTER_EXIT);
        H_ATM_ENTER_EXIT();
    }
}

void HULLKIT::OnPlanetExit() {
    InPlanetRange = false;
    RemoveUpdater(&HULLKIT::H_GROUND_WATCH);
    RemoveSecondEvent(&HULLKIT::H_ATM_ENTER_EXIT);
    SendPeerMessage(ControllerObject, 15, 0);
    if (InAtmosphere)
        OnAtmosphereExit();
}

// A vessel that is still hot when it leaves the air stays in the
// atmosphere layer until it has cooled to the floor.
void HULLKIT::H_ATM_ENTER_EXIT() {
    double pressure = 0.0, density = 0.0;
    oapiGetAtmPressureDensity(GetHandle(), &pressure, &density);
    if (pressure <= kAirPressure) {
        if (InAtmosphere && Temperature > 20.0)
            OnAtmosphereExit();
    } else if (!InAtmosphere) {
        OnAtmosphereEnter();
    }
}

void HULLKIT::OnAtmosphereEnter() {
    InAtmosphere = true;
    if (!Landed)
        AddUpdater(&HULLKIT::H_ATM_FLT);
    ContrailLevel = 0.0;
    if (MainTank && GetPropellantMass(MainTank) > 0.0)
        AddUpdater(&HULLKIT::H_CONTRAIL);
}

void HULLKIT::OnAtmosphereExit() {
    InAtmosphere = false;
    RemoveUpdater(&HULLKIT::H_ATM_FLT);
    ContrailLevel = 0.0;
    RemoveUpdater(&HULLKIT::H_CONTRAIL);
}
