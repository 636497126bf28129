// What happens in the world that someone outside it may want to hear of: a
// listener set in World::events is told at the moment each thing happens.
#pragma once

#include <string>
#include <vector>

#include "OrbiterAPI.h"

namespace hullhost {

class Vessel;

// A wave that a sound library loaded, played or stopped on a vessel's link.
struct SoundEvent {
    const Vessel *listener = nullptr; // the link's vessel; null once it is gone
    int wave = 0;
    const char *file = nullptr; // as the module named it; null when none is loaded
    const char *op = "";        // "load", "play" or "stop"
    int loop = -1, volume = -1; // of a play: 0 once, 1 in a loop; volume as given
};

class WorldEvents {
  public:
    virtual ~WorldEvents() = default;
    // The text of a vessel's message line changed (also to the empty text).
    virtual void OnMessage(const Vessel &v, const std::string &text) = 0;
    // A vessel made at run time (oapiCreateVessel), not one of a scenario.
    virtual void OnCreated(const Vessel &v) = 0;
    // A vessel is about to go; its object still exists.
    virtual void OnDeleted(const Vessel &v) = 0;
    // The focus moved; null when no vessel is left to take it.
    virtual void OnFocus(const Vessel *v) = 0;
    // A buffered key event reached the focus vessel; `kstate` holds the keys
    // down at that moment.
    virtual void OnKey(const Vessel &focus, DWORD key, bool down, const char *kstate) = 0;
    // The time acceleration took a new value.
    virtual void OnTimeAccel(double value) = 0;
    // `child` was hung on `parent`'s point `point` (the point's id), or let
    // go from it at `velocity` m/s.
    virtual void OnAttached(const Vessel &parent, const Vessel &child, const std::string &point) = 0;
    virtual void OnDetached(const Vessel &parent, const Vessel &child, const std::string &point,
                            double velocity) = 0;
    // One of a vessel's navigation modes went on or off.
    virtual void OnNavmode(const Vessel &v, int mode, bool active) = 0;
    // A sound library acted on a wave; listeners that don't care needn't
    // override it.
    virtual void OnSound(const SoundEvent &) {}
    // A vessel deleted itself in the callback in which it made `wrecks`:
    // a crash. `blast`: one of the wrecks shows a particle stream at a level
    // above 0, an explosion. The vessel still exists.
    virtual void OnCrash(const Vessel &v, bool blast, const std::vector<const Vessel *> &wrecks) = 0;
    // What a vessel reported to the controller vessel that passed it on
    // (hullsimReport): the reporting vessel, the report's kind, text and place.
    virtual void OnReport(const std::string &vessel, int kind, const std::string &text, double lat,
                          double lng, double alt) = 0;
};

} // namespace hullhost
