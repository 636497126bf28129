// The first pass over a vessel's scenario lines, before its configuration
// is read: lines that set plain members and the running lists. Everything
// else goes to the host.
#include <cstdio>
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

// The keys are tested in a fixed order and the first that matches wins, so
// "TIMERS_1T_ME" stands before "TIMERS_1T". A scan that doesn't match its
// form leaves what it couldn't read as it was.
void HULLKIT::ParseScenarioLine(char *line, void *status) {
    // Tank and thruster levels come from the vessel's own lines, not the host's.
    for (const char *ignored : {"PRPLEVEL", "TANKS", "THLEVEL", "THRUSTS"})
        if (Begins(line, ignored))
            return;
    if (Begins(line, "SPOTLIGHT_FOG_PROBABILITY")) {
        std::sscanf(line + 25, "%lf", &SpotlightFogProbability);
    } else if (Begins(line, "BALLISTIC")) {
        double *b = BallisticTarget;
        std::sscanf(line + 9, "%lf %lf %lf %lf %lf", &b[0], &b[1], &b[2], &b[3], &b[4]);
    } else if (Begins(line, "ORBIT")) {
        std::sscanf(line + 5, "%lf %lf %lf", &OrbitTargetRadius, &OrbitInsertRadius, &OrbitInclination);
    } else if (Begins(line, "MET")) {
        int show = ShowMet ? 1 : 0;
        std::sscanf(line + 3, "%lf %d", &MissionTime, &show);
        ShowMet = show != 0;
    } else if (Begins(line, "IMU")) {
        VECTOR3 &y = ImuYawReference, &p = ImuPitchReference;
        std::sscanf(line + 3, "%lf %lf %lf  %lf %lf %lf", &y.x, &y.y, &y.z, &p.x, &p.y, &p.z);
    } else if (Begins(line, "RELIABILITY")) {
        std::sscanf(line + 11, "%lf", &Reliability);
    } else if (Begins(line, "FAILURES")) {
        int pitch = PitchFailed, yaw = YawFailed, roll = RollFailed;
        std::sscanf(line + 8, "%d %d %d %d %d", &FailureIndex, &FailureKind, &pitch, &yaw, &roll);
        PitchFailed = pitch != 0;
        YawFailed = yaw != 0;
        RollFailed = roll != 0;
    } else if (Begins(line, "FIRE")) {
        std::sscanf(line + 4, "%lf %lf %lf %lf %lf", &FireGrowTime, &FireBurnTime, &EngineFadeTime,
                    &FireLevel, &FireMainLevel);
    } else if (Begins(line, "TEMPERATURE")) {
        std::sscanf(line + 11, "%lf", &Temperature);
    } else if (Begins(line, "MTDP")) {
        VECTOR3 p[3] = {TouchdownPts[0], TouchdownPts[1], TouchdownPts[2]};
        std::sscanf(line + 4, "%lf %lf %lf %lf %lf %lf %lf %lf %lf", &p[0].x, &p[0].y, &p[0].z, &p[1].x,
                    &p[1].y, &p[1].z, &p[2].x, &p[2].y, &p[2].z);
        SetTouchdownPts(p[0], p[1], p[2]);
        TouchdownPtsFromScenario = true;
    } else if (Begins(line, "UPDATERS")) {
        RestoreUpdaters(Behind(line, "UPDATERS"));
    } else if (Begins(line, "TIMERS_1T_ME")) {
        RestoreOneShots(Behind(line, "TIMERS_1T_ME"), true);
    } else if (Begins(line, "TIMERS_1T")) {
        RestoreOneShots(Behind(line, "TIMERS_1T"), false);
    } else if (Begins(line, "TIMERS_P1S")) {
        RestorePeriodicEvents(Behind(line, "TIMERS_P1S"), false);
    } else if (Begins(line, "TIMERS_P10M")) {
        RestorePeriodicEvents(Behind(line, "TIMERS_P10M"), true);
    } else if (status) {
        ParseScenarioLineEx(line, status);
    }
}
