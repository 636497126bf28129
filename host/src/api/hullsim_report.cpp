// What a controller vessel hears from the others, passed on to the listener.
#include "HullsimAPI.h"
#include "core/world.h"

using hullhost::World;

void hullsimReport(OBJHANDLE vessel, int kind, const char *text, double lat, double lng, double alt) {
    World *w = World::CurrentOrNull();
    if (!w || !w->events)
        return;
    const hullhost::Vessel *v = w->VesselFromHandle(vessel);
    w->events->OnReport(v ? v->Name() : std::string(), kind, text ? text : "", lat, lng, alt);
}
