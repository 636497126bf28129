// The names of keys in key scripts, and their scan codes (OAPI_KEY_*).
#pragma once

#include <optional>
#include <string_view>

#include "OrbiterAPI.h"

namespace hullhost::sim {

// The scan code of a key name such as "M", "TAB", "KP_PLUS", "F1", "UP";
// names are compared without regard to case. Empty for an unknown name.
std::optional<DWORD> KeyCode(std::string_view name);

} // namespace hullhost::sim
