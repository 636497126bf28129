// The host's navigation modes. Switching one is an event and tells the
// vessel through clbkNavMode; the host's pilot flies the modes that are on
// (physics/navmode_pilot.h).
#include "VesselAPI.h"
#include "core/vessel.h"
#include "core/world.h"

namespace {

bool Valid(int mode) { return mode >= NAVMODE_KILLROT && mode <= NAVMODE_HOLDALT; }

// Modes that point the vessel exclude each other.
bool Exclusive(int mode) { return mode != NAVMODE_HOLDALT; }

void Tell(const hullhost::Vessel &v, int mode, bool active) {
    if (hullhost::World::Current().events)
        hullhost::World::Current().events->OnNavmode(v, mode, active);
}

} // namespace

bool VESSEL::ActivateNavmode(int mode) {
    if (!Valid(mode) || vessel->navmodes.test(static_cast<size_t>(mode)))
        return false;
    if (Exclusive(mode))
        for (int other = NAVMODE_KILLROT; other <= NAVMODE_ANTINORMAL; ++other)
            if (vessel->navmodes.test(static_cast<size_t>(other)))
                DeactivateNavmode(other);
    vessel->navmodes.set(static_cast<size_t>(mode));
    Tell(*vessel, mode, true);
    hullhost::CallbackScope scope(hullhost::World::Current(), vessel);
    static_cast<VESSEL2 *>(this)->clbkNavMode(mode, true);
    return true;
}

bool VESSEL::DeactivateNavmode(int mode) {
    if (!Valid(mode) || !vessel->navmodes.test(static_cast<size_t>(mode)))
        return false;
    vessel->navmodes.reset(static_cast<size_t>(mode));
    Tell(*vessel, mode, false);
    hullhost::CallbackScope scope(hullhost::World::Current(), vessel);
    static_cast<VESSEL2 *>(this)->clbkNavMode(mode, false);
    return true;
}

bool VESSEL::ToggleNavmode(int mode) {
    return GetNavmodeState(mode) ? DeactivateNavmode(mode) : ActivateNavmode(mode);
}

bool VESSEL::GetNavmodeState(int mode) {
    return Valid(mode) && vessel->navmodes.test(static_cast<size_t>(mode));
}
