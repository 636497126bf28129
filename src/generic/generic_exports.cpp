// The module of the class Generic: a plain framework vessel whose variant
// files make it a jettisoned element, a payload or a wreck.
#include <new>

#include "frame/hullkit.h"

DLLCLBK VESSEL *ovcInit(OBJHANDLE hvessel, int flightmodel) {
    return new (std::nothrow) HULLKIT(hvessel, flightmodel);
}

DLLCLBK void ovcExit(VESSEL *vessel) {
    if (vessel)
        delete static_cast<HULLKIT *>(vessel);
}
