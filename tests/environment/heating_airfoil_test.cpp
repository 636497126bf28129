// The skin temperature's three terms and clamps, and the airfoils that the
// cross sections shape.
#include <gtest/gtest.h>

#include <cmath>

#include "environment/airfoil_params.h"
#include "environment/heating.h"
#include "resources/records/aero_rec.h"

namespace {

TEST(Heating, TermsAtTheirBoundsAndCaps) {
    struct Row {
        double h, v, vy, q, expect;
        double (*term)(double, double, double, double);
    };
    const auto speed = [](double h, double v, double vy, double) { return SpeedHeating(h, v, vy); };
    const auto pressure = [](double, double v, double, double q) { return PressureHeating(q, v); };
    const auto cooling = [](double h, double v, double, double) { return Cooling(h, v); };
    const Row rows[] = {
        {70000.0, 5000.0, 2000.0, 0, 0.0, speed}, // the band's ends heat nothing
        {150000.0, 5000.0, 2000.0, 0, 0.0, speed},
        {100000.0, 4000.0, 2000.0, 0, 0.0, speed},     // not above 4000 m/s
        {100000.0, 4001.0, 1001.0, 0, 64.048, speed},  // steep: up to 100
        {100000.0, 4001.0, -1001.0, 0, 64.048, speed}, // either way
        {100000.0, 4001.0, 999.0, 0, 5.0, speed},      // shallow: 5
        {100000.0, 7800.0, 3000.0, 0, 100.0, speed},
        {0, 2000.0, 0, 50000.0, 0.0, pressure},   // flux 100: not above
        {0, 2000.0, 0, 60000.0, 1.5, pressure},   // flux 120
        {0, 4000.0, 0, 200000.0, 10.0, pressure}, // capped
        {19999.0, 999.0, 0, 0, -30.0, cooling},
        {20000.0, 999.0, 0, 0, 0.0, cooling},
        {19999.0, 1000.0, 0, 0, 0.0, cooling},
    };
    for (const Row &r : rows)
        EXPECT_NEAR(r.term(r.h, r.v, r.vy, r.q), r.expect, 0.001) << r.h << " m, " << r.v << " m/s";
}

TEST(Heating, TemperatureStaysWithinItsScaleWhateverTheStep) {
    for (double dt : {0.01, 1.0, 1e6}) {
        EXPECT_DOUBLE_EQ(NextTemperature(2990.0, 115.0, dt), dt < 0.1 ? 2991.15 : 3000.0);
        EXPECT_DOUBLE_EQ(NextTemperature(25.0, -30.0, dt), dt < 0.1 ? 24.7 : 20.0);
    }
    EXPECT_EQ(GlowOf(500.0), 0.0);
    EXPECT_DOUBLE_EQ(GlowOf(1750.0), 1.0);
    EXPECT_DOUBLE_EQ(GlowOf(3000.0), 2.0);
}

// The centre of pressure lies along the axis of the smallest cross section.
TEST(Airfoils, DefaultsFollowTheSmallestCrossSection) {
    struct Row {
        VECTOR3 cs, cop;
        double chord, area;
    } rows[] = {
        {{6, 6, 3}, {0, 0, -2.0 / 3}, 2.0, 1.0}, // slender along z
        {{3, 6, 9}, {-1, 0, 0}, 3.0, 1.0},       // slender along x
        {{3, 3, 3}, {0, -1.0 / 3, 0}, 1.0, 1.0}, // equal: the third row
    };
    for (const Row &r : rows) {
        const AirfoilParams p = MakeAirfoilParams(r.cs, nullptr);
        EXPECT_NEAR(length(p.centerOfPressure - r.cop), 0.0, 1e-12) << r.cs.x << r.cs.y << r.cs.z;
        EXPECT_DOUBLE_EQ(p.WingChord, r.chord);
        EXPECT_DOUBLE_EQ(p.WingS, r.area);
        EXPECT_DOUBLE_EQ(p.WingAspect, r.chord / r.area);
        double cl, cm, cd;
        AirfoilCoefficients(p, PI / 2, 1.0, &cl, &cm, &cd);
        EXPECT_EQ(cl, 0.0);
        EXPECT_DOUBLE_EQ(cm, -1.0 / 3.0);
        EXPECT_DOUBLE_EQ(cd, 2.0);
        AirfoilCoefficients(p, -PI / 2, -1.0, &cl, &cm, &cd);
        EXPECT_DOUBLE_EQ(cm, -1.0 / 3.0);
        EXPECT_DOUBLE_EQ(cd, 2.0);
    }
    // A record's non-zero values stand over the defaults.
    AERO_REC rec;
    rec.name = "aDefault";
    rec.centerOfPressure = {0, 0, -1.2};
    rec.wingChord = 3.9;
    rec.cdragMax = 1.6;
    const AirfoilParams p = MakeAirfoilParams({6, 6, 3}, &rec);
    EXPECT_EQ(p.centerOfPressure.z, -1.2);
    EXPECT_EQ(p.WingChord, 3.9);
    EXPECT_EQ(p.WingS, 1.0);
    EXPECT_DOUBLE_EQ(p.dragSpan, 1.3);
}

} // namespace
