// The module's entry points: the host makes and ends each Korvan through them.
#include <new>

#include "stage/korvan.h"

DLLCLBK VESSEL *ovcInit(OBJHANDLE hvessel, int flightmodel) {
    return new (std::nothrow) Korvan(hvessel, flightmodel);
}

DLLCLBK void ovcExit(VESSEL *vessel) {
    if (vessel)
        delete static_cast<Korvan *>(vessel);
}
