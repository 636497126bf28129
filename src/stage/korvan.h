// Korvan: an upper stage with a restartable main engine that needs ullage
// before every ignition, ullage motors and a fairing to jettison, payloads to
// release, and a flight program flown by its autopilot.
#pragma once

#include "frame/hullkit.h"

class Korvan : public HULLKIT {
  public:
    // All first values come from InitDefaults.
    Korvan(OBJHANDLE hVessel, int flightModel);

    // The stage's updaters.
    void K_IGNITE();
    void K_FLIGHT();
    void K_PGM_STEP();
    // The stage's timer events.
    void K_DROP_SOZ();
    void K_DROP_FAIRING_START();
    void K_DROP_FAIRING();
    void K_DROP_FAIRING_STOP();
    void K_VENT_START();
    void K_VENT_STOP();
};
