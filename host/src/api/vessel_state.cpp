// VESSEL: the state records and the flight status.
#include "VesselAPI.h"
#include "core/vessel.h"
#include "core/world.h"
#include "physics/flight_model.h"
#include "physics/flight_queries.h"

using hullhost::World;

void VESSEL::GetStatus(VESSELSTATUS &status) const {
    hullhost::physics::GetStatus(World::Current(), *vessel, status);
}

void VESSEL::GetStatusEx(void *status) const {
    auto *st = static_cast<VESSELSTATUS2 *>(status);
    if (st && st->version == 2) {
        hullhost::physics::GetStatus2(World::Current(), *vessel, *st);
    }
}

void VESSEL::DefSetState(const VESSELSTATUS *status) const {
    if (status) {
        hullhost::physics::SetStatus(World::Current(), *vessel, *status);
    }
}

void VESSEL::DefSetStateEx(const void *status) const {
    const auto *st = static_cast<const VESSELSTATUS2 *>(status);
    if (st && st->version == 2) {
        hullhost::physics::SetStatus2(World::Current(), *vessel, *st);
    }
}

// Bit 0: landed (inactive); bit 1: docked, which this host doesn't model.
int VESSEL::GetFlightStatus() const { return vessel->landed ? 1 : 0; }

bool VESSEL::GroundContact() const { return hullhost::physics::InGroundContact(World::Current(), *vessel); }
