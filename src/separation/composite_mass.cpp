// What a carrier weighs with its load.
#include "frame/hullkit.h"

OBJHANDLE HULLKIT::CarriedVessel(DWORD index) const {
    ATTACHMENTHANDLE point = GetAttachmentHandle(false, index);
    return point ? GetAttachmentStatus(point) : nullptr;
}

void HULLKIT::UpdateCompositeMass() {
    // A carried vessel's whole mass, propellant included, rides in the
    // carrier's empty mass, as recent as the last call.
    double carried = 0.0;
    for (DWORD i = 0; i < AttachmentCount(false); ++i)
        if (VESSEL *child = oapiGetVesselInterface(CarriedVessel(i)))
            carried += child->GetMass();
    SetEmptyMass(DryMass + carried);
}
