#include "probe_vessel.h"

#include "frame/vessel_report.h"

namespace {

const NamedCall kProbeUpdaters[] = {
    {"U_A", static_cast<VesselCall>(&ProbeVessel::U_A)},
    {"U_B", static_cast<VesselCall>(&ProbeVessel::U_B)},
    {"U_C", static_cast<VesselCall>(&ProbeVessel::U_C)},
    {"U_ADDS_C", static_cast<VesselCall>(&ProbeVessel::U_ADDS_C)},
    {"U_REMOVES_SELF", static_cast<VesselCall>(&ProbeVessel::U_REMOVES_SELF)},
    {"U_REMOVES_A", static_cast<VesselCall>(&ProbeVessel::U_REMOVES_A)},
};

const NamedCall kProbeEvents[] = {
    {"E_ONE", static_cast<VesselCall>(&ProbeVessel::E_ONE)},
    {"E_TWO", static_cast<VesselCall>(&ProbeVessel::E_TWO)},
    {"E_READDS_SELF", static_cast<VesselCall>(&ProbeVessel::E_READDS_SELF)},
};

const TimedAction kProbeTimedActions[] = {
    {"DO_A", static_cast<VesselCall>(&ProbeVessel::S_A)},
    {"DO_B", static_cast<VesselCall>(&ProbeVessel::S_B)},
};

const ConditionalAction kProbeConditionalActions[] = {
    {"WHEN_A", static_cast<VesselCall>(&ProbeVessel::U_A), static_cast<SequenceFlag>(&ProbeVessel::flagA),
     static_cast<VesselCall>(&ProbeVessel::S_A)},
    {"WHEN_B", static_cast<VesselCall>(&ProbeVessel::U_B), static_cast<SequenceFlag>(&ProbeVessel::flagB),
     static_cast<VesselCall>(&ProbeVessel::S_B)},
};

} // namespace

TimedActionTable ProbeVessel::TimedActions() const { return kProbeTimedActions; }
ConditionalActionTable ProbeVessel::ConditionalActions() const { return kProbeConditionalActions; }

ProbeVessel::ProbeVessel(OBJHANDLE h, int fmodel) : HULLKIT(h, fmodel) {
    RegisterStageTables(kProbeUpdaters, kProbeEvents);
}

void ProbeVessel::ParseScenarioLine(char *line, void *status) {
    firstPass.emplace_back(line);
    HULLKIT::ParseScenarioLine(line, status);
}

void ProbeVessel::ParseScenarioLineLate(char *line) {
    secondPass.emplace_back(line);
    HULLKIT::ParseScenarioLineLate(line);
}

void ProbeVessel::ApplyConfiguration() {
    ++applyCount;
    HULLKIT::ApplyConfiguration();
}

intptr_t ProbeVessel::OnPeerMessage(OBJHANDLE sender, int code, intptr_t argument) {
    receivedCodes.push_back(code);
    if (!actAsController)
        return HULLKIT::OnPeerMessage(sender, code, argument);
    switch (code) {
    case 1:
        return reinterpret_cast<intptr_t>(GetHandle());
    case 13: {
        auto *bytes = reinterpret_cast<const char *>(argument);
        reports.emplace_back(bytes, bytes + sizeof(VesselReport));
        return 0;
    }
    default:
        return 0;
    }
}

void ProbeVessel::U_A() { runs.push_back("A"); }
void ProbeVessel::U_B() { runs.push_back("B"); }
void ProbeVessel::U_C() { runs.push_back("C"); }

void ProbeVessel::U_ADDS_C() {
    runs.push_back("ADDS_C");
    AddUpdater(static_cast<VesselCall>(&ProbeVessel::U_C));
}

void ProbeVessel::U_REMOVES_SELF() {
    runs.push_back("REMOVES_SELF");
    RemoveUpdater(static_cast<VesselCall>(&ProbeVessel::U_REMOVES_SELF));
}

void ProbeVessel::U_REMOVES_A() {
    runs.push_back("REMOVES_A");
    RemoveUpdater(static_cast<VesselCall>(&ProbeVessel::U_A));
}

void ProbeVessel::S_A() { steps.push_back("S_A@" + std::to_string(TimedClock)); }
void ProbeVessel::S_B() { steps.push_back("S_B@" + std::to_string(TimedClock)); }

void ProbeVessel::E_ONE() { runs.push_back("ONE@" + std::to_string(SimTime)); }
void ProbeVessel::E_TWO() { runs.push_back("TWO@" + std::to_string(SimTime)); }

void ProbeVessel::E_READDS_SELF() {
    runs.push_back("READDS");
    AddOneShot(1.0, static_cast<VesselCall>(&ProbeVessel::E_READDS_SELF));
}

VESSEL *ProbeInit(OBJHANDLE h, int fmodel) { return new ProbeVessel(h, fmodel); }
void ProbeExit(VESSEL *v) { delete static_cast<ProbeVessel *>(v); }
