// The summary of a run that --summary prints: for each vessel watched, the
// timeline of what happened to it, its burns (start, duration, delta-v,
// propellant, the orbit they left), the propellant let out of the main
// engine's tank with the engine off (a vent), its orbit at the end and its
// closest approach to the Moon.
//
// Use: construct after the scenario is loaded, call Observe after every
// frame, and Text at the end with the run's event log.
#pragma once

#include <string>
#include <vector>

#include "physics/kepler.h"

namespace hullhost {
class World;
} // namespace hullhost

namespace hullhost::sim {

class MissionSummary {
  public:
    // `vessels` must exist in the world; none: the focus vessel at the start.
    MissionSummary(const World &world, std::vector<std::string> vessels);

    void Observe(const World &world);

    // `events` holds the run's events as JSON Lines (see EventLog).
    std::string Text(const World &world, const std::string &events) const;

  private:
    struct Burn {
        double start = 0.0, end = 0.0;      // simulation time [s]
        double deltaV = 0.0;                // by the rocket equation, frame by frame [m/s]
        double propellant = 0.0;            // mass burnt, all tanks [kg]
        double apogee = 0.0, perigee = 0.0; // altitudes over the Earth after it [m]; apogee < 0: escape
    };
    struct Vent {
        double start = 0.0, end = 0.0; // simulation time [s]
        double mass = 0.0;             // [kg]
    };
    struct Watch {
        std::string vessel;
        std::vector<Burn> burns;
        std::vector<Vent> vents;
        bool burning = false, venting = false;
        double mainTank = 0.0; // propellant of the main engine's tank then [kg]
        double mass = 0.0;     // at the last observation [kg]
        double tankMass = 0.0; // propellant then [kg]
        double exhaust = 0.0;  // effective exhaust speed then [m/s]
        // Closest approach to the Moon so far: distance from its centre [m].
        double closest = HUGE_VAL, closestTime = 0.0;
        physics::Orbit moonOrbit{}; // around the Moon, at the last observation
        bool moonOrbitValid = false;
    };
    void ObserveOne(const World &world, Watch &w, double dt);

    std::vector<Watch> watches_;
    double lastTime_ = 0.0;
};

} // namespace hullhost::sim
