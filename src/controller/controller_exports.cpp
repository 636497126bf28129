// The module of the class Controller: the host makes and ends each fleet
// controller through these.
#include <new>

#include "controller/fleet_controller.h"

DLLCLBK VESSEL *ovcInit(OBJHANDLE hvessel, int flightmodel) {
    return new (std::nothrow) FleetController(hvessel, flightmodel);
}

DLLCLBK void ovcExit(VESSEL *vessel) {
    if (vessel)
        delete static_cast<FleetController *>(vessel);
}
