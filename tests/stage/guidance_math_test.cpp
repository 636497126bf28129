// The guidance's two-body arithmetic against closed forms: anomalies and
// times on circles and ellipses, the time to the equator on both kinds of
// orbit, and the lunar apogee search's two ends.
#include <gtest/gtest.h>

#include <cmath>

#include "stage/guidance_math.h"

namespace {

using namespace guidance;

TEST(GuidanceMath, AnomaliesAndTimesOnCirclesAndEllipses) {
    const double T = 5400.0;
    // On a circle every anomaly is the true one, and time runs evenly.
    for (double nu : {0.3, 2.0, 3.5, 6.0}) {
        EXPECT_NEAR(EccentricAnomaly(0.0, nu), nu, 1e-12) << nu;
        EXPECT_NEAR(TimeFromPeriapsis(0.0, nu, T), nu / kTwoPi * T, 1e-9) << nu;
    }
    // e = 0.5 at nu = 90 deg: cos E = (e + cos nu) / (1 + e cos nu) = 0.5.
    EXPECT_NEAR(EccentricAnomaly(0.5, kPi / 2), kPi / 3, 1e-12);
    EXPECT_NEAR(EccentricAnomaly(0.5, -kPi / 2), kTwoPi - kPi / 3, 1e-12);
    EXPECT_NEAR(TimeFromPeriapsis(0.5, kPi / 2, T), (kPi / 3 - 0.5 * std::sin(kPi / 3)) / kTwoPi * T, 1e-9);
    // Apoapsis is half a period out whatever the eccentricity, and the two
    // halves of the orbit mirror each other.
    EXPECT_NEAR(TimeFromPeriapsis(0.7, kPi - 1e-12, T), T / 2, 1e-6);
    EXPECT_NEAR(TimeFromPeriapsis(0.3, kTwoPi - 1.1, T), T - TimeFromPeriapsis(0.3, 1.1, T), 1e-9);
}

TEST(GuidanceMath, EccentricityTrueAnomalyAndArgumentFromVectors) {
    const double mu = 3.986004418e14, r = 7.0e6, e = 0.2;
    // At periapsis the eccentricity vector points at the body, of length e.
    const VECTOR3 evec = EccentricityVector(mu, _V(r, 0, 0), _V(0, std::sqrt(mu * (1 + e) / r), 0));
    EXPECT_NEAR(length(evec - _V(e, 0, 0)), 0.0, 1e-12);
    EXPECT_NEAR(length(EccentricityVector(mu, _V(0, r, 0), _V(-std::sqrt(mu / r), 0, 0))), 0.0, 1e-12);

    // 60 deg from periapsis, climbing (r . v > 0) or falling.
    const VECTOR3 at60 = _V(std::cos(kPi / 3), std::sin(kPi / 3), 0) * r;
    EXPECT_NEAR(TrueAnomaly(_V(e, 0, 0), at60, _V(0, 1, 0)), kPi / 3, 1e-12);
    EXPECT_NEAR(TrueAnomaly(_V(e, 0, 0), at60, _V(0, -1, 0)), kTwoPi - kPi / 3, 1e-12);
    EXPECT_NEAR(TrueAnomaly(_V(e, 0, 0), _V(r, 0, 0), _V(0, 1, 0)), 0.0, 1e-12); // rounding stays in range

    // The argument of periapsis from the node, below the plane past pi.
    EXPECT_NEAR(ArgumentFromNode(_V(2, 0, 0), _V(0, 0.1, 0.1)), kPi / 2, 1e-12);
    EXPECT_NEAR(ArgumentFromNode(_V(2, 0, 0), _V(0, 0.1, -0.1)), 3 * kPi / 2, 1e-12);
}

// The time to the next node on an orbit with argument of perigee w, seen from
// true anomaly nu: the nodes stand at nu = 2 pi - w (ascending) and pi - w.
double NodeTimeByGeometry(double e, double w, double nu, double T) {
    const double now = TimeFromPeriapsis(e, nu, T);
    double best = T;
    for (double node : {kTwoPi - w, kPi - w}) {
        const double t = std::fmod(TimeFromPeriapsis(e, std::fmod(node + kTwoPi, kTwoPi), T) - now + T, T);
        best = std::min(best, t);
    }
    return best;
}

// Where the vessel is relative to the apsides and nodes picks one of four
// rows. Each row is exact while the next node comes before the next
// perigee, and on the way up to apogee on either side; past the last node
// before perigee the table takes the far node's time from the other half.
TEST(GuidanceMath, TimeToEquatorInTheFourCases) {
    const double T = 5400.0;
    struct Case {
        double w;    // argument of perigee
        double nu;   // where the vessel is
        bool pastPi; // A
        bool toApo;  // B
    };
    const Case cases[] = {
        {4.0, 0.5, true, true},   {4.0, 2.9, true, true},  // before and past the ascending node
        {4.0, 3.5, true, false},                           // before the descending node
        {1.0, 0.5, false, true},  {1.0, 2.9, false, true}, // before and past the descending node
        {1.0, 5.0, false, false},                          // before the ascending node
    };
    for (double e : {0.0, 0.3}) {
        for (const Case &c : cases) {
            const double PeT = T - TimeFromPeriapsis(e, c.nu, T);
            const double ApT = std::fmod(T / 2 - TimeFromPeriapsis(e, c.nu, T) + T, T);
            ASSERT_EQ(c.w > kPi, c.pastPi);
            ASSERT_EQ(PeT > ApT, c.toApo);
            EXPECT_NEAR(TimeToEquator(e, c.w, T, PeT, ApT), NodeTimeByGeometry(e, c.w, c.nu, T), 1e-6)
                << "e " << e << " w " << c.w << " nu " << c.nu;
        }
    }
    // w exactly at pi counts as not past it: the row without A, which on a
    // circle at apogee - 1000 s gives the time to the descending node.
    const double ApT = 1000.0, PeT = ApT + T / 2;
    EXPECT_NEAR(TimeToEquator(0.0, kPi, T, PeT, ApT), NodeTimeByGeometry(0.0, kPi, kPi - ApT / T * kTwoPi, T),
                1e-6);
}

TEST(GuidanceMath, ApogeeSearchStopsAtTheFirstArrivalInTimeOrAtItsPassLimit) {
    const double mu = 3.986004418e14, R = 6571010.0, Rm = 3.844e8;
    // No time left: the search runs out, about 11 times the Moon's radius out.
    const TransferApogee late = SearchTransferApogee(mu, R, Rm, -10.0);
    EXPECT_EQ(late.passes, kMaxApogeePasses);
    EXPECT_NEAR(late.apogee, Rm * (1.0 + kMaxApogeePasses / 1000.0), 1e-3 * Rm);
    // Plenty of time: the first step, just above the Moon's radius, arrives.
    const TransferApogee early = SearchTransferApogee(mu, R, Rm, 30 * 86400.0);
    EXPECT_EQ(early.passes, 1);
    EXPECT_DOUBLE_EQ(early.apogee, Rm + Rm / 1000.0);
}

} // namespace
