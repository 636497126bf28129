// One failure that a vessel may suffer, from its configuration list.
#pragma once

#include <string>

struct FailureEntry {
    std::string name;   // the keyword as written
    int kind = 0;       // 1 fire, 2 engine, 3 ignition, 4 control, 5 other
    double limit = 0.0; // s of main-engine burn, the upper end of the draw
    double time = 0.0;  // s of burn until the failure acts, drawn at reading
};
