// ToParent: the point by which this vessel hangs on a carrier. The id comes
// first, then position, direction and rotation; numbers that the list doesn't
// reach keep their values.
#include <algorithm>
#include <array>

#include "config/number_lists.h"
#include "frame/hullkit.h"

void HULLKIT::ReadToParentKey() {
    const std::string &value = Cfg("ToParent");
    const std::size_t idStart = value.find_first_not_of(' ');
    if (idStart == std::string::npos)
        return;
    const std::size_t idEnd = std::min(value.find(' ', idStart), value.size());
    ToParentId = value.substr(idStart, idEnd - idStart);

    std::array<double, 9> g{ToParentPos.x, ToParentPos.y, ToParentPos.z, ToParentDir.x, ToParentDir.y,
                            ToParentDir.z, ToParentRot.x, ToParentRot.y, ToParentRot.z};
    ScanNumbers(std::string_view(value).substr(idEnd), g);
    ToParentPos = _V(g[0], g[1], g[2]);
    ToParentDir = _V(g[3], g[4], g[5]);
    ToParentRot = _V(g[6], g[7], g[8]);

    ConfigToParentPos = ToParentPos;
    ConfigToParentDir = ToParentDir;
    ConfigToParentRot = ToParentRot;
    if (!ToParentId.empty())
        ToParentAttachment =
            CreateAttachment(true, ToParentPos, ToParentDir, ToParentRot, ToParentId.c_str());
}
