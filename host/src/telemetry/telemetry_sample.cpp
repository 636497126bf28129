#include "telemetry/telemetry_sample.h"

#include <cstdio>

#include "core/body.h"
#include "core/world.h"
#include "physics/ephemeris.h"
#include "physics/flight_queries.h"

namespace hullhost::telemetry {

TelemetrySample SampleVessel(const World &world, const Vessel &v) {
    TelemetrySample s;
    s.time = world.simt;
    s.mass = v.Mass();
    s.ephemerisTime = physics::EphemerisTime(world);
    if (const Body *earth = world.Earth())
        s.earthPos = v.pos - earth->pos;
    if (const ThrusterGroup *main = v.GroupOfType(THGROUP_MAIN)) {
        s.mainLevel = v.GroupLevel(*main);
    }
    if (const Body *ref = physics::GravityRef(world, v)) {
        // Told against the body whose sphere of influence holds the vessel:
        // on the way to the Moon, the Earth until the Moon takes over.
        s.altitude = length(v.pos - ref->pos) - ref->radius;
        s.speed = length(v.vel - ref->vel);
        const physics::Orbit o = physics::VesselOrbit(v, *ref, FRAME_EQU);
        s.perigeeAltitude = o.prm.PeD - ref->radius;
        s.apogeeAltitude = o.el.e < 1.0 ? o.prm.ApD - ref->radius : 0.0;
        s.inclination = o.el.i * DEG;
    } else {
        s.altitude = physics::VesselAltitude(world, v);
        s.speed = length(v.vel);
    }
    return s;
}

std::string CsvHeader() {
    return "time_s,vessel,altitude_m,speed_m_s,apogee_altitude_m,perigee_altitude_m,inclination_deg,mass_kg,"
           "main_thrust_level";
}

namespace {

// A CSV field: quoted, with its quotes doubled, if it holds a comma, a quote
// or a line end.
std::string CsvField(const std::string &text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) {
        return text;
    }
    std::string quoted = "\"";
    for (char c : text) {
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    }
    return quoted + '"';
}

// A number with `decimals` places after the point, however large.
std::string Fixed(double value, int decimals) {
    std::string text(std::snprintf(nullptr, 0, "%.*f", decimals, value), '\0');
    std::snprintf(text.data(), text.size() + 1, "%.*f", decimals, value);
    return text;
}

} // namespace

std::string CsvRow(const std::string &vessel, const TelemetrySample &s) {
    return Fixed(s.time, 3) + ',' + CsvField(vessel) + ',' + Fixed(s.altitude, 1) + ',' + Fixed(s.speed, 3) +
           ',' + Fixed(s.apogeeAltitude, 1) + ',' + Fixed(s.perigeeAltitude, 1) + ',' +
           Fixed(s.inclination, 4) + ',' + Fixed(s.mass, 3) + ',' + Fixed(s.mainLevel, 3);
}

} // namespace hullhost::telemetry
