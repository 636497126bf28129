// A framework vessel for tests: it records what reaches it and brings a
// stage table of updaters and timer events whose effects can be seen.
#pragma once

#include <string>
#include <vector>

#include "frame/hullkit.h"

class ProbeVessel : public HULLKIT {
  public:
    ProbeVessel(OBJHANDLE h, int fmodel);

    void ParseScenarioLine(char *line, void *status) override;
    void ParseScenarioLineLate(char *line) override;
    void ApplyConfiguration() override;
    intptr_t OnPeerMessage(OBJHANDLE sender, int code, intptr_t argument) override;

    // Updaters that log their runs; some change the list while it is walked.
    void U_A();
    void U_B();
    void U_C();
    void U_ADDS_C();
    void U_REMOVES_SELF();
    void U_REMOVES_A();
    // Timer events that log their firing.
    void E_ONE();
    void E_TWO();
    void E_READDS_SELF();

    // Sequence steps, logged in `steps` with the timed clock: DO_A and DO_B in
    // the timed table; WHEN_A and WHEN_B in the conditional one, watched by
    // U_A and U_B and opened by flagA and flagB.
    TimedActionTable TimedActions() const override;
    ConditionalActionTable ConditionalActions() const override;
    void S_A();
    void S_B();
    bool flagA = false, flagB = false;
    std::vector<std::string> steps;

    std::vector<std::string> firstPass, secondPass, runs;
    int applyCount = 0;

    // When this probe plays the controller, it answers the look-up for the
    // controller and keeps the reports; the rest of the controller is the
    // fleet controller's, tested with it.
    bool actAsController = false;
    std::vector<int> receivedCodes;
    std::vector<std::vector<char>> reports;
};

VESSEL *ProbeInit(OBJHANDLE h, int fmodel);
void ProbeExit(VESSEL *v);
