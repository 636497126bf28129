// Samples vessels every so many seconds of simulation time, writes each
// sample as a CSV row at once and keeps it for a chart.
//
// Use: construct with the CSV stream (may be null), the vessels' names (none:
// the focus vessel at each sample) and the interval; call Sample(world) after
// every frame; Series() for the chart.
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

    // Takes a sample of each tracked vessel if the interval has passed since
    // the last one (the first call always samples). Vessels that don't exist
    // are skipped.
    void Sample(const World &world);

    const std::vector<TelemetrySeries> &Series() const { return series_; }

  private:
    void Record(const std::string &name, const TelemetrySample &s);

    std::ostream *csv_;
    std::vector<std::string> tracked_;
    double interval_;
    double next_ = -1.0;
    bool headerWritten_ = false;
    std::vector<TelemetrySeries> series_;
};

} // namespace hullhost::telemetry
