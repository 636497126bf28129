// The list of active updaters, walked once per step.
#include <algorithm>
#include <stdexcept>

#include "frame/hullkit.h"

namespace {

// A call that no table names can only come from a programming error.
[[noreturn]] void Unknown(const char *message) {
    oapiWriteLog(message);
    throw std::logic_error(message);
}

} // namespace

bool HULLKIT::HasUpdater(VesselCall call) const {
    return std::find(Updaters.begin(), Updaters.end(), call) != Updaters.end();
}

void HULLKIT::AddUpdater(VesselCall call) {
    if (UpdaterName(call).empty())
        Unknown("Unknown Updator!");
    if (!HasUpdater(call))
        Updaters.push_back(call);
}

void HULLKIT::RemoveUpdater(VesselCall call) {
    auto it = std::find(Updaters.begin(), Updaters.end(), call);
    if (it != Updaters.end())
        Updaters.erase(it);
}

// The size is read afresh each round: an updater added during the walk runs
// in the same step; when one is removed at or before the current position,
// the one that closes up to it waits for the next step.
void HULLKIT::WalkUpdaters() {
    // A crash during the walk ends it: the vessel is on its way out.
    for (size_t i = 0; i < Updaters.size() && !Crashed; ++i)
        if (VesselCall call = Updaters[i])
            (this->*call)();
}
