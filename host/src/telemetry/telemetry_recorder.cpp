#include "telemetry/telemetry_recorder.h"

#include <algorithm>

#include "core/world.h"

namespace hullhost::telemetry {

TelemetryRecorder::TelemetryRecorder(std::ostream *csv, std::vector<std::string> tracked, double interval)
    : csv_(csv), tracked_(std::move(tracked)), interval_(interval > 0.0 ? interval : 1.0) {
    if (csv_) {
        *csv_ << CsvHeader() << '\n';
    }
}

void TelemetryRecorder::Sample(const World &world) {
    // A sample time less than half a frame ahead is nearer to this frame than
    // to the next one (taken as long as the last).
    const double half = last_ >= 0.0 ? (world.simt - last_) / 2.0 : 0.0;
    last_ = world.simt;
    if (next_ >= 0.0 && world.simt < next_ - half) {
        return;
    }
    next_ = (next_ < 0.0 ? world.simt : next_) + interval_;
    if (next_ <= world.simt) {
        next_ = world.simt + interval_; // a frame longer than the interval
    }
    if (tracked_.empty()) {
        if (world.focus) {
            Record(world.focus->Name(), SampleVessel(world, *world.focus));
        }
        return;
    }
    for (const std::string &name : tracked_) {
        if (const Vessel *v = world.FindVessel(name)) {
            Record(v->Name(), SampleVessel(world, *v));
        }
    }
}

void TelemetryRecorder::Record(const std::string &name, const TelemetrySample &s) {
    if (csv_) {
        *csv_ << CsvRow(name, s) << '\n';
    }
    auto it = std::find_if(series_.begin(), series_.end(), [&](const auto &t) { return t.vessel == name; });
    if (it == series_.end()) {
        series_.push_back({name, {}});
        it = series_.end() - 1;
    }
    it->samples.push_back(s);
}

} // namespace hullhost::telemetry
