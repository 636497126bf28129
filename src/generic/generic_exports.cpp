// The module of the class Generic: a plain framework vessel whose variant
// files make it a jettisoned element, a payload or a wreck.
#include <new>

#include "generic/generic_piece.h"

DLLCLBK VESSEL *ovcInit(OBJHANDLE hvessel, int flightmodel) {
    return new (std::nothrow) GenericPiece(hvessel, flightmodel);
}

DLLCLBK void ovcExit(VESSEL *vessel) {
    if (vessel)
        delete static_cast<GenericPiece *>(vessel);
}
