// TouchdownPoints, Size and Geometry. Touchdown points from the configuration
// settle the vessel's geometry on their own: Size and Geometry are then passed
// over. Points restored from the scenario leave the other two keys in force.
#include <array>

#include "config/number_lists.h"
#include "config/value_scan.h"
#include "frame/hullkit.h"

void HULLKIT::ReadGeometryKeys() {
    const std::string &points = Cfg("TouchdownPoints");
    if (!points.empty() && !TouchdownPtsFromScenario) {
        std::array<double, 9> p{};
        if (ScanNumbers(points, p) == p.size())
            SetTouchdownPts(_V(p[0], p[1], p[2]), _V(p[3], p[4], p[5]), _V(p[6], p[7], p[8]));
        return;
    }

    double size = 0.0;
    if (ScanDouble(Cfg("Size"), size)) {
        SetSize(size);
        DefaultSize = size;
    }

    const std::string &value = Cfg("Geometry");
    if (value.empty())
        return;
    const PositionalNumbers list(value);
    if (list.Has(0)) {
        SetSize(list[0]);
        DefaultSize = list[0];
    }
    if (list.Has(1, 3))
        SetCrossSections(list.Vector(1));
    if (list.Has(4, 4))
        SetCW(list[4], list[5], list[6], list[7]);
    if (list.Has(8, 9) && !TouchdownPtsFromScenario)
        SetTouchdownPts(list.Vector(8), list.Vector(11), list.Vector(14));
}
