// One line of flight telemetry for a vessel.
#pragma once

#include <string>

#include "OrbiterAPI.h"

namespace hullhost {
class Vessel;
class World;
} // namespace hullhost

namespace hullhost::telemetry {

struct TelemetrySample {
    double time = 0.0;            // simulation time [s]
    double altitude = 0.0;        // above the mean radius of the body whose sphere of influence holds it [m]
    double speed = 0.0;           // relative to the reference body [m/s]
    double apogeeAltitude = 0.0;  // of the osculating orbit [m]; 0 on an escape orbit
    double perigeeAltitude = 0.0; // [m]
    double inclination = 0.0;     // to the reference body's equator [deg]
    double mass = 0.0;            // [kg]
    double mainLevel = 0.0;       // thrust level of the main group, 0..1
    double ephemerisTime = 0.0;   // [s since MJD 51544.5], where the bodies were
    VECTOR3 earthPos{0, 0, 0};    // relative to the Earth, global frame [m]
};

TelemetrySample SampleVessel(const World &world, const Vessel &v);

// The CSV header and one row (name first), without line ends.
std::string CsvHeader();
std::string CsvRow(const std::string &vessel, const TelemetrySample &s);

} // namespace hullhost::telemetry
