#include "bench_world.h"

#include <cmath>
#include <cstdio>

#include "scenario/scenario_world.h"

namespace bench {

namespace {

constexpr double kEarthRadius = 6371010.0;  // the host's mean radius [m]
constexpr double kEarthGm = 3.986004418e14; // [m^3/s^2]

std::string Triple(const char *key, double x, double y, double z) {
    char text[96];
    std::snprintf(text, sizeof text, "%s %.3f %.3f %.3f", key, x, y, z);
    return text;
}

} // namespace

std::vector<std::string> OrbitLines(double altitude, double inclination, double anomaly) {
    // The ecliptic normal is +y; the orbit's plane turns about +x by the
    // inclination.
    const double r = kEarthRadius + altitude, v = std::sqrt(kEarthGm / r);
    const double c = std::cos(anomaly), s = std::sin(anomaly);
    const double ny = std::sin(inclination), nz = std::cos(inclination);
    return {"STATUS Orbiting Earth", Triple("RPOS", r * c, r * s * ny, r * s * nz),
            Triple("RVEL", -v * s, v * c * ny, v * c * nz), "AROT 0.00 0.00 0.00", "VROT 0.00 0.00 0.00"};
}

std::vector<std::string> LandedLines() { return {"STATUS Landed Earth", "POS -80.6 28.5", "HEADING 90"}; }

hullhost::ScenarioFile OrbitingFleet(int count) {
    static const char *const kVariants[] = {"Payload", "SOZL", "SOZR", "FairingKMidK"};
    std::vector<hullhost::VesselBlock> vessels;
    for (int k = 0; k < count; ++k) {
        // A golden-angle spiral of anomalies keeps every two vessels apart.
        std::vector<std::string> lines =
            OrbitLines(200e3 + 1000e3 * k / count, 0.9 * (k % 7) / 7.0, 2.399963229728653 * k);
        if (k % 2 == 0) {
            vessels.push_back({"Korvan-" + std::to_string(k), "Fleet\\Korvan", lines});
        } else {
            lines.push_back(std::string("SUBTYPE ") + kVariants[(k / 2) % 4]);
            vessels.push_back({"Piece-" + std::to_string(k), "Fleet\\Generic", lines});
        }
    }
    return Scenario(std::move(vessels));
}

hullhost::ScenarioFile Scenario(std::vector<hullhost::VesselBlock> vessels) {
    hullhost::ScenarioFile scenario;
    scenario.mjd = 61000.5;
    scenario.vessels = std::move(vessels);
    return scenario;
}

RootWorld::RootWorld() : previous_(std::filesystem::current_path()) {
    std::filesystem::current_path(HULLKIT_BENCH_ROOT);
    world_ = std::make_unique<hullhost::World>(HULLKIT_BENCH_ROOT);
}

RootWorld::RootWorld(const hullhost::ScenarioFile &scenario) : RootWorld() {
    hullhost::LoadScenario(*world_, scenario);
}

RootWorld::~RootWorld() {
    world_.reset();
    std::filesystem::current_path(previous_);
}

} // namespace bench
