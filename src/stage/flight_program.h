// The stage's flight program: the steps of its PGM lines, flown one at a time
// under the autopilot.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// One PGM line.
struct ProgramStep {
    enum Type : int32_t { kIdle = 0, kAtt = 1, kBurn = 2, kJett = 3 };

    int32_t type = kIdle;
    int32_t target = 0;  // 0 none, 1 PERI, 2 PERIL, 3 APO, 4 APOL, 5 INC, 6 EQU, 7 APOE, 8 MOON
    bool byMet = false;  // the time is an absolute mission time
    int32_t navMode = 0; // attitude held during the step
    std::string jettName, childName, sepName;
    double value = 0.0;
    double metTime = 0.0;  // [s]
    double duration = 0.0; // [s]
    double incDeg = 0.0, incRad = 0.0;
    double targetKm = 0.0, targetM = 0.0;
    bool done = false;
    std::string line; // as normalised, for saving
};

class FlightProgram {
  public:
    // The steps in their order; every step before `current` is done.
    std::vector<ProgramStep> steps;
    size_t current = 0;

    bool Empty() const { return steps.empty(); }
    // All steps have ended.
    bool Finished() const { return !steps.empty() && steps.back().done; }
    // BURN steps not yet done, the running one among them.
    int UndoneBurns() const {
        int n = 0;
        for (const ProgramStep &step : steps)
            n += step.type == ProgramStep::kBurn && !step.done;
        return n;
    }
};
