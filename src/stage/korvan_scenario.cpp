// The stage's lines of the scenario: its engine state, read in the first pass
// and written after the framework's lines, then the flight program's.
#include <cstdio>

#include "scenario/scenario_keys.h"
#include "stage/korvan.h"

void Korvan::ParseScenarioLine(char *line, void *status) {
    if (BeginsWithKey(line, "IGNITE")) {
        int running = ullageInProgress ? 1 : 0;
        std::sscanf(line + 6, "%d %d", &running, &ignitionsUsed);
        ullageInProgress = running != 0;
    } else if (BeginsWithKey(line, "OPERATE")) {
        std::sscanf(line + 7, "%lf", &ullageLeft);
    } else if (BeginsWithKey(line, "MAIN_RUN")) {
        mainRunning = true;
    } else if (BeginsWithKey(line, "PREMA_SEP")) {
        prematureSep = true;
    } else if (BeginsWithKey(line, "IGN_FAIL")) {
        std::sscanf(line + 8, "%d", &ignFailAt);
        // A failure that has struck already survives the reload.
        if (ignFailAt < ignitionsUsed)
            MainEngineFailed = true;
    } else {
        HULLKIT::ParseScenarioLine(line, status);
    }
}

void Korvan::clbkSaveState(FILEHANDLE scn) {
    HULLKIT::clbkSaveState(scn);
    char text[64];
    std::snprintf(text, sizeof text, "%d %d", ullageInProgress ? 1 : 0, ignitionsUsed);
    oapiWriteScenario_string(scn, "IGNITE", text);
    std::snprintf(text, sizeof text, "%0.4lf", ullageLeft);
    oapiWriteScenario_string(scn, "OPERATE", text);
    if (mainRunning)
        oapiWriteScenario_int(scn, "MAIN_RUN", 1);
    if (ignFailAt != 1000)
        oapiWriteScenario_int(scn, "IGN_FAIL", ignFailAt);
    if (prematureSep)
        oapiWriteScenario_int(scn, "PREMA_SEP", 1);
    program->Save(scn);
}
