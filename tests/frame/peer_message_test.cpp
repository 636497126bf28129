// Peer messages among framework vessels, with and without a controller.
#include <cstring>

#include "frame/vessel_report.h"
#include "probe_fixture.h"

namespace {

// A vessel of the host that is not of the framework.
class ForeignVessel : public VESSEL3 {
  public:
    using VESSEL3::VESSEL3;
    char firstByte = 'Q'; // where a framework vessel keeps its marker: must not count
};
VESSEL *ForeignInit(OBJHANDLE h, int f) {
    auto *v = new ForeignVessel(h, f);
    v->firstByte = 'X';
    return v;
}
void ForeignExit(VESSEL *v) { delete static_cast<ForeignVessel *>(v); }

} // namespace

TEST_F(ProbeTest, WithoutControllerEveryLookUpComesBackEmpty) {
    env.AddClass("Foreign", ForeignInit, ForeignExit);
    hullhost::Vessel &foreign = env.Load("F", "Test\\Foreign", {"STATUS Orbiting Earth"});
    ProbeVessel &p = LoadProbe("P1");

    EXPECT_EQ(p.ControllerObject, nullptr);
    EXPECT_EQ(p.SendPeerMessage(nullptr, 1, 0), 0);
    EXPECT_EQ(p.SendPeerMessage(foreign.Handle(), 1, 0), 0);
    EXPECT_EQ(p.BroadcastPeerMessage(1, 0), 0);
    std::string text = "kept";
    p.LookUpText("Pitch", text, false);
    EXPECT_EQ(text, "kept");
    p.LookUpText("Pitch", text, true);
    EXPECT_EQ(text, "");
    EXPECT_EQ(p.LookUpDouble("x"), 0.0);
    p.ReportEvent(1, "nobody hears", 1.0, 2.0, nullptr);
    // Nor does a vessel that is gone.
    ProbeVessel &b = LoadProbe("B");
    OBJHANDLE hb = b.GetHandle();
    oapiDeleteVessel(hb);
    EXPECT_EQ(p.SendPeerMessage(hb, 12, 0), 0);
}

class ControllerTest : public ProbeTest {
  protected:
    ControllerTest() : controller(LoadProbe("Control")) { controller.actAsController = true; }
    ProbeVessel &controller;
};

TEST_F(ControllerTest, ReportCarriesItsFieldsAtTheirOffsets) {
    ProbeVessel &p = LoadProbe("P1");
    p.ReportEvent(2, "engine fire", 12.5, -45.25, nullptr);
    p.ReportEvent(5, "named", 1.0, 1.0, nullptr);
    ASSERT_EQ(controller.reports.size(), 2u);

    const char *bytes = controller.reports[0].data();
    uint32_t object;
    int32_t kind;
    double lat, lng;
    std::memcpy(&object, bytes + 0, 4);
    std::memcpy(&kind, bytes + 516, 4);
    std::memcpy(&lat, bytes + 520, 8);
    std::memcpy(&lng, bytes + 528, 8);
    EXPECT_EQ(object, 666u);
    EXPECT_STREQ(bytes + 4, "engine fire");
    EXPECT_EQ(kind, 2);
    EXPECT_EQ(lat, 12.5);
    EXPECT_EQ(lng, -45.25);

    std::memcpy(&object, controller.reports[1].data(), 4);
    EXPECT_EQ(object, static_cast<uint32_t>(reinterpret_cast<uintptr_t>(p.GetHandle())));
}

TEST_F(ControllerTest, PlotColourGoesOutOnlyWhenItChanges) {
    ProbeVessel &p = LoadProbe("P1");
    controller.receivedCodes.clear();
    p.SetPlotColor(6);
    p.SetPlotColor(3);
    p.SetPlotColor(3);
    EXPECT_EQ(std::count(controller.receivedCodes.begin(), controller.receivedCodes.end(), 16), 1);
    EXPECT_EQ(p.PlotColor, 3);
}
