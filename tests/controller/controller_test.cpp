// The fleet controller: its answers, what it keeps, and the focus it passes
// on; in process beside probe vessels, and as the shipped module beside the
// shipped fleet.
#include <cstring>

#include "controller/fleet_controller.h"
#include "core/line_file.h"
#include "fleet_fixture.h"
#include "probe_fixture.h"

using ::testing::ElementsAre;

namespace {

VESSEL *ControllerInit(OBJHANDLE h, int f) { return new FleetController(h, f); }
void ControllerExit(VESSEL *v) { delete static_cast<FleetController *>(v); }

// In process every framework vessel reads the probe's files: the controller
// takes its keys from the variant "Fleet".
class ControllerVesselTest : public ProbeTest {
  protected:
    ControllerVesselTest() { env.AddClass("Controller", ControllerInit, ControllerExit); }
    FleetController &LoadController(const std::string &keys, std::vector<std::string> lines = {}) {
        env.Write("Config/Vessels/Test/Probe/Fleet.cfg", keys);
        lines.insert(lines.begin(), {"STATUS Orbiting Earth", "SUBTYPE Fleet"});
        return testing_support::Object<FleetController>(env.Load("Control", "Test\\Controller", lines));
    }
};

} // namespace

TEST_F(ControllerVesselTest, BlockHoldsTheTargetsOfKeysAndScenarioAndNothingElse) {
    FleetController &c = LoadController("InsertionAltitude = 180\nTargetAltitude = 400\n"
                                        "TargetInclination = 51.6\nKeepTimeAcceleration = true\n",
                                        {"TARGETS 190"});
    ProbeVessel &p = LoadProbe("P1");
    EXPECT_EQ(p.ControllerObject, c.GetHandle());
    EXPECT_EQ(c.ControllerObject, c.GetHandle()); // it found itself too
    const auto *bytes = static_cast<const unsigned char *>(p.ControllerData);
    ASSERT_NE(bytes, nullptr);
    double targets[3];
    std::memcpy(targets, bytes + 152, sizeof targets);
    EXPECT_THAT(targets, ElementsAre(190.0, 400.0, 51.6));
    EXPECT_EQ(bytes[432], 1);
    for (size_t i = 0; i < sizeof(SharedBlock); ++i) {
        if ((i < 152 || i >= 176) && i != 432) {
            EXPECT_EQ(bytes[i], 0) << "byte " << i;
        }
    }
    EXPECT_EQ(p.SendPeerMessage(c.GetHandle(), 6, 0), 1);

    hullhost::LineFile saved;
    c.clbkSaveState(saved.Handle());
    EXPECT_THAT(saved.Written(), testing::Contains("TARGETS 190.000000 400.000000 51.600000"));
}

TEST_F(ControllerVesselTest, LookUpsAnswerByVesselThenByNameWithTheVariantFirst) {
    env.Write("Config/Vessels/Test/Probe.cfg",
              "Module = Test\\Probe\nLookUpTexts = {\n ST Class\n Seq Ascent\n}\n");
    env.Write("Config/Vessels/Test/Probe/Heavy.cfg", "Level = heavy\n");
    FleetController &c = LoadController("LookUpTexts = {\n ST Light\n P2:ST Heavy\n}\n"
                                        "LookUpDoubles = {\n Gain 2.5\n Bad x\n}\n"
                                        "LookUpIntegers = {\n Count 7\n}\n");
    ProbeVessel &p1 = LoadProbe("P1");
    ProbeVessel &p2 = LoadProbe("P2");
    EXPECT_EQ(p1.subtype, "Light");
    EXPECT_EQ(p2.subtype, "Heavy");
    EXPECT_EQ(p2.Cfg("Level"), "heavy");

    std::string text;
    p1.LookUpText("Seq", text, true);
    EXPECT_EQ(text, "Ascent");
    p1.LookUpText("Unknown", text, true);
    EXPECT_EQ(text, "");
    EXPECT_EQ(p1.LookUpDouble("Gain"), 2.5);
    EXPECT_EQ(p1.LookUpDouble("Bad"), 0.0);
    EXPECT_EQ(p1.LookUpInt("Count"), 7);
    EXPECT_EQ(p1.LookUpInt("Gain"), 0);
    EXPECT_EQ(c.OnPeerMessage(p1.GetHandle(), 7, 0), 0);
}

