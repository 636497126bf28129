// The vessel's two airfoils, built once when the vessel is set up.
#include <cmath>
#include <utility>

#include "frame/hullkit.h"

namespace {

constexpr double kCdragMin = 0.3, kCdragMax = 2.0;

// The host passes the vessel as context.
void VerticalCoeff(VESSEL *, double aoa, double, double, void *context, double *cl, double *cm, double *cd) {
    AirfoilCoefficients(static_cast<HULLKIT *>(context)->Airfoil, aoa, 1.0, cl, cm, cd);
}

void HorizontalCoeff(VESSEL *, double beta, double, double, void *context, double *cl, double *cm,
                     double *cd) {
    AirfoilCoefficients(static_cast<HULLKIT *>(context)->Airfoil, beta, -1.0, cl, cm, cd);
}

} // namespace

AirfoilParams MakeAirfoilParams(const VECTOR3 &cs, const AERO_REC *record) {
    AirfoilParams p;
    // The centre of pressure lies behind the centre of mass along the axis of
    // the smallest cross section: the direction the vessel tends to fly in.
    VECTOR3 dir;
    if (cs.x > cs.z && cs.y > cs.z) {
        dir = _V(0, 0, -1);
        p.WingChord = cs.x / 3.0;
        p.WingS = cs.z / 3.0;
    } else if (cs.z > cs.x && cs.y > cs.x) {
        dir = _V(-1, 0, 0);
        p.WingChord = cs.z / 3.0;
        p.WingS = cs.x / 3.0;
    } else {
        dir = _V(0, -1, 0);
        p.WingChord = cs.x / 3.0;
        p.WingS = cs.y / 3.0;
    }
    const double s = p.WingChord / 3.0;
    p.centerOfPressure = dir * s;
    p.WingAspect = p.WingS != 0.0 ? p.WingChord / p.WingS : 0.0;
    p.DCmomentMax = p.WingChord != 0.0 ? std::abs(s) / p.WingChord : 0.0;
    p.CdragMin = kCdragMin;
    p.CdragMax = kCdragMax;
    if (record) {
        p.name = record->name;
        const VECTOR3 &c = record->centerOfPressure;
        if (c.x != 0.0 || c.y != 0.0 || c.z != 0.0)
            p.centerOfPressure = c;
        for (auto [from, to] : {std::pair{record->wingChord, &p.WingChord},
                                {record->wingS, &p.WingS},
                                {record->wingAspect, &p.WingAspect},
                                {record->dcMomentMax, &p.DCmomentMax},
                                {record->cdragMin, &p.CdragMin},
                                {record->cdragMax, &p.CdragMax}})
            if (from != 0.0)
                *to = from;
    }
    p.dragSpan = p.CdragMax - p.CdragMin;
    const VECTOR3 &c = p.centerOfPressure;
    const double len = length(c);
    p.momentSign = len > 0.0 ? (c.x + c.y + c.z) / len : 0.0;
    return p;
}

void AirfoilCoefficients(const AirfoilParams &p, double x, double turn, double *cl, double *cm, double *cd) {
    const double sx = std::sin(x);
    *cl = 0.0;
    *cm = turn * sx * p.DCmomentMax * p.momentSign;
    *cd = std::abs(sx) * p.dragSpan + p.CdragMin;
}

void HULLKIT::BuildAirfoils() {
    AERO_REC *record = AeroTable.Find("aDefault");
    if (!record)
        return;
    VECTOR3 cs;
    GetCrossSections(cs);
    Airfoil = MakeAirfoilParams(cs, record);
    ClearAirfoilDefinitions();
    AirfoilVertical = CreateAirfoil3(LIFT_VERTICAL, Airfoil.centerOfPressure, VerticalCoeff, this,
                                     Airfoil.WingChord, Airfoil.WingS, Airfoil.WingAspect);
    AirfoilHorizontal = CreateAirfoil3(LIFT_HORIZONTAL, Airfoil.centerOfPressure, HorizontalCoeff, this,
                                       Airfoil.WingChord, Airfoil.WingS, Airfoil.WingAspect);
}
