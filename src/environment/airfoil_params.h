// The two airfoils of a vessel: plain drag bodies with a restoring moment,
// shaped by the record aDefault or, where it gives nothing, by the vessel's
// cross sections.
#pragma once

#include <string>

#include "OrbiterAPI.h"

struct AERO_REC;

struct AirfoilParams {
    std::string name;                  // the aero record's name
    VECTOR3 centerOfPressure{0, 0, 0}; // vessel frame [m]
    double WingChord = 0.0;            // [m], > 0 for a vessel of any size
    double WingS = 0.0;                // wing area [m^2]
    double WingAspect = 0.0;           // WingChord / WingS unless the record says otherwise
    double DCmomentMax = 0.0;          // limit of the moment coefficient
    double CdragMin = 0.0, CdragMax = 0.0;
    double dragSpan = 0.0;   // CdragMax - CdragMin
    double momentSign = 0.0; // sum of the centre of pressure's components over its length
};

// The defaults that the vessel's cross sections give, with the record's
// non-zero values over them (none when `record` is null).
AirfoilParams MakeAirfoilParams(const VECTOR3 &crossSections, const AERO_REC *record);

// The coefficients at the angle x (of attack, or of sideslip): no lift, a
// moment of `turn` (1 or -1) times sin(x) * DCmomentMax * momentSign, and a
// drag growing with |sin(x)| from CdragMin to CdragMax.
void AirfoilCoefficients(const AirfoilParams &p, double x, double turn, double *cl, double *cm, double *cd);
