// The telemetry outputs of a run: the CSV of --telemetry and the SVG chart of
// --plot, sampled while the run goes and written only at its end.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "telemetry/telemetry_recorder.h"

namespace hullhost {
class World;
} // namespace hullhost

namespace hullhost::sim {

class RunTelemetry {
  public:
    // The paths are absolute or empty (no such output). Every tracked vessel
    // must exist in the loaded world; else throws std::runtime_error naming
    // it. Takes the first sample.
    RunTelemetry(std::string csvPath, std::string plotPath, std::string orbitViewPath,
                 std::vector<std::string> tracks, double interval, const World &world);

    // After every frame; the recorder samples when the interval has passed.
    void Sample(const World &world) { recorder_.Sample(world); }

    // Writes the outputs, each in one piece.
    void Write(const World &world) const;

  private:
    std::string csvPath_, plotPath_, orbitViewPath_;
    std::ostringstream csv_;
    telemetry::TelemetryRecorder recorder_;
};

} // namespace hullhost::sim
