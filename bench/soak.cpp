// A long run: a few vessels of the shipped fleet in orbit and one standing
// on the ground, for 30 simulated days at time acceleration 10000 in frames
// of hullsim's default length. Prints the wall time, the resident memory at
// each simulated day and at its peak, the drift of each orbiting vessel's
// orbital energy, and where the landed vessel ended up.
//
// Use: soak_bench [DAYS [ACCEL]]
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <vector>

#include "bench_world.h"
#include "physics/gravity.h"
#include "physics/rotation.h"

namespace {

using hullhost::Vessel;

double ResidentMiB() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0, resident = 0;
    statm >> pages >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

double PeakResidentMiB() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0; // ru_maxrss is in KiB
}

// Orbital energy per unit mass about the Earth, in the Earth's gravity alone [J/kg].
double OrbitalEnergy(const hullhost::World &world, const Vessel &v) {
    const hullhost::Body &earth = *world.Earth();
    const VECTOR3 d = v.pos - earth.pos, w = v.vel - earth.vel;
    return 0.5 * dotp(w, w) +
           hullhost::physics::BodyPotential(earth, hullhost::physics::Column(earth.equatorial, 1), d);
}

// A vessel in orbit and its energy: at the start, its relative change now,
// and the largest change on the way.
struct Orbiter {
    const char *name;
    double altitude; // of its circular orbit at the start [m]
    double start = 0.0, now = 0.0, worst = 0.0;
};

} // namespace

int main(int argc, char **argv) {
    const double days = argc > 1 ? std::atof(argv[1]) : 30.0;
    const double accel = argc > 2 ? std::atof(argv[2]) : 10000.0;
    if (!(days > 0) || !(accel > 0)) {
        std::fprintf(stderr, "usage: soak_bench [DAYS [ACCEL]]\n");
        return 2;
    }
    // One orbit in the thin top of the air, where drag takes energy away;
    // the others above the air (2500 km), where only the integration and the
    // tides of the Sun and the Moon change it.
    std::vector<Orbiter> orbiters = {
        {"Korvan-1", 600e3}, {"Payload", 3000e3}, {"Fairing", 8000e3}, {"Korvan-2", 35786e3}};
    auto orbit = [&](size_t k, double inclination, double anomaly, const char *subtype) {
        std::vector<std::string> lines = bench::OrbitLines(orbiters[k].altitude, inclination, anomaly);
        if (subtype)
            lines.push_back(std::string("SUBTYPE ") + subtype);
        return lines;
    };
    bench::RootWorld world(bench::Scenario({
        {"Korvan-1", "Fleet\\Korvan", orbit(0, 0.9, 0.0, nullptr)},
        {"Payload", "Fleet\\Generic", orbit(1, 0.5, 2.0, "Payload")},
        {"Fairing", "Fleet\\Generic", orbit(2, 1.2, 4.0, "FairingKMidK")},
        {"Korvan-2", "Fleet\\Korvan", orbit(3, 0.0, 1.0, nullptr)},
        {"Ground", "Fleet\\Generic", bench::LandedLines()},
    }));
    world->accel = accel;
    for (Orbiter &o : orbiters)
        o.start = OrbitalEnergy(*world, *world->FindVessel(o.name));
    Vessel *ground = world->FindVessel("Ground");
    const double lng0 = ground->surfLng, lat0 = ground->surfLat;

    std::printf(
        "%g simulated days at time acceleration %g in frames of %g s: %zu vessels in orbit, 1 landed\n", days,
        accel, bench::kFrame, orbiters.size());
    std::printf("  day  wall [s]  resident [MiB]  relative change of orbital energy:");
    for (const Orbiter &o : orbiters)
        std::printf(" %s", o.name);
    std::printf("\n");
    const auto begin = std::chrono::steady_clock::now();
    auto wall = [&] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    };
    const double end = world->simt + days * 86400.0;
    double nextDay = world->simt + 86400.0;
    long frames = 0;
    while (world->simt < end) {
        world->Frame(bench::kFrame);
        ++frames;
        for (Orbiter &o : orbiters) {
            if (const Vessel *v = world->FindVessel(o.name)) {
                o.now = (OrbitalEnergy(*world, *v) - o.start) / std::abs(o.start);
                o.worst = std::max(o.worst, std::abs(o.now));
            }
        }
        if (world->simt >= nextDay || world->simt >= end) {
            std::printf("  %4.0f  %8.2f  %14.1f ", std::round(world->simt / 86400.0), wall(), ResidentMiB());
            for (const Orbiter &o : orbiters)
                std::printf(" %+10.2e", o.now);
            std::printf("\n");
            std::fflush(stdout);
            nextDay += 86400.0;
        }
    }
    const double seconds = wall();
    std::printf("wall time %.2f s for %ld frames (%.1f us per frame), peak resident memory %.1f MiB\n",
                seconds, frames, seconds / static_cast<double>(frames) * 1e6, PeakResidentMiB());
    std::printf("orbital energy, relative change at the end / largest on the way:\n");
    for (const Orbiter &o : orbiters)
        std::printf("  %-9s %6.0f km  %+.3e / %.3e%s\n", o.name, o.altitude / 1000.0, o.now, o.worst,
                    world->FindVessel(o.name) ? "" : "  (deleted on the way)");
    const double moved = std::hypot((ground->surfLng - lng0) * std::cos(lat0), ground->surfLat - lat0) *
                         world->Earth()->radius;
    std::printf("landed vessel: %s, moved %.3f m over the ground\n",
                ground->landed ? "still landed" : "took off", moved);
    return 0;
}
