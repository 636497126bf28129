// Navmodes: the host navigation modes that the vessel implements. A given list
// allows exactly the names in it.
#include <algorithm>

#include "config/text_ops.h"
#include "control/navmode_names.h"
#include "frame/hullkit.h"

void HULLKIT::ReadNavmodesKey() {
    const std::string &value = Cfg("Navmodes");
    if (value.empty())
        return;
    const std::vector<std::string> names = SplitQuoted(value);
    for (int mode = 0; mode < 8; ++mode)
        NavImplemented[mode] = std::find(names.begin(), names.end(), kNavModeNames[mode]) != names.end();
}
