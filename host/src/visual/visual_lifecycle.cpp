#include "visual_lifecycle.h"

#include "animation_apply.h"
#include "core/world.h"
#include "visual.h"

namespace hullhost {

void CreateVisual(World &w, Vessel &v) {
    if (!v.iface || v.visual)
        return;
    v.visual = std::make_unique<Visual>(v);
    ApplyAnimations(v);
    CallbackScope scope(w, &v);
    static_cast<VESSEL2 *>(v.iface)->clbkVisualCreated(v.visual->Handle(), 1);
}

void DestroyVisual(World &w, Vessel &v) {
    if (!v.visual)
        return;
    if (v.iface) {
        CallbackScope scope(w, &v);
        static_cast<VESSEL2 *>(v.iface)->clbkVisualDestroyed(v.visual->Handle(), 0);
    }
    v.visual.reset();
}

} // namespace hullhost
