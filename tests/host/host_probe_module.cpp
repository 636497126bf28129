// The probe vessel as a module that the host loads at run time.
#include "host_probe.h"

DLLCLBK VESSEL *ovcInit(OBJHANDLE hvessel, int flightmodel) { return HostProbeInit(hvessel, flightmodel); }

DLLCLBK void ovcExit(VESSEL *vessel) { HostProbeExit(vessel); }
