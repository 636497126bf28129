// Scenarios loaded into a world and written back, and the world's state as
// JSON, with the probe vessel linked into the test.
#include <gtest/gtest.h>

#include "core/world.h"
#include "host_probe.h"
#include "scenario/scenario_world.h"
#include "sim/state_json.h"
#include "temp_dir.h"

using hullhost::CaptureScenario;
using hullhost::LoadScenario;
using hullhost::ScenarioFile;
using hullhost::World;

namespace {

class WorldScenarioTest : public ::testing::Test {
  protected:
    WorldScenarioTest() {
        hosttest::WriteText(root / "Config/Vessels/Test/Probe.cfg", "; the probe\nModule = Test\\Probe\n");
        world.modules.RegisterBuiltin("Test\\Probe", HostProbeInit, HostProbeExit);
        ProbeEvents().clear();
    }

    // The probe's records that start with `prefix`.
    static std::vector<std::string> EventsOf(const std::string &prefix) {
        std::vector<std::string> out;
        for (auto &e : ProbeEvents())
            if (e.rfind(prefix, 0) == 0)
                out.push_back(e);
        return out;
    }

    hosttest::TempDir root;
    World world{root.Path().string()};
};

const char *kTwoProbes = "BEGIN_DESC\nTwo probes\nEND_DESC\n"
                         "BEGIN_ENVIRONMENT\n  Date MJD 60000.5\nEND_ENVIRONMENT\n"
                         "BEGIN_FOCUS\n  Ship B\nEND_FOCUS\n"
                         "BEGIN_SHIPS\n"
                         "A:Test\\Probe\n  PROBE_ONE 1\n  PROBE_TWO 2\nEND\n"
                         "B:Test\\Probe\n  PROBE_THREE\nEND\n"
                         "END_SHIPS\n";

TEST_F(WorldScenarioTest, CallbacksComeInTheHostOrder) {
    LoadScenario(world, ScenarioFile::Parse(kTwoProbes));
    world.Frame(0.02);
    EXPECT_EQ(ProbeEvents(), (std::vector<std::string>{
                                 "A construct",
                                 "A setClassCaps",
                                 "A load PROBE_ONE 1",
                                 "A load PROBE_TWO 2",
                                 "B construct",
                                 "B setClassCaps",
                                 "B load PROBE_THREE",
                                 "A postCreation",
                                 "B postCreation",
                                 "B focus",
                                 "B cockpit",
                                 "A preStep",
                                 "B preStep",
                             }));
    EXPECT_DOUBLE_EQ(world.mjd0, 60000.5);
    ASSERT_NE(world.focus, nullptr);
    EXPECT_EQ(world.focus->Name(), "B");
}

TEST_F(WorldScenarioTest, UnknownClassNamesTheVesselAndTheClass) {
    auto scn = ScenarioFile::Parse("BEGIN_SHIPS\nA:Test\\Probe\nEND\nC:Nope\\Nothing\nEND\nEND_SHIPS\n");
    try {
        LoadScenario(world, scn);
        FAIL() << "no error";
    } catch (const std::runtime_error &e) {
        std::string message = e.what();
        EXPECT_NE(message.find("vessel 'C'"), std::string::npos) << message;
        EXPECT_NE(message.find("Nope\\Nothing"), std::string::npos) << message;
    }
    // Nothing was post-created: the scenario stopped at the bad class.
    EXPECT_TRUE(EventsOf("A postCreation").empty());
}

TEST_F(WorldScenarioTest, CaptureKeepsTheDescriptionAndFocusAndSavesEachVesselOnce) {
    ScenarioFile loaded = ScenarioFile::Parse(kTwoProbes);
    LoadScenario(world, loaded);
    ScenarioFile saved = CaptureScenario(world, loaded);

    EXPECT_EQ(saved.description, loaded.description);
    EXPECT_EQ(saved.focus, "B");
    ASSERT_EQ(saved.vessels.size(), 2u);
    EXPECT_EQ(saved.vessels[0].name, "A");
    EXPECT_EQ(saved.vessels[0].className, "Test\\Probe");
    EXPECT_EQ(EventsOf("A save").size(), 1u);
    EXPECT_EQ(EventsOf("B save").size(), 1u);
}

TEST_F(WorldScenarioTest, StateHasTheFixedFields) {
    LoadScenario(world, ScenarioFile::Parse(kTwoProbes));
    world.Frame(0.02);
    auto state = hullhost::sim::WorldState(world);

    std::vector<std::string> top;
    for (auto &[key, value] : state.items())
        top.push_back(key);
    EXPECT_EQ(top, (std::vector<std::string>{"simt", "mjd", "focus", "annotations", "debugString", "bodies",
                                             "vessels"}));
    EXPECT_DOUBLE_EQ(state["simt"].get<double>(), 0.02);
    EXPECT_EQ(state["focus"], "B");
    EXPECT_EQ(state["annotations"], (nlohmann::ordered_json{"probe A ready", "probe B ready"}));
    EXPECT_EQ(state["debugString"], "frames 1 at 0.02");

    ASSERT_EQ(state["vessels"].size(), 2u);
    const auto &v = state["vessels"][0];
    std::string fields;
    for (auto &[key, value] : v.items())
        fields += key + " ";
    EXPECT_EQ(
        fields,
        "name class emptyMass mass size pmi crossSections rotDrag cw touchdownPoints "
        "focusEnabled status parent rpos rvel axes angularVel surface propellants thrusters thrusterGroups "
        "meshes docks attachments visual exhausts particleStreams beacons animations lights ");
    EXPECT_EQ(v["name"], "A");
    EXPECT_EQ(v["class"], "Test\\Probe");
    EXPECT_EQ(v["emptyMass"], 1200.0);
    EXPECT_NEAR(v["mass"].get<double>(), 1200.0 + v["propellants"][0]["mass"].get<double>(), 1e-9);
    EXPECT_EQ(v["propellants"][0]["maxMass"], 300.0);
    EXPECT_EQ(v["cw"].size(), 4u);
    ASSERT_EQ(v["thrusters"].size(), 1u);
    EXPECT_EQ(v["thrusters"][0]["propellant"], 0);
    EXPECT_EQ(v["thrusters"][0]["maxThrust"], 5000.0);
    EXPECT_EQ(v["thrusters"][0]["isp"], 3000.0);
    EXPECT_EQ(v["thrusters"][0]["dir"], (nlohmann::ordered_json{0.0, 0.0, 1.0}));
    ASSERT_EQ(v["thrusterGroups"].size(), 1u);
    EXPECT_EQ(v["thrusterGroups"][0]["type"], static_cast<int>(THGROUP_MAIN));
    EXPECT_EQ(v["thrusterGroups"][0]["thrusters"], (nlohmann::ordered_json{0}));
    ASSERT_EQ(v["docks"].size(), 1u);
    EXPECT_EQ(v["docks"][0]["pos"], (nlohmann::ordered_json{0.0, 0.0, 2.0}));
    ASSERT_EQ(v["attachments"].size(), 1u);
    EXPECT_EQ(v["attachments"][0]["id"], "PROBE");
    EXPECT_EQ(v["attachments"][0]["toParent"], false);
    EXPECT_TRUE(v["attachments"][0]["attached"].is_null());
}

TEST_F(WorldScenarioTest, StateNamesTheAttachedVessel) {
    LoadScenario(world, ScenarioFile::Parse(kTwoProbes));
    auto *a = world.FindVessel("A");
    auto *b = world.FindVessel("B");
    ATTACHMENTHANDLE childPoint =
        b->iface->CreateAttachment(true, _V(0, 0, 0), _V(0, 0, -1), _V(0, 1, 0), "PROBE");
    ASSERT_TRUE(a->iface->AttachChild(b->Handle(), a->iface->GetAttachmentHandle(false, 0), childPoint));
    auto state = hullhost::sim::WorldState(world);
    EXPECT_EQ(state["vessels"][0]["attachments"][0]["attached"], "B");
    EXPECT_EQ(state["vessels"][1]["attachments"][1]["attached"], "A");
    EXPECT_EQ(state["vessels"][1]["attachments"][1]["toParent"], true);
}

} // namespace
