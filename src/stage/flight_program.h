// The stage's flight program: the steps of its PGM lines, flown one at a time
// under the autopilot. It names an attitude for the attitude loop, asks the
// stage to ignite, shut down and separate through its peer messages, and
// decides from the orbit when a step has ended.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Orbitersdk.h"

class Korvan;

// One PGM line, as parsed. Only the fields its type and target use mean anything.
struct ProgramStep {
    enum Type : int32_t { kIdle = 0, kAtt = 1, kBurn = 2, kJett = 3 };
    enum Target : int32_t {
        kNone = 0,
        kPeri = 1,
        kPeriL = 2,
        kApo = 3,
        kApoL = 4,
        kInc = 5,
        kEqu = 6,
        kApoE = 7,
        kMoon = 8,
    };

    int32_t type = kIdle;   // one of Type
    int32_t target = kNone; // one of Target
    bool byMet = false;     // MET was given: metTime is an absolute mission time
    int32_t navMode = 0;    // attitude held during the step: 0 none, 3 to 6, 9 to 12
    std::string jettName;   // JETT: the token that matched a child's ScnVar
    std::string childName;  // JETT: the child record to release; empty when none matched
    std::string sepName;    // JETT: "sepPayload" and the last character of childName
    double value = 0.0;     // the last number read
    double metTime = 0.0;   // [s] mission time at which the step ends
    double duration = 0.0;  // [s] length of the step, or the offset to an orbital event
    double incDeg = 0.0;    // [deg] target inclination
    double incRad = 0.0;    // [rad] the same
    double targetKm = 0.0;  // [km] target altitude above 6371 km
    double targetM = 0.0;   // [m] the same
    bool done = false;      // the step has ended; it isn't saved any more
    std::string line;       // the text as normalised, for saving
};

class FlightProgram {
  public:
    explicit FlightProgram(Korvan *owner) : vessel(owner) {}
    FlightProgram(const FlightProgram &) = delete;
    FlightProgram &operator=(const FlightProgram &) = delete;

    // --- Text and scenario -------------------------------------------------------
    // Parses one step's text (normalised in place) and appends the step.
    void ParseStep(std::string &stepText);
    // PGM, AP_TIMER and AP_PARAMS; false for any other line.
    bool ReadScenarioLine(const char *line);
    // AP_TIMER, AP_PARAMS and the PGM line of every step not done.
    void Save(FILEHANDLE scn);

    // --- Running -------------------------------------------------------------------
    // Starts the first step not done, under the autopilot; hands control back
    // when there is none.
    void StartNextStep();
    // Ends the running step: updater off, attitude off, engine shut down.
    void StopStep();
    void AdvanceStep();
    // The updater K_PGM_STEP's body: fetches the orbit, counts down, runs the step.
    void Tick();
    // BURN steps not done, the running one among them.
    int CountBurnsLeft() const;
    bool Empty() const { return steps.empty(); }
    bool Finished() const { return !steps.empty() && steps.back().done; }

    // --- The step operations, one per type ----------------------------------------
    void StepIdle();
    void StepAtt();
    void StepBurn();
    void StepJett();
    // The apogee of a transfer that meets the Moon, for an IDLE MOON step.
    void PrepareLunarTransfer();

    // --- Members, in the order of the object ---------------------------------------
    Korvan *vessel;                            // the owner, never null
    std::vector<ProgramStep> steps;            // grows only while the scenario is read
    ProgramStep *current = nullptr;            // the running step, into `steps`; null before the first
    ORBITPARAM orbit{};                        // around the Earth, equatorial, as of the last tick
    ELEMENTS elements{};                       // the same
    double apTimer = 0.0;                      // [s] countdown of the running step
    char text[256] = {};                       // the running step's display line
    void (FlightProgram::*stepFn)() = nullptr; // the running step's operation; null before the first
    double moonApogee = 0.0;                   // [m] apogee radius that ends a BURN MOON
    double moonThrottleApogee = 0.0;           // [m] 0.95 of it: from there the engine runs at a tenth
    bool preparationRestored = false;          // AP_PARAMS was read; the next step to start uses it
};
