// A piece of the shipped fleet standing on the ground, run through hullsim
// for a simulated day at several time accelerations and frame lengths: it
// stays where it stands, landed, turning with the Earth.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "hullsim_fixture.h"

using hosttest::ReadText;
using hosttest::WriteText;

namespace {

using HullsimLandedTest = hosttest::HullsimFixture;

TEST_F(HullsimLandedTest, LandedPieceStaysPutForADayAtAnyAcceleration) {
    WriteText(dir / "landed.scn", "BEGIN_ENVIRONMENT\n  Date MJD 61000.5\nEND_ENVIRONMENT\n"
                                  "BEGIN_SHIPS\nG-1:Fleet\\Generic\n  STATUS Landed Earth\n"
                                  "  POS -80.6 28.5\n  HEADING 90\nEND\nEND_SHIPS\n");
    auto surface = [&](const std::vector<std::string> &extra) {
        std::vector<std::string> args = {"run",     dir / "landed.scn", "--root", HULLKIT_BUILD_ROOT,
                                         "--state", dir / "state.json"};
        args.insert(args.end(), extra.begin(), extra.end());
        const hosttest::Result r = Run(args);
        EXPECT_EQ(r.code, 0) << r.err;
        const auto json = nlohmann::json::parse(ReadText(dir / "state.json"));
        EXPECT_EQ(json["vessels"][0]["status"], "landed");
        return json["vessels"][0]["surface"];
    };
    const auto start = surface({});
    EXPECT_NEAR(start["longitude"].get<double>(), -80.6, 1e-9);
    EXPECT_NEAR(start["heading"].get<double>(), 90.0, 1e-9);

    constexpr double kMetresPerDegree = 6371010.0 * 0.017453292519943295;
    for (auto [accel, dt] : {std::pair{"1", "1"}, {"10", "0.5"}, {"100", "0.1"}, {"1000", "0.05"}}) {
        const auto end = surface({"--for", "86400", "--accel", accel, "--dt", dt});
        EXPECT_NEAR(end["latitude"].get<double>(), 28.5, 0.01 / kMetresPerDegree) << accel;
        EXPECT_NEAR(end["longitude"].get<double>(), -80.6, 0.01 / kMetresPerDegree / 0.88) << accel;
        EXPECT_NEAR(end["altitude"].get<double>(), start["altitude"].get<double>(), 0.01) << accel;
        EXPECT_NEAR(end["heading"].get<double>(), 90.0, 0.001) << accel;
    }
}

} // namespace
