// The atmosphere against the US Standard Atmosphere 1976 tables, and against
// the hydrostatic equation that ties its pressure to its density.
#include <gtest/gtest.h>

#include <cmath>

#include "physics/atmosphere.h"

using hullhost::physics::StandardAtmosphere;

TEST(StandardAtmosphere, MatchesTheTables) {
    // Geometric altitudes; 0 where the table gives no value. Below 86 km the
    // tables hold to four figures, above to three.
    const struct {
        double km, temperature, pressure, density, speedOfSound;
    } table[] = {{0, 288.150, 101325.0, 1.2250, 340.29},
                 {5, 255.676, 54048.0, 0.73643, 320.55},
                 {10, 223.252, 26500.0, 0.41351, 299.53},
                 {20, 216.650, 5529.3, 0.088910, 295.07},
                 {30, 226.509, 1197.0, 0.018410, 301.71},
                 {40, 250.350, 287.14, 0.0039957, 317.19},
                 {50, 270.650, 79.779, 0.0010269, 329.80},
                 {60, 247.021, 21.959, 3.0968e-4, 315.07},
                 {70, 219.585, 5.2209, 8.2829e-5, 297.06},
                 {80, 198.639, 1.0525, 1.8458e-5, 282.54},
                 {86, 186.867, 0.37338, 6.958e-6, 274.10},
                 {90, 186.87, 0, 0, 0},
                 {100, 195.08, 3.2011e-2, 5.604e-7, 0},
                 {110, 240.00, 0, 0, 0},
                 {120, 360.00, 0, 0, 0},
                 {150, 634.39, 0, 0, 0},
                 {200, 854.56, 8.4736e-5, 2.541e-10, 0},
                 {300, 976.01, 0, 0, 0},
                 {400, 0, 1.4518e-6, 2.803e-12, 0},
                 {500, 999.24, 0, 0, 0},
                 {1000, 1000.0, 7.5138e-9, 3.561e-15, 0}};
    for (const auto &t : table) {
        SCOPED_TRACE(t.km);
        const auto s = StandardAtmosphere(t.km * 1000.0);
        const bool lower = t.km <= 86;
        if (t.temperature > 0) {
            EXPECT_NEAR(s.temperature, t.temperature, 0.05);
        }
        if (t.pressure > 0) {
            EXPECT_NEAR(s.pressure / t.pressure, 1.0, lower ? 2e-4 : 1e-3);
            EXPECT_NEAR(s.density / t.density, 1.0, lower ? 5e-4 : 1e-3);
        }
        if (t.speedOfSound > 0) {
            EXPECT_NEAR(s.speedOfSound, t.speedOfSound, 0.1);
        }
    }
}

// Falling without a step larger than the scale height allows, dp/dz = -rho g
// between the tabulated heights too, and nothing left far out.
TEST(StandardAtmosphere, ThinsOutSmoothlyAndHydrostatically) {
    double lastPressure = HUGE_VAL, lastDensity = HUGE_VAL;
    for (double z = -1000.0; z < 1.2e6; z += 250.0) {
        const auto s = StandardAtmosphere(z);
        ASSERT_LT(s.pressure, lastPressure) << z;
        ASSERT_LT(s.density, lastDensity) << z;
        ASSERT_GT(s.pressure, lastPressure < HUGE_VAL ? 0.9 * lastPressure : 0.0) << z;
        lastPressure = s.pressure;
        lastDensity = s.density;
    }
    for (double km = 87.0; km < 1000.0; km += 7.3) {
        SCOPED_TRACE(km);
        const double z = km * 1000.0, dz = 10.0;
        const double slope =
            (StandardAtmosphere(z + dz).pressure - StandardAtmosphere(z - dz).pressure) / (2 * dz);
        const double g = 9.80665 * std::pow(6356766.0 / (6356766.0 + z), 2);
        EXPECT_NEAR(-slope / (StandardAtmosphere(z).density * g), 1.0, 0.08);
    }
    EXPECT_EQ(StandardAtmosphere(3.0e6).pressure, 0.0);
}
