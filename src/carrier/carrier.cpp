// The carrier's release of its stage, by either kind of sequence.
#include "carrier/carrier.h"

#include <cmath>

namespace {

constexpr double kStillRate = 0.1 * 0.017453292519943295; // [rad/s]
constexpr double kCarryingAccel = 10.0;

const NamedCall kCarrierUpdaters[] = {
    {"C_STILL_WATCH", static_cast<VesselCall>(&Carrier::C_STILL_WATCH)},
};

const TimedAction kTimed[] = {
    {"RELEASE_STAGE", static_cast<VesselCall>(&Carrier::ReleaseStage)},
};

const ConditionalAction kConditional[] = {
    {"RELEASE_WHEN_STILL", static_cast<VesselCall>(&Carrier::C_STILL_WATCH),
     static_cast<SequenceFlag>(&Carrier::Still), static_cast<VesselCall>(&Carrier::ReleaseStage)},
};

// The module's class slot of the name tables holds the carrier's rows; the
// carrier has no timer events of its own.
const bool kRegistered = (HULLKIT::RegisterStageTables(kCarrierUpdaters, {}), true);

} // namespace

Carrier::Carrier(OBJHANDLE hVessel, int flightModel) : HULLKIT(hVessel, flightModel) { (void)kRegistered; }

void Carrier::ApplyConfiguration() {
    HULLKIT::ApplyConfiguration();
    const CHILD_REC *stage = ChildTable.Find("Stage");
    if (stage && !stage->AttachedName.empty())
        MaxTimeAccel = kCarryingAccel;
}

TimedActionTable Carrier::TimedActions() const { return kTimed; }
ConditionalActionTable Carrier::ConditionalActions() const { return kConditional; }

void Carrier::ReleaseStage() {
    CHILD_REC *stage = ChildTable.Find("Stage");
    if (!stage || stage->AttachedName.empty())
        return;
    SeparateChild(*stage, SeparationTable.Find("sepStage"), false, true, false, true);
    MaxTimeAccel = 1000000.0; // the framework's own cap
}

void Carrier::C_STILL_WATCH() {
    VECTOR3 rates;
    GetAngularVel(rates);
    if (std::abs(rates.x) < kStillRate && std::abs(rates.y) < kStillRate && std::abs(rates.z) < kStillRate)
        Still = true;
}
