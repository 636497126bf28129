// The alert a vessel in trouble raises with the controller vessel.
#include "frame/hullkit.h"

namespace {

// Bytes of the controller's shared block: an alert may be raised, and one is
// already being handled.
constexpr size_t kAlertAllowed = 432, kAlertBusy = 433;

} // namespace

void HULLKIT::RaiseAlert() {
    if (!ControllerData || !ControllerHullkit)
        return;
    const auto *block = static_cast<const unsigned char *>(ControllerData);
    if (block[kAlertAllowed] && !block[kAlertBusy])
        ControllerHullkit->OnPeerMessage(GetHandle(), 4, 0);
}
