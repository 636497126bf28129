// Where a written scenario line goes: the scenario file, a list of lines for
// a vessel yet to be made, or the vessel's own lines for a reload in place.
#include "frame/hullkit.h"

void HULLKIT::EmitScenarioLine(FILEHANDLE scn, std::vector<std::string> *lines, const char *key,
                               const std::string &value) {
    if (scn)
        oapiWriteScenario_string(scn, key, value.c_str());
    else if (lines)
        lines->push_back(std::string(key) + " " + value);
    else
        PendingLines.push_back(std::string(key) + " " + value);
}
