// hullsim's additions to the host interface. Modules written for hullsim may
// call them; a module meant for any host only declares what it needs weakly.
#pragma once

#include "OrbiterAPI.h"

// Passes on to the run's event log what a vessel reported: the reporting
// vessel (null: none), the report's kind and text (zero-terminated), and its
// latitude, longitude [deg] and altitude above ground [m].
OAPIFUNC void hullsimReport(OBJHANDLE vessel, int kind, const char *text, double lat, double lng, double alt);
