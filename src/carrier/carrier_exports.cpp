// The module of the class Carrier: the host makes and ends each carrier
// through these.
#include <new>

#include "carrier/carrier.h"

DLLCLBK VESSEL *ovcInit(OBJHANDLE hvessel, int flightmodel) {
    return new (std::nothrow) Carrier(hvessel, flightmodel);
}

DLLCLBK void ovcExit(VESSEL *vessel) {
    if (vessel)
        delete static_cast<Carrier *>(vessel);
}
