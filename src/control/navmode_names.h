// The names of the attitude modes, in order from NONE. Positions 0 to 7 are
// the host's mode numbers; the program's modes 9 to 12 follow at 8 to 11.
#pragma once

inline constexpr const char *kNavModeNames[12] = {"NONE",       "KILLROT",     "HLEVEL",     "PROGRADE",
                                                  "RETROGRADE", "NORMAL",      "ANTINORMAL", "HOLDALT",
                                                  "TANGENT",    "ANTITANGENT", "BODY",       "ANTIBODY"};
