// The main engine watch: whether the engine runs, its sound, and a failed
// engine dying away, 3 to 7 s from full level, however it is throttled.
#include "frame/hullkit.h"
#include "frame/random_draw.h"

void HULLKIT::WatchMainEngine() {
    if (MainEngineFailed) {
        const double level = GetThrusterGroupLevel(THGROUP_MAIN);
        const double dt = SimStep;
        if (level - dt / RandomDraw(3.0, 4.0) > 0.0)
            SetThrusterGroupLevel(THGROUP_MAIN, level - dt / RandomDraw(3.0, 4.0));
        else
            SetThrusterGroupLevel(THGROUP_MAIN, 0.0);
    }
    const double level = GetThrusterGroupLevel(THGROUP_MAIN);
    DriveEngineSound(level);
    mainRunning = level > 0.0;
}
