// An SVG chart of telemetry over time: altitude, apogee and perigee altitude
// in km on the left axis, mass in kg on the right, one colour per vessel.
#pragma once

#include <ostream>
#include <vector>

#include "telemetry/telemetry_recorder.h"

namespace hullhost::telemetry {

void WriteSvgChart(std::ostream &out, const std::vector<TelemetrySeries> &series);

} // namespace hullhost::telemetry
