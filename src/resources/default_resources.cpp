// Records that every vessel has unless its configuration or scenario gives
// them otherwise. They go in before the scenario's lines, which can override them.
#include <cstdio>
#include <vector>

#include "frame/hullkit.h"

namespace {

// "<name>, (x,y,z), <tail>" with the position in fixed notation.
std::string ShineThrusterLine(const char *name, const VECTOR3 &pos, const char *tail) {
    const char *format = "%s, (%f,%f,%f), %s";
    const int size = std::snprintf(nullptr, 0, format, name, pos.x, pos.y, pos.z, tail);
    if (size <= 0)
        return std::string();
    std::vector<char> buffer(static_cast<std::size_t>(size) + 1);
    std::snprintf(buffer.data(), buffer.size(), format, name, pos.x, pos.y, pos.z, tail);
    return std::string(buffer.data(), static_cast<std::size_t>(size));
}

} // namespace

void HULLKIT::AddDefaultResources() {
    // The tank of the pseudo-thrusters that only show an exhaust.
    TankTable.AddResourceLine("Virtual, 1 ", false);

    if (CameraTable.Count() == 0)
        CameraTable.AddResourceLine("fwd, xyz0, zplus, true, 0,0,0,0 ", false);

    if (SpotlightSetTable.Count() > 0) {
        ThrusterTable.AddResourceLine("Spotlight0, xyz0, xplus,  0.001, Virtual, 1000000 ", false);
        ThrusterTable.AddResourceLine("Spotlight1, xyz0, xminus, 0.001, Virtual, 1000000 ", false);
        ThrusterGroupTable.AddResourceLine("Spotlights, Spotlight0, 2 ", false);
    }

    if (ReentryGlowEnabled) {
        ThrusterTable.AddResourceLine(
            ShineThrusterLine("ShinePlus", ReentryShinePos, "zplus,  2000, Virtual, 10000000 "), false);
        ThrusterTable.AddResourceLine(
            ShineThrusterLine("ShineMinus", ReentryShinePos, "zminus,  2000, Virtual, 10000000 "), false);
        ThrusterGroupTable.AddResourceLine("Shine, ShinePlus, 2 ", false);
    }

    if (WreckSingle.empty() && WreckTable.Count() == 0)
        WreckSingle = "Generic";
}
