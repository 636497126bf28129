// The US Standard Atmosphere 1976, by geometric altitude.
#pragma once

namespace hullhost::physics {

struct AirState {
    double temperature = 0.0;  // kinetic temperature [K]
    double pressure = 0.0;     // [Pa]
    double density = 0.0;      // [kg/m^3]
    double speedOfSound = 0.0; // [m/s]
};

// Below 86 km the standard's seven geopotential layers, exactly; from 86 to
// 1000 km its kinetic temperature profile exactly, and pressure and density
// interpolated (monotone cubic in their logarithms) through its tabulated
// values. Above 1000 km pressure and density fall off with the scale height
// at 1000 km, and beyond kTopOfAtmosphere there is vacuum. Altitudes below
// sea level extend the lowest layer.
AirState StandardAtmosphere(double altitude);

// The altitude above which StandardAtmosphere gives vacuum [m].
inline constexpr double kTopOfAtmosphere = 2.5e6;

} // namespace hullhost::physics
