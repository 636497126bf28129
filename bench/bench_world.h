// Scenarios for the benchmarks, made in code, and a world that loads them
// from the build's root as hullsim does.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "core/world.h"
#include "scenario/scenario_file.h"

namespace bench {

// The lines of a vessel in a circular orbit of the Earth, `altitude` metres
// up, inclined by `inclination` radians to the ecliptic, at `anomaly` radians
// from the ascending node.
std::vector<std::string> OrbitLines(double altitude, double inclination, double anomaly);
// The lines of a vessel standing at Cape Canaveral, heading east.
std::vector<std::string> LandedLines();

// `count` vessels spread over orbits between 200 and 1200 km: every other one
// a Korvan stage, the rest Generic pieces of each variant in turn.
hullhost::ScenarioFile OrbitingFleet(int count);

// A scenario of the given vessels (name, class, lines) on the demo's date.
hullhost::ScenarioFile Scenario(std::vector<hullhost::VesselBlock> vessels);

// A world whose working directory is the build's root while it exists, as
// hullsim's run sets it.
class RootWorld {
  public:
    RootWorld();
    explicit RootWorld(const hullhost::ScenarioFile &scenario);
    ~RootWorld();
    RootWorld(const RootWorld &) = delete;
    RootWorld &operator=(const RootWorld &) = delete;

    hullhost::World &operator*() { return *world_; }
    hullhost::World *operator->() { return world_.get(); }

  private:
    std::filesystem::path previous_;
    std::unique_ptr<hullhost::World> world_;
};

// The frame length of hullsim's runs when --dt is not given [real s].
inline constexpr double kFrame = 0.02;

} // namespace bench
