// Where the stage meets its flight program: the updater, the second pass of
// the scenario, and the program's start and stop with the control modes and
// the carrier.
#include "stage/korvan.h"

void Korvan::K_PGM_STEP() { program->Tick(); }

void Korvan::ParseScenarioLineLate(char *line) {
    if (!program->ReadScenarioLine(line))
        HULLKIT::ParseScenarioLineLate(line);
}

// The autopilot flag is already off here, so the next step doesn't start:
// the running one stops, undone, and starts again from its beginning when
// the autopilot comes back.
void Korvan::OnManualControl() { program->AdvanceStep(); }

void Korvan::OnAutopilotEngaged() { program->StartNextStep(); }

void Korvan::OnAttached() {
    HULLKIT::OnAttached();
    program->StopStep();
}
