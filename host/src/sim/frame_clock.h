// How many frames a run takes. A run of `seconds` at `step` seconds per frame
// ends with the frame that reaches its end, cut short to end there; a sum of
// steps that falls a rounding error short of the end doesn't add a frame.
#pragma once

#include <cmath>

namespace hullhost::sim {

// The part of a step within which the end counts as reached.
constexpr double kFrameTolerance = 1e-6;

// True while a run that ends at `end` needs another frame of `step` at `simt`.
inline bool NeedsFrame(double simt, double end, double step) { return end - simt > kFrameTolerance * step; }

// The number of frames of `step` that a run of `seconds` takes.
inline double FrameCount(double seconds, double step) {
    return seconds <= 0.0 ? 0.0 : std::ceil(seconds / step - kFrameTolerance);
}

} // namespace hullhost::sim
