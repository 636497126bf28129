// Simulation time as the modules see it.
#include "OrbiterAPI.h"
#include "core/world.h"

using hullhost::World;

double oapiGetSimTime() { return World::Current().simt; }
double oapiGetSimStep() { return World::Current().simdt; }
double oapiGetSysStep() { return World::Current().sysdt; }
double oapiGetSysTime() { return World::Current().syst; }
double oapiGetSimMJD() { return World::Current().Mjd(); }
double oapiGetTimeAcceleration() { return World::Current().VisibleAccel(); }

// Takes effect with the next frame, also when called from a vessel's step.
void oapiSetTimeAcceleration(double warp) {
    if (warp > 0.0)
        World::Current().SetTimeAcceleration(warp);
}
