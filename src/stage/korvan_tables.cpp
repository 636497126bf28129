// The stage's updaters and timer events, by the names they are saved under.
#include "stage/korvan.h"

namespace {

const NamedCall kStageUpdaters[] = {
    {"K_IGNITE", static_cast<VesselCall>(&Korvan::K_IGNITE)},
    {"K_FLIGHT", static_cast<VesselCall>(&Korvan::K_FLIGHT)},
    {"K_PGM_STEP", static_cast<VesselCall>(&Korvan::K_PGM_STEP)},
};

const NamedCall kStageTimerEvents[] = {
    {"K_DROP_SOZ", static_cast<VesselCall>(&Korvan::K_DROP_SOZ)},
    {"K_DROP_FAIRING_START", static_cast<VesselCall>(&Korvan::K_DROP_FAIRING_START)},
    {"K_DROP_FAIRING", static_cast<VesselCall>(&Korvan::K_DROP_FAIRING)},
    {"K_DROP_FAIRING_STOP", static_cast<VesselCall>(&Korvan::K_DROP_FAIRING_STOP)},
    {"K_VENT_START", static_cast<VesselCall>(&Korvan::K_VENT_START)},
    {"K_VENT_STOP", static_cast<VesselCall>(&Korvan::K_VENT_STOP)},
};

// Filled before the first vessel exists.
const bool kRegistered = (HULLKIT::RegisterStageTables(kStageUpdaters, kStageTimerEvents), true);

} // namespace

// Defined here so that every program that makes a Korvan keeps this unit,
// and with it the registration.
Korvan::Korvan(OBJHANDLE hVessel, int flightModel) : HULLKIT(hVessel, flightModel) { (void)kRegistered; }
