// The attitude loop's law for one axis: from the error and the rate to a
// command between -1 and 1. It keeps nothing from step to step.
#pragma once

// The tuning of one axis, in radians and radians per second (the blend is a
// plain share, 0 to 1).
struct AxisTuning {
    double errorLimit = 0.0;    // an error at or beyond it is saturated
    double rateLimitFar = 0.0;  // rate limit while saturated
    double coastRateFar = 0.0;  // rate toward the target at which thrust stops
    double rateLimitNear = 0.0; // rate limit while not saturated
    double coastRateNear = 0.0; // kept with the others; no decision reads it
    double blendNear = 0.0;     // share of rate damping inside the 1 degree box
};

// What the law chose for one axis in one step.
struct AxisOutcome {
    double command = 0.0;      // -1 to 1
    double clampedError = 0.0; // the error within plus or minus errorLimit [rad]
    double rateLimit = 0.0;    // the limit in force, far or near
    double coastRate = 0.0;    // the coast rate in force, far or near
    double blend = 0.0;        // share of rate damping in the command
};

AxisOutcome ControlAxis(const AxisTuning &tuning, double error, double rate);
