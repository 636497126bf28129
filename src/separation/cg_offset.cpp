// The centre of gravity moved along the vessel's axis, with the point by which
// it hangs on its carrier and everything it carries.
#include "frame/hullkit.h"

void HULLKIT::SetCgOffset(double z, double extra) {
    ShiftCG(-CgShift);
    CgShift.z = z;
    ShiftCG(CgShift);
    if (ToParentAttachment)
        SetAttachmentParams(ToParentAttachment, ToParentPos - _V(0, 0, z + extra), ToParentDir, ToParentRot);
    for (DWORD i = 0; i < AttachmentCount(false); ++i)
        if (VESSEL *child = oapiGetVesselInterface(CarriedVessel(i)); IsHullkit(child))
            static_cast<HULLKIT *>(child)->SetCgOffset(z, 0.0);
}
