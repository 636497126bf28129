// The shipped fire drill and fairing reentry through hullsim: the stage burns,
// alarms and crashes into its wrecks; the fairing heats, glows and comes down.
#include <gtest/gtest.h>

#include <algorithm>

#include "hullsim_fixture.h"

using hosttest::ReadText;
using nlohmann::json;

namespace {

class HullsimEnvironmentTest : public hosttest::HullsimFixture {
  protected:
    // The events of a run of `scenario` drawn with `seed`.
    std::vector<json> Events(const std::string &scenario, const std::string &seed,
                             std::vector<std::string> extra) {
        extra.insert(extra.end(), {"--seed", seed, "--events", dir / "events.jsonl"});
        Fly(scenario, extra);
        return hosttest::ReadEvents(dir / "events.jsonl");
    }
    static std::vector<json> Of(const std::vector<json> &events, const char *kind) {
        std::vector<json> out;
        std::copy_if(events.begin(), events.end(), std::back_inserter(out),
                     [kind](const json &e) { return e["kind"] == kind; });
        return out;
    }
};

TEST_F(HullsimEnvironmentTest, FireDrillBurnsAlarmsAndCrashesIntoWrecks) {
    const std::vector<json> events = Events("KorvanFire", "3", {"--for", "60", "--dt", "0.1"});
    double fireAt = -1.0;
    for (const json &r : Of(events, "report"))
        if (r["text"] == "Engine fire detected!" && r["vessel"] == "Korvan-1" && r["reportKind"] == 5)
            fireAt = r["t"];
    ASSERT_GT(fireAt, 2.0); // the ullage's 2 s, then up to 5 s of burn
    EXPECT_LT(fireAt, 7.2);
    const std::vector<json> crashes = Of(events, "crash");
    ASSERT_EQ(crashes.size(), 1u);
    const json &crash = crashes[0];
    EXPECT_EQ(crash["vessel"], "Korvan-1");
    EXPECT_TRUE(crash["blast"].get<bool>());
    EXPECT_EQ(crash["wrecks"], json({"Korvan-1-Wreck-00", "Korvan-1-Wreck-01", "Korvan-1-Wreck-02"}));
    const double burned = crash["t"].get<double>() - fireAt;
    EXPECT_GE(burned, 15.0);
    EXPECT_LE(burned, 30.2);
    bool crashReport = false;
    for (const json &r : Of(events, "report"))
        crashReport = crashReport || (r["reportKind"] == 7 && r["text"] == "Korvan-1");
    EXPECT_TRUE(crashReport);
    // The same seed draws the same run.
    const std::string first = ReadText(dir / "events.jsonl");
    Events("KorvanFire", "3", {"--for", "60", "--dt", "0.1"});
    EXPECT_EQ(ReadText(dir / "events.jsonl"), first);
}

// Saved on the way down the fairing is hot and glowing; at the end it has
// come down, parked or in pieces, and cooled.
TEST_F(HullsimEnvironmentTest, FairingHeatsGlowsAndComesDown) {
    const auto temperature = [](const std::string &scenario) {
        const std::size_t at = scenario.find("TEMPERATURE ");
        return at == std::string::npos ? 20.0 : std::stod(scenario.substr(at + 12));
    };
    Events("FairingReentry", "5",
           {"--for", "250", "--dt", "0.2", "--accel", "5", "--save", dir / "hot.scn", "--state",
            dir / "hot.json"});
    const double hot = temperature(ReadText(dir / "hot.scn"));
    EXPECT_GT(hot, 500.0);
    // Above 30 km the glow shows through the group Shine, its only group.
    const json fairing = json::parse(ReadText(dir / "hot.json"))["vessels"][1];
    ASSERT_EQ(fairing["name"], "Fairing-1");
    EXPECT_NEAR(fairing["thrusterGroups"][0]["level"].get<double>(), 2.0 * (hot - 500.0) / 2500.0, 0.01);
    const std::vector<json> events = Events(
        "FairingReentry", "5", {"--for", "1000", "--dt", "0.2", "--accel", "5", "--save", dir / "end.scn"});
    const std::string end = ReadText(dir / "end.scn");
    const bool crashed = !Of(events, "crash").empty();
    if (!crashed) {
        EXPECT_NE(end.find("Fairing-1:Fleet\\Generic\n  STATUS Landed Earth"), std::string::npos) << end;
    }
    EXPECT_EQ(end.find("TEMPERATURE"), std::string::npos) << end;
}

} // namespace
