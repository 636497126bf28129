// The cockpit cameras: the record in use, the walk to the next enabled one,
// and the choice after a reload.
#include <numbers>

#include "frame/hullkit.h"

namespace {
// A rotation limit counts only strictly inside (0, bound).
bool Within(double limit, double bound) { return limit > 0.0 && limit < bound; }
} // namespace

void HULLKIT::ApplyCamera() {
    CAMERA_REC *camera = CameraTable.Find(CurrentCamera);
    if (camera) {
        SetCameraOffset(camera->pos);
        SetCameraDefaultDirection(camera->dir, camera->tilt);
        constexpr double pi = std::numbers::pi;
        if (Within(camera->limRotLeft, pi) && Within(camera->limRotRight, pi) &&
            Within(camera->limRotUp, pi / 2) && Within(camera->limRotDown, pi / 2))
            SetCameraRotationRange(camera->limRotLeft, camera->limRotRight, camera->limRotUp,
                                   camera->limRotDown);
    }
    oapiCameraSetCockpitDir(0, 0, false);
    OnCamerasBuilt();
}

void HULLKIT::NextCamera() {
    const int32_t count = CameraTable.Count();
    int32_t index = CameraTable.IndexOf(CurrentCamera);
    if (index < 0)
        index = 0;
    if (count > 1) {
        // At most one round: a table whose records are all disabled keeps the
        // camera it has.
        for (int32_t step = 1; step <= count; ++step) {
            const int32_t candidate = (index + step) % count;
            const CAMERA_REC *camera = CameraTable.At(candidate);
            if (camera && !camera->disabled) {
                index = candidate;
                break;
            }
        }
    }
    if (count > 0)
        CurrentCamera = CameraTable.NameAt(index);
    ApplyCamera();
}

void HULLKIT::ReselectCamera() {
    if (CameraTable.IndexOf(SavedCamera) >= 0)
        CurrentCamera = SavedCamera;
    else if (CameraTable.IndexOf("fwd") >= 0)
        CurrentCamera = "fwd";
    else if (CameraTable.Count() > 0)
        CurrentCamera = CameraTable.NameAt(0);
    ApplyCamera();
    if (!SecondEvents.empty())
        AddUpdater(&HULLKIT::H_TIMER_P1S);
}
