// Mesh group labels: in a mesh file each group is introduced by a line
// "LABEL <name>", so a group's index is the count of label lines before it.
#include <vector>

#include "frame/hullkit.h"

int32_t HULLKIT::ResolveGroupLabel(const std::string &meshName, const std::string &label) {
    if (MeshTable.IndexOf(meshName) < 0)
        return -1;
    const std::string file = MeshTable.GetString(meshName, "File");
    FILEHANDLE handle = oapiOpenFile(file.c_str(), FILE_IN, MESHES);
    if (!handle)
        return -1;
    std::vector<std::string> lines;
    char *line = nullptr;
    while (oapiReadScenario_nextline(handle, line) && line)
        lines.emplace_back(line);
    oapiCloseFile(handle, FILE_IN);

    int32_t group = 0;
    for (const std::string &text : lines) {
        if (text.find("LABEL") == std::string::npos)
            continue;
        // The label stands behind "LABEL" and one blank.
        if ((text.size() > 6 ? text.substr(6) : std::string()) == label)
            return group;
        ++group;
    }
    return -1;
}
