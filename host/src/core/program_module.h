// Vessel code linked into the host program itself (as in tests) asks for its
// module's file like a loaded module does; this names the file it stands for.
#pragma once

#include <string>

namespace hullhost {
// A path in the host's form, such as "Modules\\Fleet\\Korvan.dll".
void SetProgramModulePath(const std::string &hostPath);
} // namespace hullhost
