// A key script: the keys that hullsim presses for the focus vessel. One line
// each "TIME KEY [SECONDS]"; KEY is a key name with any of the prefixes Ctrl+,
// Shift+ and Alt+ (the left modifier keys). Without SECONDS the key is
// pressed once, with SECONDS it is held down that long. Blank lines are
// skipped, and ';' starts a comment.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OrbiterAPI.h"

namespace hullhost::sim {

struct KeyAction {
    double time = 0.0;            // simulation time of the press [s]
    DWORD key = 0;                // OAPI_KEY_*
    std::vector<DWORD> modifiers; // held with the key
    std::optional<double> hold;   // [s]; empty for a single press
    int line = 0;                 // in the script, for messages
};

// The actions in the order of their times (stable for equal times). Throws
// UsageError naming the line for a syntax error or an unknown key.
std::vector<KeyAction> ParseKeyScript(std::string_view text, const std::string &source = "key script");
// Reads a key script file. Throws std::runtime_error when it can't be read.
std::vector<KeyAction> ReadKeyScript(const std::string &path);

} // namespace hullhost::sim
