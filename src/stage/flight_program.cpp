// The flight program at run time: one step after the other, each started,
// ticked by the updater K_PGM_STEP and stopped.
#include <cstdio>
#include <utility>

#include "stage/korvan.h"

namespace {

// What the program asks of its vessel goes through the vessel's messages.
enum Message : int {
    kStartUpdater = 688,
    kStopUpdater = 689,
    kIgnite = 690,
    kShutdown = 691,
    kSeparate = 692,
    kFinished = 693,
};

intptr_t Send(Korvan &k, int code, intptr_t argument = 0) {
    return k.SendPeerMessage(k.GetHandle(), code, argument);
}

} // namespace

void FlightProgram::StartNextStep() {
    if (!vessel->AutopilotActive)
        return;
    ProgramStep *next = nullptr;
    for (ProgramStep &step : steps)
        if (!step.done) {
            next = &step;
            break;
        }
    if (!next) {
        vessel->ToggleControlMode(); // the end of the list hands control back
        Send(*vessel, kFinished);
        return;
    }
    current = next;
    vessel->NavOverrideMode = current->navMode;
    if (current->byMet)
        current->duration = current->metTime - vessel->MissionTime;
    else
        current->metTime = current->duration + vessel->MissionTime;
    // A positive countdown is one restored from the scenario, and so is a
    // lunar preparation: the step that was running goes on with them.
    if (apTimer <= 0.0)
        apTimer = current->duration;
    const bool restored = std::exchange(preparationRestored, false);
    switch (current->type) {
    case ProgramStep::kIdle:
        if (current->target == ProgramStep::kMoon && !restored)
            PrepareLunarTransfer();
        stepFn = &FlightProgram::StepIdle;
        break;
    case ProgramStep::kAtt:
        stepFn = &FlightProgram::StepAtt;
        break;
    case ProgramStep::kBurn:
        stepFn = &FlightProgram::StepBurn;
        break;
    default:
        stepFn = &FlightProgram::StepJett;
        break;
    }
    Send(*vessel, kStartUpdater);
    // A refused ignition is shown, and the step goes on all the same.
    if (current->type == ProgramStep::kBurn)
        Send(*vessel, kIgnite);
}

void FlightProgram::StopStep() {
    Send(*vessel, kStopUpdater);
    oapiDebugString()[0] = '\0';
    vessel->NavOverrideMode = 0;
    apTimer = 0.0;
    vessel->StopThrusterGroups("Main");
    // The engine stops at the end of every step; this is how a burn ends.
    Send(*vessel, kShutdown);
}

void FlightProgram::AdvanceStep() {
    StopStep();
    StartNextStep();
}

void FlightProgram::Tick() {
    Korvan &k = *vessel;
    k.GetElements(k.EarthHandle, elements, &orbit, 0.0, FRAME_EQU);
    k.GetApDist(k.ApDist);
    k.GetPeDist(k.PeDist);
    apTimer -= k.SimStep;
    if (!stepFn || !current) {
        // The updater came back from a scenario with no step started: the
        // program picks up its first undone step where it stood, with the
        // countdown of AP_TIMER and the engine and vent as they run, and
        // ticks it at once, as the saved run would have.
        StartNextStep();
        if (!stepFn || !current) {
            StopStep();
            return;
        }
    }
    (this->*stepFn)();
    if (k.HasFocus)
        std::snprintf(oapiDebugString(), sizeof text, "%s", text);
    if (current->done)
        AdvanceStep();
}

int FlightProgram::CountBurnsLeft() const {
    int n = 0;
    for (const ProgramStep &step : steps)
        n += step.type == ProgramStep::kBurn && !step.done;
    return n;
}

void FlightProgram::StepAtt() {
    vessel->MaxTimeAccel = 10.0;
    std::snprintf(text, sizeof text, "Orientng: %.0f", apTimer);
    current->done = apTimer <= 0.0;
}

void FlightProgram::StepJett() {
    vessel->MaxTimeAccel = 10.0;
    // A name that matched no child leaves nothing to separate; the step ends all the same.
    Send(*vessel, kSeparate, reinterpret_cast<intptr_t>(current));
    text[0] = '\0';
    current->done = true;
}
