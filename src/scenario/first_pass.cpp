// The first pass over a vessel's scenario lines, before its configuration
// is read: lines that set plain members and the running lists. Everything
// else goes to the host.
#include <cstdio>
#include <cstring>

#include "frame/hullkit.h"
#include "scenario/scenario_keys.h"

// The keys are tested in a fixed order and the first that matches wins, so
// "TIMERS_1T_ME" stands before "TIMERS_1T". A scan that doesn't match its
// form leaves what it couldn't read as it was.
void HULLKIT::ParseScenarioLine(char *line, void *status) {
    // Tank and thruster levels come from the vessel's own lines, not the host's.
    for (const char *ignored : {"PRPLEVEL", "TANKS", "THLEVEL", "THRUSTS"})
        if (BeginsWithKey(line, ignored))
            return;
    if (BeginsWithKey(line, "SPOTLIGHT_FOG_PROBABILITY")) {
        std::sscanf(line + 25, "%lf", &SpotlightFogProbability);
    } else if (BeginsWithKey(line, "BALLISTIC")) {
        double *b = BallisticTarget;
        std::sscanf(line + 9, "%lf %lf %lf %lf %lf", &b[0], &b[1], &b[2], &b[3], &b[4]);
    } else if (BeginsWithKey(line, "ORBIT")) {
        std::sscanf(line + 5, "%lf %lf %lf", &OrbitTargetRadius, &OrbitInsertRadius, &OrbitInclination);
    } else if (BeginsWithKey(line, "MET")) {
        int show = ShowMet ? 1 : 0;
        std::sscanf(line + 3, "%lf %d", &MissionTime, &show);
        ShowMet = show != 0;
    } else if (BeginsWithKey(line, "IMU")) {
        VECTOR3 &y = ImuYawRef, &p = ImuPitchRef;
        std::sscanf(line + 3, "%lf %lf %lf  %lf %lf %lf", &y.x, &y.y, &y.z, &p.x, &p.y, &p.z);
    } else if (BeginsWithKey(line, "RELIABILITY")) {
        std::sscanf(line + 11, "%lf", &Reliability);
    } else if (BeginsWithKey(line, "FAILURES")) {
        int pitch = PitchFailed, yaw = YawFailed, roll = RollFailed;
        std::sscanf(line + 8, "%d %d %d %d %d", &FailureIndex, &FailureKind, &pitch, &yaw, &roll);
        PitchFailed = pitch != 0;
        YawFailed = yaw != 0;
        RollFailed = roll != 0;
    } else if (BeginsWithKey(line, "FIRE")) {
        std::sscanf(line + 4, "%lf %lf %lf %lf %lf", &FireGrowTime, &FireBurnTime, &EngineFadeTime,
                    &FireLevel, &FireMainLevel);
    } else if (BeginsWithKey(line, "TEMPERATURE")) {
        std::sscanf(line + 11, "%lf", &Temperature);
    } else if (BeginsWithKey(line, "MTDP")) {
        VECTOR3 p[3] = {TouchdownPts[0], TouchdownPts[1], TouchdownPts[2]};
        std::sscanf(line + 4, "%lf %lf %lf %lf %lf %lf %lf %lf %lf", &p[0].x, &p[0].y, &p[0].z, &p[1].x,
                    &p[1].y, &p[1].z, &p[2].x, &p[2].y, &p[2].z);
        SetTouchdownPts(p[0], p[1], p[2]);
        TouchdownPtsFromScenario = true;
    } else if (BeginsWithKey(line, "UPDATERS")) {
        RestoreUpdaters(TextBehindKey(line, "UPDATERS"));
    } else if (BeginsWithKey(line, "TIMERS_1T_ME")) {
        RestoreOneShots(TextBehindKey(line, "TIMERS_1T_ME"), true);
    } else if (BeginsWithKey(line, "TIMERS_1T")) {
        RestoreOneShots(TextBehindKey(line, "TIMERS_1T"), false);
    } else if (BeginsWithKey(line, "TIMERS_P1S")) {
        RestorePeriodicEvents(TextBehindKey(line, "TIMERS_P1S"), false);
    } else if (BeginsWithKey(line, "TIMERS_P10M")) {
        RestorePeriodicEvents(TextBehindKey(line, "TIMERS_P10M"), true);
    } else if (status) {
        ParseScenarioLineEx(line, status);
    }
}
