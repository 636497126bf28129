// Reentry: the texture of the reentry flame and its pressure limit, length
// and width scales. Numbers not given keep the host's defaults.
#include <algorithm>
#include <array>

#include "config/number_lists.h"
#include "frame/hullkit.h"

void HULLKIT::ReadReentryKey() {
    const std::string &value = Cfg("Reentry");
    const std::size_t nameStart = value.find_first_not_of(' ');
    if (nameStart == std::string::npos)
        return;
    const std::size_t nameEnd = std::min(value.find(' ', nameStart), value.size());
    std::string name = value.substr(nameStart, nameEnd - nameStart);

    std::array<double, 3> scales{6e7, 1.0, 1.0};
    ScanNumbers(std::string_view(value).substr(nameEnd), scales);
    SURFHANDLE texture = oapiRegisterReentryTexture(name.data());
    SetReentryTexture(texture, scales[0], scales[1], scales[2]);
}
