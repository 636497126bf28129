// Korvan: an upper stage with a restartable main engine that needs ullage
// before every ignition, ullage motors and a fairing to jettison, payloads to
// release, and a flight program flown by its autopilot.
//
// Beyond the framework's configuration it reads these plain keys:
//   UllageTime            s of ullage motor firing before each ignition
//   MaxNumberOfIgnitions  main engine starts over the whole flight (0 when missing)
// and needs these records: the tanks Main and RCS, the thruster Main0 (the one
// the gimbal turns), the thruster groups Main and Fwd (ullage motors), and the
// animation controls acMainPitch and acMainYaw. Without one of them the
// engine refuses to start rather than guess.
//
// Its scenario lines: IGNITE "<ullage running 0|1> <ignitions used>",
// OPERATE <ullage seconds left>, MAIN_RUN 1, IGN_FAIL <index of the first
// ignition that fails>, PREMA_SEP 1; then the flight program's AP_TIMER,
// AP_PARAMS and PGM lines (see FlightProgram).
#pragma once

#include <cstdint>
#include <memory>

#include "frame/hullkit.h"
#include "stage/flight_program.h"

class Korvan : public HULLKIT {
  public:
    // All first values come from InitDefaults.
    Korvan(OBJHANDLE hVessel, int flightModel);

    // --- The host's callbacks and the framework's operations it extends ------
    void clbkSaveState(FILEHANDLE scn) override;
    int clbkConsumeDirectKey(char *kstate) override;
    bool clbkDrawHUD(int mode, const HUDPAINTSPEC *hps, oapi::Sketchpad *skp) override;
    void ParseScenarioLine(char *line, void *status) override;
    void ApplyConfiguration() override;
    void ParseScenarioLineLate(char *line) override;
    void InitDefaults() override;
    void OnAttached() override;
    void OnControllerMoved(ANIM_CTRL_REC *controller) override;
    intptr_t OnPeerMessage(OBJHANDLE sender, int code, intptr_t argument) override;
    void OnFocusLost(OBJHANDLE other) override;
    void OnFailure() override;
    void PrepareControlToggle() override;
    void OnManualControl() override;
    void OnAutopilotEngaged() override;
    void OnAutopilotThrottle() override;
    void OnDetached() override;
    void JettisonNext() override;
    void StartMissionClock() override;

    // --- The main engine ------------------------------------------------------
    // Starts the ullage countdown, unless the engine can't or needn't start;
    // every refusal is a message and no change.
    void IgniteMain();
    // Stops the engine, or aborts the ullage, and says how many firings are left.
    void ShutdownMain();
    void FailIgnition();
    // The thrust direction after a gimbal control moved.
    void UpdateMainGimbal(ANIM_CTRL_REC *control);
    // The end of the ullage countdown.
    void Ignite();
    // A plain key's number; a missing or malformed key reads as 0.
    double CfgNumber(const char *key);

    // --- Jettison ---------------------------------------------------------------
    // Spawns the two SOZ, which leave 0.2 s later.
    void DropSoz();
    // Releases a payload, and vents 5 s later if nothing hangs on the stage any more.
    void SeparateAndVent(CHILD_REC &child, SEPARATION_REC *sep);

    // The stage's updaters.
    void K_IGNITE();
    void K_FLIGHT();
    void K_PGM_STEP();
    // The stage's timer events.
    void K_DROP_SOZ();
    void K_DROP_FAIRING_START();
    void K_DROP_FAIRING();
    void K_DROP_FAIRING_STOP();
    void K_VENT_START();
    void K_VENT_STOP();

    // --- Members, in the order of the object ------------------------------------
    THRUSTER_HANDLE mainThruster = nullptr; // the thruster Main0, which the gimbal turns
    std::unique_ptr<FlightProgram> program;
    bool sozDropped = false, fairingDropped = false;
    int32_t maxIgnitions = 0;
    bool ullageInProgress = false;
    bool prematureSep = false; // an ignition failure takes the SOZ with it
    int32_t ignitionsUsed = 0;
    double ullageTime = 0.0;  // [s]
    double ullageLeft = 0.0;  // [s] of the running countdown
    int32_t ignFailAt = 1000; // index of the first ignition that fails; 1000: none
    PROPELLANT_HANDLE rcsTank = nullptr;
};
