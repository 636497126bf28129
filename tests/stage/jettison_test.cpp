// What the stage throws off: fairing, SOZ and payloads as vessels of their
// own, in their order and on their clock, with the mass that goes with them,
// and the vent after the last payload.
#include "stage_fixture.h"

namespace {

class JettisonTest : public StageTest {
  protected:
    // A stage carrying two payloads of the shipped fleet.
    Korvan &LoadWithPayloads() {
        AddPayload("Sat-1");
        AddPayload("Sat-2");
        return Load({"PAYLOAD1 Sat-1", "PAYLOAD2 Sat-2"});
    }
    // The empty mass the stage must have: its own, and all it carries.
    double Carried(Korvan &k) {
        double sum = 0.0;
        for (DWORD i = 0; i < k.AttachmentCount(false); ++i)
            if (OBJHANDLE child = k.CarriedVessel(i))
                sum += oapiGetVesselInterface(child)->GetMass();
        return sum;
    }
    bool Exists(const char *name) { return oapiGetObjectByName(name) != nullptr; }
};

TEST_F(JettisonTest, ReleaseStartsTheFairingDropAndJTakesTheRestInOrder) {
    Korvan &k = LoadWithPayloads();
    const double bare = k.DryMass - 180.0 - 120.0; // configured fairing and SOZ on board
    EXPECT_DOUBLE_EQ(k.GetEmptyMass(), k.DryMass + Carried(k));
    EXPECT_GT(Carried(k), 1600.0);
    Run(1.0);

    k.OnDetached(); // as from the carrier: the fairing goes 5.0 + 0.2 s later
    Run(5.1, 0.1);
    ASSERT_TRUE(Exists("Korvan-1-Fairing"));
    EXPECT_FALSE(k.fairingDropped); // still hanging for 0.2 s
    k.JettisonNext();               // a repeated request makes no second fairing
    Run(0.3, 0.1);
    EXPECT_TRUE(k.fairingDropped);
    EXPECT_DOUBLE_EQ(k.DryMass, bare + 120.0);
    EXPECT_DOUBLE_EQ(k.GetEmptyMass(), k.DryMass + Carried(k));
    VESSEL *fairing = oapiGetVesselInterface(oapiGetObjectByName("Korvan-1-Fairing"));
    EXPECT_EQ(fairing->GetAttachmentStatus(fairing->GetAttachmentHandle(true, 0)), nullptr);
    EXPECT_DOUBLE_EQ(fairing->GetMass(), 181.0);

    k.JettisonNext(); // the SOZ pair, with the ullage propellant
    Run(0.3, 0.1);
    EXPECT_TRUE(Exists("Korvan-1-SOZL") && Exists("Korvan-1-SOZR"));
    EXPECT_TRUE(k.sozDropped);
    EXPECT_EQ(k.GetPropellantMass(k.rcsTank), 0.0);
    EXPECT_DOUBLE_EQ(k.DryMass, bare);
    k.IgniteMain();
    EXPECT_EQ(Message(k), "Main engine ignition is not possible without SOZ!");

    // Payloads, the highest number first; each leaves at 0.5 to 0.6 m/s.
    k.JettisonNext();
    EXPECT_TRUE(k.ChildTable.Find("Payload2")->AttachedName.empty());
    EXPECT_FALSE(k.ChildTable.Find("Payload1")->AttachedName.empty());
    Run(1.0);
    VECTOR3 gone;
    k.GetRelativeVel(oapiGetObjectByName("Sat-2"), gone);
    EXPECT_GE(length(gone), 0.4 - 1e-6);
    EXPECT_LE(length(gone), 0.5 + 1e-6);
    EXPECT_DOUBLE_EQ(k.GetEmptyMass(), k.DryMass + Carried(k));

    k.JettisonNext(); // the last one arms the vent for 5 s ahead, for 7 s
    EXPECT_DOUBLE_EQ(k.GetEmptyMass(), k.DryMass);
    Run(4.9, 0.1);
    EXPECT_EQ(GroupLevel(k, "Vent"), 0.0);
    Run(0.2, 0.1);
    EXPECT_EQ(GroupLevel(k, "Vent"), 1.0);
    Run(6.8, 0.1);
    EXPECT_EQ(GroupLevel(k, "Vent"), 1.0);
    Run(0.2, 0.1);
    EXPECT_EQ(GroupLevel(k, "Vent"), 0.0);
    k.JettisonNext();
    EXPECT_EQ(Message(k), "Nothing more to separate!");
}

TEST_F(JettisonTest, SeparationDrawsItsBandAndScalesForcesByTheAcceleration) {
    Korvan &k = LoadWithPayloads();
    SEPARATION_REC sep;
    sep.vFrom = 2.0;
    sep.vSpan = 1.0;
    sep.f1From = _V(1000, 0, 0);
    sep.f1Span = _V(0, 0, 0);
    k.CurrentTimeAccel = 10.0;
    CHILD_REC &rec = *k.ChildTable.Find("Payload1");
    k.SeparateChild(rec, &sep, false, false, false, false);
    hullhost::Vessel &sat = *world->FindVessel("Sat-1");
    ASSERT_EQ(sat.forces.size(), 2u);
    EXPECT_DOUBLE_EQ(sat.forces[0].force.x, 100.0);
    EXPECT_TRUE(rec.AttachedName.empty());
    k.SeparateChild(rec, &sep, false, false, false, false); // nothing left: nothing drawn, nothing pushed
    EXPECT_EQ(sat.forces.size(), 2u);
}

} // namespace
