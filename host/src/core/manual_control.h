// The user's keypad as a command to the attitude thruster groups.
#pragma once

#include "OrbiterAPI.h"

namespace hullhost {

// The level 0 or 1 that the keys held in `keyState` command for a group.
// `attitudeMode` is the vessel's RCS mode; `mode` is one of MANCTRL_*.
double ManualControlLevel(const char *keyState, int attitudeMode, THGROUP_TYPE group, DWORD mode);

} // namespace hullhost
