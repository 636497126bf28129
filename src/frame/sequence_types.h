// The vocabulary of sequences: the rows by which a vessel class names the
// steps that its configuration may use, and the steps of a running timed
// sequence.
#pragma once

#include <span>
#include <string>

#include "frame/vessel_call.h"

// A bool member of the vessel that opens a conditional step when it is true.
// A derived class names its own members with
// static_cast<SequenceFlag>(&Derived::member).
using SequenceFlag = bool HULLKIT::*;

// One row of a class's timed table: a step name of the configuration and
// what the step does.
struct TimedAction {
    char name[104];
    VesselCall action;
};

// One row of a class's conditional table. While the step is waited for,
// `watch` runs as an updater (it needs a row in an updater name table; null
// runs none) and is expected to raise `flag`; once the flag is true,
// `action` runs.
struct ConditionalAction {
    char name[104];
    VesselCall watch;
    SequenceFlag flag;
    VesselCall action;
};

using TimedActionTable = std::span<const TimedAction>;
using ConditionalActionTable = std::span<const ConditionalAction>;

// One step of the running timed sequence: it fires once the sequence's clock
// is above `time`.
struct TimedStep {
    bool done;
    double time;
    VesselCall action;
    std::string name;
};
