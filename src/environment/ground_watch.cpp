// Touchdown: each contact with the ground is judged once, as an impact, a
// hard landing or a soft one. A soft landing raises dust for 0.2 s and, if
// the vessel is still down then, parks it.
#include <cmath>

#include "frame/hullkit.h"

namespace {

// How long dust shows at a touchdown, and whether the vessel stayed down [s].
constexpr double kDustTime = 0.2;
// How long the parked vessel is held at its place [s].
constexpr double kParkHold = 1.0;

} // namespace

void HULLKIT::H_GROUND_WATCH() {
    if (!GroundContact() || Attached)
        return;
    if (DustLevel > 0.0)
        return;
    DustLevel = 1.0;
    AddOneShot(kDustTime, &HULLKIT::H_DUST);
    VECTOR3 v;
    GetHorizonAirspeedVector(v);
    const double speed = length(v);
    const double vertical = std::abs(v.y), horizontal = std::sqrt(v.x * v.x + v.z * v.z);
    if (Destructible && speed > MaxImpactSpeed)
        OnImpact();
    else if (Destructible && (vertical > MaxVerticalSpeed || horizontal > MaxHorizontalSpeed))
        OnHardLanding();
    else
        OnSoftLanding();
}

void HULLKIT::H_DUST() {
    DustLevel = 0.0;
    if (GroundContact())
        OnPark();
}

void HULLKIT::OnSoftLanding() {
    H_PARK();
    PlayVesselSound(SoundTable.IndexOf("Thud"), 0, 255);
    SendPeerMessage(ControllerObject, 15, 0);
}

void HULLKIT::OnPark() {
    Landed = true;
    SendPeerMessage(ControllerObject, 15, 0);
    UpdateAwareness();
    SetTouchdownPts(TouchdownPts[0], TouchdownPts[1], TouchdownPts[2]);
    AddUpdater(&HULLKIT::H_PARK);
    AddOneShot(kParkHold, &HULLKIT::H_UNPARK);
}

// Holds the vessel where it stands. A vessel whose touchdown plane lies
// across its z axis stands on its tail: its heading is that of its belly.
void HULLKIT::H_PARK() {
    VESSELSTATUS2 status = LandedStatusHere();
    status.arot.x = 10.0;
    const VECTOR3 &p1 = TouchdownPts[0], &p2 = TouchdownPts[1], &p3 = TouchdownPts[2];
    const VECTOR3 n = crossp(p3 - p1, p2 - p1);
    double heading = 0.0;
    if (n.y > n.z) {
        oapiGetHeading(GetHandle(), &heading);
    } else {
        VECTOR3 h;
        HorizonRot(_V(0, -1, 0), h);
        const double across = std::sqrt(h.z * h.z + h.x * h.x);
        heading = across > 0.0 ? std::acos(h.z / across) : 0.0;
        if (h.x < 0.0)
            heading = -heading;
    }
    status.surf_hdg = heading;
    DefSetStateEx(&status);
}

void HULLKIT::H_UNPARK() { RemoveUpdater(&HULLKIT::H_PARK); }

void HULLKIT::H_CONTRAIL() {
    ContrailLevel = Altitude > 9000.0 && Altitude < 30000.0 && mainRunning ? 1.0 : 0.0;
}
