// The head-up display: the host's own drawing, plus a mark below the host's
// navigation button of the mode that the vessel flies itself.
#include <cmath>

#include "DrawAPI.h"
#include "frame/hullkit.h"

bool HULLKIT::clbkDrawHUD(int mode, const HUDPAINTSPEC *hps, oapi::Sketchpad *skp) {
    VESSEL3::clbkDrawHUD(mode, hps, skp);
    if (!hps || !skp || !NavOverrideEnabled || NavOverrideMode < 1 || NavOverrideMode > 6)
        return true;
    const int a = static_cast<int>(std::trunc(hps->W * 0.373));
    const int b = static_cast<int>(std::trunc(hps->W * 0.036));
    const int y = static_cast<int>(std::trunc(hps->H * 0.955));
    int x = 0;
    switch (NavOverrideMode) {
    case 1:
        x = a;
        break;
    case 2:
        x = 0;
        break;
    default: // modes 3 to 6 stand in a row behind the first two buttons
        x = a + (NavOverrideMode - 1) * b + 4;
        break;
    }
    skp->SetPen(HudPen);
    skp->Rectangle(x, y, x + b, hps->H);
    skp->SetPen(nullptr);
    return true;
}
