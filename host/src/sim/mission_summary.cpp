#include "mission_summary.h"

#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>

#include "core/body.h"
#include "core/world.h"
#include "physics/flight_queries.h"
#include "physics/propulsion.h"

namespace hullhost::sim {

namespace {

double PropellantMass(const Vessel &v) {
    double sum = 0.0;
    for (const auto &p : v.propellants)
        sum += p->mass;
    return sum;
}

// The propellant in the tank that feeds the main engine.
double MainTankMass(const Vessel &v) {
    const ThrusterGroup *main = v.GroupOfType(THGROUP_MAIN);
    if (!main || main->thrusters.empty() || !main->thrusters.front()->propellant)
        return 0.0;
    return main->thrusters.front()->propellant->mass;
}

double MainLevel(const Vessel &v) {
    const ThrusterGroup *main = v.GroupOfType(THGROUP_MAIN);
    return main ? v.GroupLevel(*main) : 0.0;
}

// "T+d hh:mm:ss.s", days only when there are any.
std::string Clock(double seconds) {
    const long tenths = std::lround(seconds * 10.0);
    const long s = tenths / 10, days = s / 86400;
    char text[48];
    if (days > 0)
        std::snprintf(text, sizeof text, "T+%ld d %02ld:%02ld:%02ld.%ld", days, s / 3600 % 24, s / 60 % 60,
                      s % 60, tenths % 10);
    else
        std::snprintf(text, sizeof text, "T+%02ld:%02ld:%02ld.%ld", s / 3600, s / 60 % 60, s % 60,
                      tenths % 10);
    return text;
}

std::string Format(const char *format, auto... args) {
    char text[512];
    std::snprintf(text, sizeof text, format, args...);
    return text;
}

// The lines of the timeline that concern `vessel`.
std::string Timeline(const std::string &vessel, const std::string &events) {
    std::string out;
    std::istringstream lines(events);
    for (std::string line; std::getline(lines, line);) {
        const auto e = nlohmann::json::parse(line, nullptr, false);
        if (e.is_discarded())
            continue;
        const std::string kind = e.value("kind", "");
        const double t = e.value("t", 0.0);
        std::string what;
        if (kind == "message" && e.value("vessel", "") == vessel && !e.value("text", "").empty())
            what = "\"" + e.value("text", "") + "\"";
        else if (kind == "detached" && e.value("child", "") == vessel)
            what =
                Format("released by %s at %.2f m/s", e.value("parent", "").c_str(), e.value("velocity", 0.0));
        else if (kind == "detached" && e.value("parent", "") == vessel)
            what = Format("%s off at %.2f m/s", e.value("child", "").c_str(), e.value("velocity", 0.0));
        else if (kind == "engine" && e.value("vessel", "") == vessel)
            what = Format("main engine at %.0f %%", e.value("level", 0.0) * 100.0);
        if (!what.empty())
            out += "  " + Clock(t) + "  " + what + "\n";
    }
    return out;
}

std::string OrbitLine(const World &world, const Vessel &v) {
    const Body *earth = world.Earth();
    if (!earth)
        return "";
    const physics::Orbit o = physics::VesselOrbit(v, *earth, FRAME_EQU);
    const double pe = (o.prm.PeD - earth->radius) / 1e3;
    if (o.el.e >= 1.0)
        return Format("Final orbit around the Earth: escape, perigee %.0f km, inclination %.2f deg\n", pe,
                      o.el.i * DEG);
    return Format("Final orbit around the Earth: apogee %.0f km, perigee %.0f km, inclination %.2f deg, "
                  "period %.2f h\n",
                  (o.prm.ApD - earth->radius) / 1e3, pe, o.el.i * DEG, o.prm.T / 3600.0);
}

} // namespace

MissionSummary::MissionSummary(const World &world, std::vector<std::string> vessels) {
    if (vessels.empty() && world.focus)
        vessels.push_back(world.focus->Name());
    for (std::string &name : vessels) {
        if (!world.FindVessel(name))
            throw std::runtime_error("--track " + name + ": the scenario has no vessel of that name");
        watches_.emplace_back().vessel = std::move(name);
    }
    lastTime_ = world.simt;
    Observe(world);
}

void MissionSummary::Observe(const World &world) {
    const double dt = world.simt - lastTime_;
    lastTime_ = world.simt;
    for (Watch &w : watches_)
        ObserveOne(world, w, dt);
}

void MissionSummary::ObserveOne(const World &world, Watch &w, double dt) {
    const Vessel *v = world.FindVessel(w.vessel);
    if (!v)
        return;
    const double mass = v->Mass(), tank = PropellantMass(*v);
    const physics::ThrustLoad thrust =
        physics::TotalThrust(*v, physics::VesselAirData(world, *v).air.pressure);
    const double exhaust = thrust.massFlow > 0.0 ? length(thrust.force) / thrust.massFlow : 0.0;
    const bool burning = MainLevel(*v) > 0.0 && thrust.massFlow > 0.0; // an empty tank ends a burn
    if (burning && !w.burning)
        w.burns.push_back({world.simt - dt, world.simt, 0.0, 0.0});
    if (burning || w.burning) {
        // The rocket equation over the frame, with the exhaust speed at its
        // end, or at its start when the engine stopped within it. Only the
        // propellant counts as mass burnt: a separation is no burn.
        Burn &b = w.burns.back();
        const double burnt = std::max(0.0, w.tankMass - tank);
        const double speed = exhaust > 0.0 ? exhaust : w.exhaust;
        if (burnt > 0.0 && burnt < w.mass)
            b.deltaV += speed * std::log(w.mass / (w.mass - burnt));
        b.propellant += burnt;
        b.end = world.simt;
        if (const Body *earth = world.Earth()) {
            const physics::Orbit o = physics::VesselOrbit(*v, *earth, FRAME_EQU);
            b.perigee = o.prm.PeD - earth->radius;
            b.apogee = o.el.e < 1.0 ? o.prm.ApD - earth->radius : -1.0;
        }
    }
    // Propellant that leaves the main engine's tank while the engine is off.
    const double mainTank = MainTankMass(*v);
    const bool venting = !burning && !w.burning && mainTank < w.mainTank;
    if (venting && !w.venting)
        w.vents.push_back({world.simt - dt, world.simt, 0.0});
    if (venting) {
        w.vents.back().mass += w.mainTank - mainTank;
        w.vents.back().end = world.simt;
    }
    w.venting = venting;
    w.mainTank = mainTank;
    w.burning = burning;
    w.mass = mass;
    w.tankMass = tank;
    w.exhaust = exhaust;

    const Body *moon = world.FindBody("Moon");
    if (!moon)
        return;
    // A periapsis about the Moon passed within the frame is nearer than
    // either end of it.
    if (w.moonOrbitValid && w.moonOrbit.prm.PeT > 0.0 && w.moonOrbit.prm.PeT <= dt &&
        w.moonOrbit.prm.PeD < w.closest) {
        w.closest = w.moonOrbit.prm.PeD;
        w.closestTime = world.simt - dt + w.moonOrbit.prm.PeT;
    }
    const double distance = length(v->pos - moon->pos);
    if (distance < w.closest) {
        w.closest = distance;
        w.closestTime = world.simt;
    }
    w.moonOrbit = physics::VesselOrbit(*v, *moon, FRAME_ECL);
    w.moonOrbitValid = true;
}

std::string MissionSummary::Text(const World &world, const std::string &events) const {
    std::string out;
    for (const Watch &w : watches_) {
        out += "Mission summary of " + w.vessel + ", " + Clock(world.simt) + "\n";
        out += "Timeline\n" + Timeline(w.vessel, events);
        out += "Burns\n";
        if (w.burns.empty())
            out += "  none\n";
        for (std::size_t i = 0; i < w.burns.size(); ++i) {
            const Burn &b = w.burns[i];
            out += Format("  %zu  %s  %8.1f s  delta-v %8.1f m/s  propellant %8.1f kg  ", i + 1,
                          Clock(b.start).c_str(), b.end - b.start, b.deltaV, b.propellant);
            out += b.apogee < 0.0 ? Format("escape, perigee %.0f km\n", b.perigee / 1e3)
                                  : Format("orbit %.0f x %.0f km\n", b.perigee / 1e3, b.apogee / 1e3);
        }
        for (const Vent &vent : w.vents)
            out += Format("Vented %.1f kg of main propellant from %s for %.1f s\n", vent.mass,
                          Clock(vent.start).c_str(), vent.end - vent.start);
        const Vessel *v = world.FindVessel(w.vessel);
        if (v)
            out += OrbitLine(world, *v);
        if (const Body *moon = world.FindBody("Moon"); moon && w.closest < HUGE_VAL)
            out +=
                Format("Closest approach to the Moon: %.0f km from its centre (%.0f km above its surface) at "
                       "%s\n",
                       w.closest / 1e3, (w.closest - moon->radius) / 1e3, Clock(w.closestTime).c_str());
    }
    return out;
}

} // namespace hullhost::sim
