// Exhausts, particle streams, beacons and spot lights: what the host keeps
// of them, and the pointers into the module that it reads from.
#include "sim/state_json.h"
#include "visual_fixture.h"

using hosttest::ShowVessel;

namespace {

class VisualParts : public hosttest::VisualWorld {
  protected:
    nlohmann::ordered_json State(ShowVessel &v) { return hullhost::sim::VesselState(world, Host(v)); }
};

TEST_F(VisualParts, StreamsReadTheirLevelWhereTheModuleKeepsIt) {
    ShowVessel &a = Make("A");
    THRUSTER_HANDLE th = a.CreateThruster({0, 0, -2}, {0, 0, 1}, 1000.0, a.CreatePropellantResource(10));
    PARTICLESTREAMSPEC params{};
    params.srcsize = 2.0;
    params.tex = oapiRegisterParticleTexture(const_cast<char *>("Fleet\\Smoke"));
    double vent = 0.25;
    PSTREAM_HANDLE loose = a.AddParticleStream(&params, {1, 0, 0}, {0, 1, 0}, &vent);
    PSTREAM_HANDLE plume = a.AddExhaustStream(th, {0, 0, -3}, &params);
    ASSERT_NE(loose, nullptr);
    ASSERT_NE(plume, nullptr);
    params.srcsize = 9.0; // the host took a copy

    vent = 0.75;
    a.SetThrusterLevel(th, 0.4);
    auto streams = State(a)["particleStreams"];
    ASSERT_EQ(streams.size(), 2u);
    EXPECT_EQ(streams[0]["level"], 0.75);
    EXPECT_EQ(streams[0]["thruster"], -1);
    EXPECT_EQ(streams[0]["texture"], "Fleet\\Smoke");
    EXPECT_EQ(streams[0]["params"]["srcsize"], 2.0);
    EXPECT_EQ(streams[1]["level"], 0.4);
    EXPECT_EQ(streams[1]["pos"], nlohmann::json::parse("[0, 0, -3]"));

    // A stream outlives its thruster, dark.
    a.DelThruster(th);
    EXPECT_EQ(State(a)["particleStreams"][1]["level"], 0.0);
    EXPECT_TRUE(a.DelExhaustStream(loose));
    EXPECT_FALSE(a.DelExhaustStream(loose));
    EXPECT_EQ(State(a)["particleStreams"].size(), 1u);
}

TEST_F(VisualParts, ExhaustsBelongToThrustersOfTheVessel) {
    ShowVessel &a = Make("A");
    ShowVessel &b = Make("B");
    THRUSTER_HANDLE th = a.CreateThruster({0, 0, -2}, {0, 0, 1}, 1000.0);
    SURFHANDLE flame = oapiRegisterExhaustTexture(const_cast<char *>("Fleet\\Flame"));
    EXPECT_EQ(a.AddExhaust(th, 4.0, 0.5, flame), 0u);
    EXPECT_EQ(a.AddExhaust(th, 4.0, 0.5, 1.2), 1u);
    EXPECT_EQ(a.AddExhaust(th, 1.0, 0.1, {1, 0, 0}, {0, 0, -1}), 2u);
    EXPECT_EQ(b.AddExhaust(th, 1.0, 0.1), static_cast<UINT>(-1)); // a's thruster
    EXPECT_EQ(b.GetExhaustCount(), 0u);

    a.SetThrusterLevel(th, 1.0);
    auto exhausts = State(a)["exhausts"];
    ASSERT_EQ(exhausts.size(), 3u);
    EXPECT_EQ(exhausts[0]["texture"], "Fleet\\Flame");
    EXPECT_EQ(exhausts[0]["level"], 1.0);
    EXPECT_EQ(exhausts[1]["lofs"], 1.2);
    EXPECT_EQ(exhausts[2]["dir"], nlohmann::json::parse("[0, 0, -1]"));
    EXPECT_FALSE(exhausts[1].contains("pos"));

    EXPECT_TRUE(a.DelExhaust(0));
    EXPECT_FALSE(a.DelExhaust(5));
    EXPECT_EQ(a.GetExhaustCount(), 2u);
}

TEST_F(VisualParts, BeaconsAreTheModulesRecords) {
    ShowVessel &a = Make("A");
    VECTOR3 pos{0, 2, 0}, col{1, 0, 0};
    BEACONLIGHTSPEC beacon{BEACONSHAPE_STAR, &pos, &col, 0.5, 0.4, 2.0, 0.1, 0.3, false};
    BEACONLIGHTSPEC other = beacon;
    EXPECT_TRUE(a.AddBeacon(&beacon));
    EXPECT_FALSE(a.AddBeacon(&beacon));
    EXPECT_TRUE(a.AddBeacon(&other));

    beacon.active = true;
    pos.y = 3;
    auto beacons = State(a)["beacons"];
    ASSERT_EQ(beacons.size(), 2u);
    EXPECT_EQ(beacons[0]["active"], true);
    EXPECT_EQ(beacons[0]["pos"], nlohmann::json::parse("[0, 3, 0]"));
    EXPECT_EQ(beacons[0]["shape"], BEACONSHAPE_STAR);
    EXPECT_EQ(beacons[1]["active"], false);

    EXPECT_TRUE(a.DelBeacon(&beacon));
    EXPECT_FALSE(a.DelBeacon(&beacon));
    a.ClearBeacons();
    EXPECT_TRUE(State(a)["beacons"].empty());
}

TEST_F(VisualParts, SpotLightsAreKeptAndSwitched) {
    ShowVessel &a = Make("A");
    COLOUR4 white{1, 1, 1, 0}, none{0, 0, 0, 0};
    LightEmitter *light =
        a.AddSpotLight({0, 1, 0}, {0, 0, 1}, 500.0, 0.01, 0, 6e-5, 0.6, 1.2, white, white, none);
    ASSERT_NE(light, nullptr);
    light->Activate(false);
    EXPECT_EQ(a.LightEmitterCount(), 1u);
    EXPECT_EQ(a.GetLightEmitter(0), light);
    EXPECT_EQ(a.GetLightEmitter(1), nullptr);
    auto lights = State(a)["lights"];
    EXPECT_EQ(lights[0]["active"], false);
    EXPECT_EQ(lights[0]["range"], 500.0);
    EXPECT_EQ(lights[0]["dir"], nlohmann::json::parse("[0, 0, 1]"));
}

} // namespace
