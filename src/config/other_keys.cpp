// The remaining plain keys: wreck class and look, shine and fire positions,
// the failure list, the centre of gravity offset, the sequence clock format,
// visibility limits and a few stored values.
#include <array>

#include "config/number_lists.h"
#include "config/value_scan.h"
#include "frame/hullkit.h"

namespace {

// Reads "%lf %lf %lf" into `v`; components not given keep their values.
void ScanVector(const std::string &value, VECTOR3 &v) {
    std::array<double, 3> g{v.x, v.y, v.z};
    ScanNumbers(value, g);
    v = _V(g[0], g[1], g[2]);
}

} // namespace

void HULLKIT::ReadOtherKeys() {
    WreckVesselName = Cfg("WreckVesselName");
    if (const std::string &single = Cfg("WreckSingle"); !single.empty())
        WreckSingle = single;
    ScanVector(Cfg("ReentryShinePos"), ReentryShinePos);

    std::array<double, 6> fire{FirePos.x, FirePos.y, FirePos.z, FireDir.x, FireDir.y, FireDir.z};
    ScanNumbers(Cfg("Fire"), fire);
    FirePos = _V(fire[0], fire[1], fire[2]);
    FireDir = _V(fire[3], fire[4], fire[5]);

    ReadFailureList(Cfg("Failures"));
    ScanVector(Cfg("CG"), CgOffset);
    if (TimerFormat.empty())
        TimerFormat = Cfg("SequenceTimerFormat");
    ScanDouble(Cfg("VisLimitMesh"), VisLimitMesh);
    ScanDouble(Cfg("VisLimitSpot"), VisLimitSpot);
    ScanVector(Cfg("YawOrbital"), YawOrbital);
    SaveOrbit = IsTrue(Cfg("SaveOrbit"));
    CanBeCleanedUp = IsTrue(Cfg("CanBeCleanedUp"));
}
