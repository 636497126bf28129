#include "telemetry/telemetry_sample.h"

#include <cstdio>

#include "core/body.h"
#include "core/world.h"
#include "physics/flight_queries.h"

namespace hullhost::telemetry {

TelemetrySample SampleVessel(const World &world, const Vessel &v) {
    TelemetrySample s;
    s.time = world.simt;
    s.altitude = physics::VesselAltitude(world, v);
    s.mass = v.Mass();
    if (const ThrusterGroup *main = v.GroupOfType(THGROUP_MAIN)) {
        s.mainLevel = v.GroupLevel(*main);
    }
    if (const Body *ref = physics::GravityRef(world, v)) {
        s.speed = length(v.vel - ref->vel);
        const physics::Orbit o = physics::VesselOrbit(v, *ref, FRAME_EQU);
        s.perigeeAltitude = o.prm.PeD - ref->radius;
        s.apogeeAltitude = o.el.e < 1.0 ? o.prm.ApD - ref->radius : 0.0;
        s.inclination = o.el.i * DEG;
    } else {
        s.speed = length(v.vel);
    }
    return s;
}

std::string CsvHeader() {
    return "time_s,vessel,altitude_m,speed_m_s,apogee_altitude_m,perigee_altitude_m,inclination_deg,mass_kg,"
           "main_thrust_level";
}

std::string CsvRow(const std::string &vessel, const TelemetrySample &s) {
    char text[320];
    std::snprintf(text, sizeof text, "%.3f,%s,%.1f,%.3f,%.1f,%.1f,%.4f,%.3f,%.3f", s.time, vessel.c_str(),
                  s.altitude, s.speed, s.apogeeAltitude, s.perigeeAltitude, s.inclination, s.mass,
                  s.mainLevel);
    return text;
}

} // namespace hullhost::telemetry