TEST_F(ControllerVesselTest, KeepsWhatTheVesselsTellAndFollowsOneAlert) {
    FleetController &c = LoadController("");
    ProbeVessel &p = LoadProbe("P1");
    const OBJHANDLE h = c.GetHandle();
    c.events.clear();
    p.ReportEvent(6, "separated", 10.0, 20.0, nullptr);
    p.SendPeerMessage(h, 10, reinterpret_cast<intptr_t>("P1-Payload"));
    p.SetPlotColor(3);
    p.SendPeerMessage(h, 4, 0);
    EXPECT_EQ(c.block.alertBusy, 1);
    p.SendPeerMessage(h, 15, 0);
    p.SendPeerMessage(h, 2, reinterpret_cast<intptr_t>(p.GetHandle()));
    EXPECT_EQ(c.block.alertBusy, 0);

    using K = FleetEventKind;
    ASSERT_EQ(c.events.size(), 6u);
    std::vector<K> kinds;
    for (const FleetEvent &e : c.events)
        kinds.push_back(e.kind);
    EXPECT_THAT(kinds, ElementsAre(K::Report, K::Created, K::PlotColour, K::Alert, K::Impact, K::Crash));
    const FleetEvent &report = c.events[0];
    EXPECT_EQ(report.vessel, "P1");
    EXPECT_EQ(report.text, "separated");
    EXPECT_EQ(report.value, 6);
    EXPECT_EQ(report.latitude, 10.0);
    EXPECT_EQ(report.longitude, 20.0);
    EXPECT_EQ(c.events[1].vessel, "P1-Payload");
    EXPECT_EQ(c.events[1].text, "P1");
    EXPECT_EQ(c.events[2].value, 3);

    // An alert whose vessel doesn't crash is followed for a while only.
    p.SendPeerMessage(h, 4, 0);
    env.Run(10.5);
    EXPECT_EQ(c.block.alertBusy, 0);
}

// The shipped controller module beside the shipped fleet.
class FleetControllerTest : public FleetTest {
  protected:
    HULLKIT &controller = Load("FleetControl", "Fleet\\Controller");
    void Focus(const char *name) {
        world_->SetFocus(world_->FindVessel(name));
        world_->Frame(0.1);
    }
};

TEST_F(FleetControllerTest, KorvanFindsTheControllerAndTakesTheFleetsOrbit) {
    HULLKIT &k = LoadKorvan();
    EXPECT_EQ(k.ControllerObject, controller.GetHandle());
    EXPECT_EQ(k.ControllerHullkit, &controller);
    EXPECT_EQ(k.ControllerData, reinterpret_cast<void *>(k.SendPeerMessage(controller.GetHandle(), 3, 0)));
    EXPECT_DOUBLE_EQ(k.OrbitInsertRadius, 6571000.0);
    EXPECT_DOUBLE_EQ(k.OrbitTargetRadius, 6571000.0);
    EXPECT_EQ(k.OrbitInclination, 0.0);
    EXPECT_EQ(k.SendPeerMessage(controller.GetHandle(), 6, 0), 0);
}

TEST_F(FleetControllerTest, FocusIsPassedOnAsItMovesAndNeverTakenByTheController) {
    HULLKIT &korvan = LoadKorvan();
    HULLKIT &payload = Load("Payload-1", "Fleet\\Generic", "Payload");
    Focus("Korvan-1");
    EXPECT_TRUE(korvan.HasFocus);
    EXPECT_FALSE(payload.HasFocus);
    Focus("FleetControl");
    EXPECT_EQ(world_->focus, world_->FindVessel("Korvan-1"));
    Focus("Payload-1");
    EXPECT_FALSE(korvan.HasFocus);
    EXPECT_TRUE(payload.HasFocus);
    EXPECT_FALSE(controller.HasFocus);
}

TEST_F(FleetTest, WithoutControllerNoVesselHearsOfTheFocus) {
    HULLKIT &k = LoadKorvan();
    world_->SetFocus(vessel);
    for (int i = 0; i < 20; ++i)
        world_->Frame(0.1);
    EXPECT_EQ(k.ControllerObject, nullptr);
    EXPECT_FALSE(k.HasFocus);
}
