// The generic cockpit: the view, the sound request and the pen of the
// head-up display.
#include "frame/hullkit.h"

bool HULLKIT::clbkLoadGenericCockpit() {
    ApplyCamera();
    if (!SoundsAsked) {
        SendPeerMessage(ControllerObject, 12, 0);
        SoundsAsked = true;
    }
    // The host loads the cockpit each time the vessel takes the focus: one pen
    // serves them all.
    if (!HudPen)
        HudPen = oapiCreatePen(1, 4, 0xff);
    return true;
}
