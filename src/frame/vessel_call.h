// The identity of what runs in a vessel: updaters, timer events, sequence
// actions are member functions without arguments or result.
#pragma once

#include <span>

class HULLKIT;

using VesselCall = void (HULLKIT::*)();

// One row of a name table. Names are exact and case-sensitive.
struct NamedCall {
    char name[104];
    VesselCall call;
};

using NameTable = std::span<const NamedCall>;
