// The generic cockpit: the view, the sound request and the pen of the
// head-up display.
#include "frame/hullkit.h"

bool HULLKIT::clbkLoadGenericCockpit() {
    ReselectCamera();
    if (!SoundsAsked) {
        SendPeerMessage(ControllerObject, 12, 0);
        SoundsAsked = true;
    }
    HudPen = oapiCreatePen(1, 4, 0xff);
    return true;
}
