// The shipped lunar mission through hullsim, as the demo flies it: the
// program alone takes the stage from the release to the vent and onto a
// transfer that meets the Moon.
#include <gtest/gtest.h>

#include <cstdio>
#include <nlohmann/json.hpp>
#include <sstream>

#include "hullsim_fixture.h"

namespace {

using HullsimMissionTest = hosttest::HullsimFixture;

TEST_F(HullsimMissionTest, ProgramFliesFromReleaseToTheMoon) {
    const hosttest::Result r = Run({"run", "LunarTransfer", "--root", HULLKIT_BUILD_ROOT, "--for", "345600",
                                    "--dt", "0.02", "--warp", "500", "--seed", "1", "--summary", "--track",
                                    "Korvan-1", "--events", dir / "events.jsonl"});
    ASSERT_EQ(r.code, 0) << r.err;
    // The elements leave in the mission's order, with no key pressed.
    std::vector<std::string> order;
    std::istringstream events(hosttest::ReadText(dir / "events.jsonl"));
    for (std::string line; std::getline(events, line);) {
        const auto e = nlohmann::json::parse(line);
        EXPECT_NE(e["kind"], "key");
        if (e["kind"] == "detached")
            order.push_back(e["child"]);
    }
    EXPECT_EQ(order, (std::vector<std::string>{"Korvan-1", "Korvan-1-Fairing", "Sat-2", "Korvan-1-SOZL",
                                               "Korvan-1-SOZR", "Sat-1"}));
    // Two burns: the apogee to 1000 km, then a transfer that reaches the Moon's distance.
    double perigee, apogee, vented, closest;
    const std::size_t second = r.out.find("  2  T+");
    ASSERT_NE(second, std::string::npos) << r.out;
    ASSERT_EQ(
        std::sscanf(r.out.c_str() + r.out.find("orbit", second), "orbit %lf x %lf km", &perigee, &apogee), 2);
    EXPECT_GT(apogee, 380000.0);
    EXPECT_NE(r.out.find("orbit 200 x 100"), std::string::npos) << r.out;
    ASSERT_EQ(std::sscanf(r.out.c_str() + r.out.find("Vented"), "Vented %lf kg", &vented), 1);
    EXPECT_NEAR(vented, 8.4, 0.5);
    ASSERT_EQ(std::sscanf(r.out.c_str() + r.out.find("Closest approach"),
                          "Closest approach to the Moon: %lf km", &closest),
              1);
    EXPECT_LT(closest, 30000.0);
}

} // namespace
