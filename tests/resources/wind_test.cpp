// The wind of shipped vessels: a structure that names a wind force and a
// payload that doesn't, with and without the fleet controller's shared draw,
// steady and in gusts.
#include "fleet_fixture.h"

namespace {

class WindTest : public FleetTest {
  protected:
    using AppliedForce = hullhost::AppliedForce;
    // The force that one P_WINDS step adds, in the vessel's frame.
    AppliedForce Push(HULLKIT &v) {
        hullhost::Vessel *host = world_->VesselFromHandle(v.GetHandle());
        host->forces.clear();
        v.P_WINDS();
        return host->forces.back();
    }
};

TEST_F(WindTest, FleetSharesTheControllersDrawAndEachPushesWithItsOwnForce) {
    // First alone, then with a controller, which the later vessels find.
    for (bool controller : {false, true}) {
        SCOPED_TRACE(controller);
        const std::string n = std::to_string(controller);
        HULLKIT *fleet = controller ? &Load("FleetControl", "Fleet\\Controller") : nullptr;
        HULLKIT &pad = Load(("Pad" + n).c_str(), "Fleet\\Generic", "LitPad");
        HULLKIT &sat = Load(("Sat" + n).c_str(), "Fleet\\Generic", "Payload");
        if (fleet) {
            for (HULLKIT *v : {&pad, &sat}) {
                EXPECT_EQ(v->WindDir.x, fleet->WindDir.x);
                EXPECT_EQ(v->WindDir.z, fleet->WindDir.z);
                EXPECT_EQ(v->WindStrength, fleet->WindStrength);
                EXPECT_EQ(v->WindGusty, fleet->WindGusty);
            }
        }
        EXPECT_NEAR(length(pad.WindDir), 1.0, 1e-12);
        EXPECT_EQ(pad.WindDir.y, 0.0);
        EXPECT_DOUBLE_EQ(pad.WindForce, 20000.0 * pad.WindStrength);
        EXPECT_EQ(pad.WindPoint.y, 40.0);
        // Without the key the payload's wind pushes with nothing.
        EXPECT_EQ(sat.WindForce, 0.0);
        sat.WindGusty = true;
        EXPECT_EQ(length(Push(sat).force), 0.0);
    }
}

TEST_F(WindTest, GustsScaleTheForceFromHalfToOneAndAHalfEachStep) {
    HULLKIT &pad = Load("Pad", "Fleet\\Generic", "LitPad");
    pad.WindForce = 1000.0;
    pad.WindDir = {1, 0, 0};
    VECTOR3 along;
    pad.HorizonInvRot(pad.WindDir, along);
    for (bool gusty : {false, true}) {
        pad.WindGusty = gusty;
        double least = 1e9, most = 0.0;
        for (int i = 0; i < 200; ++i) {
            const AppliedForce f = Push(pad);
            EXPECT_NEAR(length(crossp(f.force, along)), 0.0, 1e-6);
            EXPECT_EQ(f.pos.y, 40.0);
            least = std::min(least, length(f.force));
            most = std::max(most, length(f.force));
        }
        if (gusty) {
            // The ends of the band can come up; their lengths may lie an
            // ulp outside it.
            EXPECT_GE(least, 500.0 - 1e-9);
            EXPECT_LE(most, 1500.0 + 1e-9);
            EXPECT_GT(most - least, 500.0);
        } else {
            EXPECT_DOUBLE_EQ(least, 1000.0);
            EXPECT_DOUBLE_EQ(most, 1000.0);
        }
    }
}

} // namespace
