// Samples vessels every so many seconds of simulation time, writes each
// sample as a CSV row at once and keeps it for a chart.
//
// Use: construct with the CSV stream (may be null; the header goes to it at
// once), the vessels' names (none: the focus vessel at each sample) and the
// interval; call Sample(world) at the start and after every frame; Series()
// for the chart.
#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "telemetry/telemetry_sample.h"

namespace hullhost {
class World;
} // namespace hullhost

namespace hullhost::telemetry {

struct TelemetrySeries {
    std::string vessel;
    std::vector<TelemetrySample> samples;
};

class TelemetryRecorder {
  public:
    TelemetryRecorder(std::ostream *csv, std::vector<std::string> tracked, double interval);

    // Takes a sample of each tracked vessel at the frame nearest to each
    // multiple of the interval after the first call (which always samples),
    // so that a sum of frame lengths a rounding error short of it doesn't
    // delay the sample by a frame. Vessels that don't exist are skipped.
    void Sample(const World &world);

    const std::vector<TelemetrySeries> &Series() const { return series_; }

  private:
    void Record(const std::string &name, const TelemetrySample &s);

    std::ostream *csv_;
    std::vector<std::string> tracked_;
    double interval_;
    double next_ = -1.0;
    double last_ = -1.0; // the simulation time of the previous call
    std::vector<TelemetrySeries> series_;
};

} // namespace hullhost::telemetry
