// The rotation of a rigid body that no torque acts on. Its rate in the body
// frame follows Euler's equations alone, whatever the attitude, and the
// attitude follows the rate exactly over each substep, so that a piece
// spinning fast costs few steps: only the rate's change bounds them.
#pragma once

#include "OrbiterAPI.h"

namespace hullhost::physics {

// Advances the attitude `R` (vessel to global) and the rate `w` (vessel
// frame, rad/s) by `h` seconds; `inertia` holds the principal moments along
// the vessel's axes, each above 0.
void RotateFree(MATRIX3 &R, VECTOR3 &w, const VECTOR3 &inertia, double h);

} // namespace hullhost::physics
