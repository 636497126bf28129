// The second pass over a vessel's scenario lines, once every record exists:
// lines that name records, cameras, sequences and the parent attachment.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "config/text_ops.h"
#include "frame/hullkit.h"
#include "scenario/scenario_keys.h"

void HULLKIT::ParseScenarioLineLate(char *line) {
    if (BeginsWithKey(line, "HK_FLAGS")) {
        int autopilot = 0, autoSwitch = 0;
        const int read = std::sscanf(line + 8, "%d %d", &autopilot, &autoSwitch);
        if (read >= 1)
            AutopilotActive = autopilot == 1;
        if (read >= 2)
            AutoSwitchFocus = autoSwitch == 1;
    } else if (BeginsWithKey(line, "FOCUS")) {
        int focus = 0;
        if (std::sscanf(line + 5, "%d", &focus) == 1)
            FocusEnabled = focus == 1;
    } else if (BeginsWithKey(line, "CAMERA")) {
        char name[50];
        if (std::sscanf(line + 6, "%49s", name) == 1)
            CurrentCamera = name;
    } else if (BeginsWithKey(line, "MESH_TEXTURE")) {
        char mesh[50], texture[50];
        int index = 0;
        if (std::sscanf(line + 12, "%49s %d %49s", mesh, &index, texture) == 3)
            SetMeshTexture(mesh, index, texture, true);
    } else if (BeginsWithKey(line, "MESHGROUPVIS")) {
        // Items "mesh:group:hidden" at blanks; doubles aren't looked for.
        for (std::string item : SplitQuoted(TextBehindKey(line, "MESHGROUPVIS"))) {
            if (item.empty())
                continue;
            const std::vector<std::string> parts = SplitBy(item, ':');
            if (parts.empty())
                continue;
            const int group = parts.size() > 1 ? std::atoi(parts[1].c_str()) : 0;
            const bool hidden = parts.size() > 2 && std::atoi(parts[2].c_str()) == 1;
            meshGroupVis.push_back({parts[0], group, hidden});
        }
    } else if (BeginsWithKey(line, "CONDITIONAL_SEQUENCE")) {
        // The name is the first word; the state text follows behind one blank.
        const std::string value = TextBehindKey(line, "CONDITIONAL_SEQUENCE");
        const std::size_t begin = value.find_first_not_of(' ');
        if (begin == std::string::npos)
            return;
        const std::size_t end = std::min(value.find(' ', begin), value.size());
        const std::string states = end + 1 < value.size() ? value.substr(end + 1) : std::string();
        StartConditionalSequence(value.substr(begin, end - begin), states.c_str());
    } else if (BeginsWithKey(line, "TIMED_SEQUENCE")) {
        // "name, clock": the comma ends the name, which may hold blanks.
        const std::string value = TextBehindKey(line, "TIMED_SEQUENCE");
        const std::size_t comma = value.find(',');
        if (comma == 0 || value.empty())
            return;
        double clock = 0.0;
        if (comma != std::string::npos)
            std::sscanf(value.c_str() + comma + 1, "%lf", &clock);
        StartTimedSequence(value.substr(0, comma), clock);
    } else if (BeginsWithKey(line, "PARENT")) {
        std::string value = TextBehindKey(line, "PARENT");
        const std::vector<std::string> tokens = SplitBy(value, ' ');
        if (tokens.empty())
            return;
        VECTOR3 *targets[] = {&ToParentPos, &ToParentDir, &ToParentRot};
        for (std::size_t t = 0; t < 3 && tokens.size() >= 3 * (t + 1); ++t) {
            double *xyz[] = {&targets[t]->x, &targets[t]->y, &targets[t]->z};
            for (std::size_t k = 0; k < 3; ++k)
                std::sscanf(tokens[3 * t + k].c_str(), "%lf", xyz[k]);
        }
        if (ToParentAttachment)
            SetAttachmentParams(ToParentAttachment, ToParentPos, ToParentDir, ToParentRot);
    }
}
