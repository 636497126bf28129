// CrashData: four ranges, least and greatest, of the vertical and horizontal
// landing speed, the dynamic pressure and the impact speed. Each limit is drawn
// within its range at every load; a range that is empty or reversed leaves the
// limit as it stands.
#include <array>

#include "config/number_lists.h"
#include "frame/hullkit.h"
#include "frame/random_draw.h"

void HULLKIT::ReadCrashData() {
    const std::string &value = Cfg("CrashData");
    if (value.empty())
        return;
    std::array<double, 8> ranges{};
    ScanNumbers(value, ranges);
    double *limits[] = {&MaxVerticalSpeed, &MaxHorizontalSpeed, &MaxDynPressure, &MaxImpactSpeed};
    for (std::size_t i = 0; i < 4; ++i) {
        const double least = ranges[2 * i], greatest = ranges[2 * i + 1];
        if (greatest > least)
            *limits[i] = RandomDraw(least, greatest - least);
    }
}
