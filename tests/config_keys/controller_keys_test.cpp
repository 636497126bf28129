// Keys that act through the controller vessel: the plot colour and the pitch
// profile, whose key the controller names.
#include "keys_fixture.h"

namespace {

// A controller that names the pitch profile's key and notes plot colours.
class PitchController : public ProbeVessel {
  public:
    using ProbeVessel::ProbeVessel;
    intptr_t OnPeerMessage(OBJHANDLE sender, int code, intptr_t argument) override {
        if (code == 7 && std::strcmp(reinterpret_cast<const char *>(argument), "Pitch") == 0)
            return pitchKey.empty() ? 0 : reinterpret_cast<intptr_t>(pitchKey.c_str());
        if (code == 16)
            colors.push_back(static_cast<int>(argument));
        return ProbeVessel::OnPeerMessage(sender, code, argument);
    }
    std::string pitchKey;
    std::vector<int> colors;
};
VESSEL *ControllerInit(OBJHANDLE h, int f) { return new PitchController(h, f); }
void ControllerExit(VESSEL *v) { delete static_cast<PitchController *>(v); }

class ControllerKeysTest : public KeysTest {
  protected:
    ControllerKeysTest() {
        env.AddClass("Ctrl", ControllerInit, ControllerExit);
        controller = &testing_support::Object<PitchController>(
            env.Load("Control", "Test\\Ctrl", {"STATUS Orbiting Earth"}));
        controller->actAsController = true;
    }
    PitchController *controller = nullptr;
};

} // namespace

TEST_F(ControllerKeysTest, PlotColourWordsInTheTableReachTheControllerWhenTheyChangeIt) {
    ProbeVessel &p = LoadWithKeys("KmlPlotColor = BLUE\n");
    EXPECT_EQ(p.PlotColor, 4);
    LoadWithKeys("KmlPlotColor = GREEN\n"); // the first value already
    LoadWithKeys("KmlPlotColor = blue\n");
    LoadWithKeys("KmlPlotColor = WHITE_THIN\n");
    EXPECT_THAT(controller->colors, ::testing::ElementsAre(4, 3));
}

TEST_F(ControllerKeysTest, PitchProfileComesFromTheKeyTheControllerNames) {
    controller->pitchKey = "AscentPitch";
    ProbeVessel &p = LoadWithKeys("AscentPitch = CONST 100 5 0 LIN 200 5 45 PERI -1 1 2 LIN 300\n"
                                  "Pitch = CONST 1 1 1\n");
    ASSERT_EQ(p.PitchProfile.size(), 3u);
    EXPECT_EQ(p.PitchProfile[0].firstValue, 5.0);
    EXPECT_EQ(p.PitchProfile[1].kind, PITCH_LIN);
    EXPECT_EQ(p.PitchProfile[1].start, 100.0);
    EXPECT_EQ(p.PitchProfile[1].secondValue, 45.0);
    EXPECT_EQ(p.PitchProfile[2].kind, PITCH_PERI);
    EXPECT_EQ(p.PitchProfile[2].start, 200.0);

    controller->pitchKey.clear();
    ProbeVessel &q = LoadWithKeys("Pitch = CONST 1 1 1\n");
    EXPECT_TRUE(q.PitchProfile.empty());
}
