// The controllers' keys: a press sets a controller's direction; controllers
// that move only while a key is held follow the keyboard state.
#include "frame/hullkit.h"

namespace {

// Key codes outside the keyboard state count as not held.
bool Held(const char *kstate, int32_t key) { return key >= 0 && key < 256 && KEYDOWN(kstate, key); }

} // namespace

int HULLKIT::AnimKeyEvent(DWORD key, char *kstate) {
    const int32_t ctrl = KEYMOD_CONTROL(kstate) ? 1 : 0;
    const int32_t shift = KEYMOD_SHIFT(kstate) ? 1 : 0;
    const auto code = static_cast<int64_t>(key);
    for (int32_t i = 0; i < AnimCtrlTable.Count(); ++i) {
        ANIM_CTRL_REC *c = AnimCtrlTable.At(i);
        if (!c || c->keepKDown)
            continue;
        const bool minusMods = c->kMinusCtrl == ctrl && c->kMinusShift == shift;
        if (c->kMinus == c->kPlus && code == c->kMinus) {
            // A toggle: several controllers may share the key, so the scan goes on.
            if (minusMods && AnimKeyAllowed(key, kstate, c))
                c->direction = c->state == c->to ? -1 : 1;
        } else if (code == c->kMinus) {
            if (minusMods && AnimKeyAllowed(key, kstate, c)) {
                c->direction = -1;
                return 1;
            }
        } else if (code == c->kPlus) {
            if (c->kPlusCtrl == ctrl && c->kPlusShift == shift && AnimKeyAllowed(key, kstate, c)) {
                c->direction = 1;
                return 1;
            }
        }
    }
    return 0;
}

void HULLKIT::DriveHeldKeys(char *kstate) {
    for (int32_t i = 0; i < AnimCtrlTable.Count(); ++i) {
        ANIM_CTRL_REC *c = AnimCtrlTable.At(i);
        if (!c || !c->keepKDown)
            continue;
        const int32_t wanted = Held(kstate, c->kMinus) ? -1 : Held(kstate, c->kPlus) ? 1 : 0;
        if (wanted != 0 && HaveAutopilot && AutopilotActive) {
            ShowMessage("Manual controls disabled. To enable, use M key.");
            return;
        }
        if (wanted != 0) {
            c->direction = wanted;
        } else if (!AutopilotActive && c->direction != 0) {
            if (c->sndMoveIndex >= 0)
                PlayVesselSound(c->sndMoveIndex, 3, 255);
            c->direction = 0;
        }
    }
}
