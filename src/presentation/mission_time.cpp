// The mission time as hours, minutes and seconds.
#include <cmath>
#include <cstdio>

#include "frame/hullkit.h"

void HULLKIT::FormatMissionTime(double seconds, char *buffer, std::size_t size) {
    if (!buffer || size == 0)
        return;
    const double magnitude = std::fabs(seconds);
    // Times beyond what an int holds show the largest hour count instead.
    const double hours = std::fmin(std::trunc(magnitude / 3600.0), 2.0e9);
    const int h = std::isfinite(hours) && hours > 0 ? static_cast<int>(hours) : 0;
    const double rest = std::isfinite(magnitude) ? magnitude - h * 3600.0 : 0.0;
    const int m = rest > 0 ? static_cast<int>(std::fmin(std::trunc(rest), 2.0e9)) / 60 : 0;
    const double secondsLeft = std::trunc(rest - m * 60.0);
    const int s = secondsLeft > 0 ? static_cast<int>(std::fmin(secondsLeft, 2.0e9)) : 0;
    std::snprintf(buffer, size, seconds < 0 ? "-%02d:%02d:%02d" : "%02d:%02d:%02d", h, m, s);
}
