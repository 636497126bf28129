// The first pass over a vessel's scenario lines, before its configuration
// is read: lines that set plain members and the running lists. Everything
// else goes to the host.
#include <cstring>
#include <strings.h>

#include "frame/hullkit.h"

namespace {

// A line begins with the key, compared without case over the key's length.
bool Begins(const char *line, const char *key) { return strncasecmp(line, key, std::strlen(key)) == 0; }

std::string Behind(const char *line, const char *key) {
    const char *value = line + std::strlen(key);
    return *value == ' ' ? value + 1 : value;
}

} // namespace

void HULLKIT::ParseScenarioLine(char *line, void *status) {
    // Tank and thruster levels come from the vessel's own lines, not the host's.
    for (const char *ignored : {"PRPLEVEL", "TANKS", "THLEVEL", "THRUSTS"})
        if (Begins(line, ignored))
            return;
    if (Begins(line, "UPDATERS"))
        RestoreUpdaters(Behind(line, "UPDATERS"));
    else if (Begins(line, "TIMERS_1T_ME"))
        RestoreOneShots(Behind(line, "TIMERS_1T_ME"), true);
    else if (Begins(line, "TIMERS_1T"))
        RestoreOneShots(Behind(line, "TIMERS_1T"), false);
    else if (Begins(line, "TIMERS_P1S"))
        RestorePeriodicEvents(Behind(line, "TIMERS_P1S"), false);
    else if (Begins(line, "TIMERS_P10M"))
        RestorePeriodicEvents(Behind(line, "TIMERS_P10M"), true);
    else if (status)
        ParseScenarioLineEx(line, status);
}

void HULLKIT::ParseScenarioLineLate(char *) {}
