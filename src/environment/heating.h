// The skin temperature model of flight in air: three rates [units/s] summed
// over the step, on an arbitrary scale from kMinTemperature to kMaxTemperature.
#pragma once

#include <algorithm>

inline constexpr double kMinTemperature = 20.0, kMaxTemperature = 3000.0;

// Heating by speed in the upper air: v^3 / 1e9 between 70 and 150 km above
// 4000 m/s, at most 100 on a steep path (vertical speed above 1000 m/s), else 5.
inline double SpeedHeating(double altitude, double airspeed, double verticalSpeed) {
    double a = 0.0;
    if (altitude < 150000.0 && altitude > 70000.0 && airspeed > 4000.0)
        a = airspeed * airspeed * airspeed / 1000000000.0;
    const double cap = (verticalSpeed > 1000.0 || verticalSpeed < -1000.0) ? 100.0 : 5.0;
    return std::min(a, cap);
}

// Heating by the compressed air ahead: an eightieth of the flux q v^2 / 2e9
// once that is above 100, at most 10.
inline double PressureHeating(double dynPressure, double airspeed) {
    const double e = dynPressure * airspeed * airspeed / 2000000000.0;
    return std::min(e > 100.0 ? e / 80.0 : 0.0, 10.0);
}

// Cooling in the low, slow air.
inline double Cooling(double altitude, double airspeed) {
    return altitude < 20000.0 && airspeed < 1000.0 ? -30.0 : 0.0;
}

inline double NextTemperature(double temperature, double rate, double dt) {
    return std::clamp(temperature + rate * dt, kMinTemperature, kMaxTemperature);
}

// 0 up to 500, 1 at 1750, 2 at 3000.
inline double GlowOf(double temperature) { return 2.0 * std::max(temperature - 500.0, 0.0) / 2500.0; }
