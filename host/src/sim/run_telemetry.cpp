#include "run_telemetry.h"

#include <stdexcept>

#include "core/body.h"
#include "core/world.h"
#include "scenario/atomic_write.h"
#include "telemetry/orbit_view.h"
#include "telemetry/svg_chart.h"

namespace hullhost::sim {

namespace {

const std::vector<std::string> &CheckTracked(const std::vector<std::string> &tracks, const World &world) {
    for (const std::string &name : tracks)
        if (!world.FindVessel(name))
            throw std::runtime_error("--track " + name + ": the scenario has no vessel of that name");
    return tracks;
}

} // namespace

RunTelemetry::RunTelemetry(std::string csvPath, std::string plotPath, std::string orbitViewPath,
                           std::vector<std::string> tracks, double interval, const World &world)
    : csvPath_(std::move(csvPath)), plotPath_(std::move(plotPath)), orbitViewPath_(std::move(orbitViewPath)),
      recorder_(csvPath_.empty() ? nullptr : &csv_, CheckTracked(tracks, world), interval) {
    recorder_.Sample(world);
}

void RunTelemetry::Write(const World &world) const {
    std::string svg, orbits;
    if (!plotPath_.empty()) {
        std::ostringstream chart;
        telemetry::WriteSvgChart(chart, recorder_.Series());
        svg = chart.str();
    }
    if (!orbitViewPath_.empty()) {
        const Body *earth = world.Earth(), *moon = world.FindBody("Moon");
        if (!earth || !moon)
            throw std::runtime_error("--orbit-view: the solar system has no Earth and Moon");
        std::ostringstream view;
        telemetry::WriteOrbitView(view, recorder_.Series(), *earth, *moon);
        orbits = view.str();
    }
    if (!csvPath_.empty())
        WriteFileAtomically(csvPath_, csv_.str());
    if (!plotPath_.empty())
        WriteFileAtomically(plotPath_, svg);
    if (!orbitViewPath_.empty())
        WriteFileAtomically(orbitViewPath_, orbits);
}

} // namespace hullhost::sim
