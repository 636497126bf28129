// An SVG view of a run's orbits, seen from above the Moon's orbit plane: the
// Earth to scale, the Moon's orbit with the Moon where it stood at the start
// and at the end, and the path of each tracked vessel, one colour each.
#pragma once

#include <ostream>
#include <vector>

#include "telemetry/telemetry_recorder.h"

namespace hullhost {
class Body;
} // namespace hullhost

namespace hullhost::telemetry {

// `earth` and `moon` give the bodies' sizes and the Moon's path; the
// samples give the vessels' positions relative to the Earth and the times.
void WriteOrbitView(std::ostream &out, const std::vector<TelemetrySeries> &series, const Body &earth,
                    const Body &moon);

} // namespace hullhost::telemetry
