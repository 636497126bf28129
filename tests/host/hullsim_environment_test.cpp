// The shipped fire drill and fairing reentry through hullsim: the stage burns,
// alarms and crashes into its wrecks; the fairing heats, glows and comes down.
#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <numbers>
#include <sstream>

#include "hullsim_fixture.h"

using hosttest::ReadText;
using nlohmann::json;

namespace {

class HullsimEnvironmentTest : public hosttest::HullsimFixture {
  protected:
    std::vector<json> Fly(const std::string &scenario, const std::string &seed,
                          std::vector<std::string> extra) {
        std::vector<std::string> args = {"run",    scenario, "--root",   HULLKIT_BUILD_ROOT,
                                         "--seed", seed,     "--events", dir / "events.jsonl"};
        args.insert(args.end(), extra.begin(), extra.end());
        const hosttest::Result r = Run(args);
        EXPECT_EQ(r.code, 0) << r.err;
        std::vector<json> events;
        std::istringstream lines(ReadText(dir / "events.jsonl"));
        for (std::string line; std::getline(lines, line);)
            events.push_back(json::parse(line));
        return events;
    }
    static std::vector<json> Of(const std::vector<json> &events, const char *kind) {
        std::vector<json> out;
        for (const json &e : events)
            if (e["kind"] == kind)
                out.push_back(e);
        return out;
    }
};

TEST_F(HullsimEnvironmentTest, FireDrillBurnsAlarmsAndCrashesIntoWrecks) {
    const std::vector<json> events = Fly("KorvanFire", "3", {"--for", "60", "--dt", "0.1"});
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
    Fly("KorvanFire", "3", {"--for", "60", "--dt", "0.1"});
    EXPECT_EQ(ReadText(dir / "events.jsonl"), first);
}

// Saved on the way down the fairing is hot and glowing; at the end it has
// come down, parked or in pieces, and cooled.
TEST_F(HullsimEnvironmentTest, FairingHeatsGlowsAndComesDown) {
    const auto temperature = [](const std::string &scenario) {
        const std::size_t at = scenario.find("TEMPERATURE ");
        return at == std::string::npos ? 20.0 : std::stod(scenario.substr(at + 12));
    };
    Fly("FairingReentry", "5",
        {"--for", "250", "--dt", "0.2", "--accel", "5", "--save", dir / "hot.scn", "--state",
         dir / "hot.json"});
    const double hot = temperature(ReadText(dir / "hot.scn"));
    EXPECT_GT(hot, 500.0);
    // Above 30 km the glow shows through the group Shine, its only group.
    const json fairing = json::parse(ReadText(dir / "hot.json"))["vessels"][1];
    ASSERT_EQ(fairing["name"], "Fairing-1");
    EXPECT_NEAR(fairing["thrusterGroups"][0]["level"].get<double>(), 2.0 * (hot - 500.0) / 2500.0, 0.01);
    const std::vector<json> events = Fly(
        "FairingReentry", "5", {"--for", "1000", "--dt", "0.2", "--accel", "5", "--save", dir / "end.scn"});
    const std::string end = ReadText(dir / "end.scn");
    const bool crashed = !Of(events, "crash").empty();
    if (!crashed) {
        EXPECT_NE(end.find("Fairing-1:Fleet\\Generic\n  STATUS Landed Earth"), std::string::npos) << end;
    }
    EXPECT_EQ(end.find("TEMPERATURE"), std::string::npos) << end;
}

// The POS of each landed vessel of a scenario text: name, longitude, latitude.
std::map<std::string, std::pair<double, double>> LandedPlaces(const std::string &text) {
    std::map<std::string, std::pair<double, double>> places;
    std::istringstream lines(text);
    std::string name;
    bool landed = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.find(':') != std::string::npos && line[0] != ' ') {
            name = line.substr(0, line.find(':'));
            landed = false;
        }
        if (line.find("STATUS Landed") != std::string::npos)
            landed = true;
        if (line.rfind("  POS ", 0) == 0 && landed) {
            std::istringstream pos(line.substr(6));
            pos >> places[name].first >> places[name].second;
        }
    }
    return places;
}

// Every landed vessel of the shipped scenarios keeps its place to within a
// metre over a day, at 1x and at 1000x.
TEST_F(HullsimEnvironmentTest, LandedVesselsStayPutForADay) {
    const double metre = 180.0 / (std::numbers::pi * 6371010.0); // [deg]
    for (const char *scenario : {"KorvanLanded", "KorvanFlight", "FairingReentry"}) {
        const auto before =
            LandedPlaces(ReadText(std::string(HULLKIT_BUILD_ROOT) + "/Scenarios/" + scenario + ".scn"));
        ASSERT_FALSE(before.empty()) << scenario;
        for (const char *accel : {"1", "1000"}) {
            Fly(scenario, "1", {"--for", "86400", "--dt", "1", "--accel", accel, "--save", dir / "day.scn"});
            const auto after = LandedPlaces(ReadText(dir / "day.scn"));
            for (const auto &[name, place] : before) {
                ASSERT_TRUE(after.contains(name)) << scenario << " " << name;
                EXPECT_NEAR(after.at(name).first, place.first, metre)
                    << scenario << " " << name << " " << accel;
                EXPECT_NEAR(after.at(name).second, place.second, metre)
                    << scenario << " " << name << " " << accel;
            }
        }
    }
}

} // namespace
