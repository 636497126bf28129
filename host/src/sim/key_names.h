// The names of keys in key scripts, and their scan codes (OAPI_KEY_*).
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "OrbiterAPI.h"

namespace hullhost::sim {

// The scan code of a key name such as "M", "TAB", "KP_PLUS", "F1", "UP";
// names are compared without regard to case. Empty for an unknown name.
std::optional<DWORD> KeyCode(std::string_view name);

// The name that KeyCode reads back as `code`: the key's character, F1..F12,
// else the first name of the key; "0x.." (hex) for a code without a name.
std::string KeyName(DWORD code);
// KeyName with the prefixes Ctrl+, Shift+ and Alt+ of the modifier keys down
// in `kstate` (left or right), as a key script writes them.
std::string KeyNameWithModifiers(DWORD code, const char *kstate);

} // namespace hullhost::sim
