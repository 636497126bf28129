// Dock0, Dock1, ...: one dock per key, each position, direction and rotation.
// The first key without a value ends the list.
#include <array>

#include "config/number_lists.h"
#include "frame/hullkit.h"

void HULLKIT::ReadDockKeys() {
    for (int i = 0;; ++i) {
        const std::string &value = Cfg("Dock" + std::to_string(i));
        if (value.empty())
            return;
        std::array<double, 9> g{};
        if (ScanNumbers(value, g) == g.size())
            CreateDock(_V(g[0], g[1], g[2]), _V(g[3], g[4], g[5]), _V(g[6], g[7], g[8]));
    }
}
