// A fixture that runs the hullsim program as users do, in a fresh folder with
// a host root that holds the probe class and its module.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "OrbiterAPI.h"
#include "temp_dir.h"

namespace hosttest {

struct Result {
    int code = -1;
    std::string out, err;
};

// The header of a telemetry CSV and the fields of each row below it.
std::vector<std::vector<std::string>> ReadCsv(const std::string &path, std::string &header);
// The rows of a telemetry CSV, each field read as a number (a vessel's name
// reads as 0), keyed by the sample time in units of `step` seconds.
std::map<long, std::vector<double>> CsvRowsByTime(const std::string &path, double step);

// The events of a log that --events wrote, each line parsed; with a `kind`,
// only the events of that kind.
std::vector<nlohmann::json> ReadEvents(const std::string &path, const std::string &kind = "");
// The vessel of that name in a state that --state wrote.
const nlohmann::json &VesselIn(const nlohmann::json &state, const std::string &name);
// A vector written as [x, y, z].
VECTOR3 Vec(const nlohmann::json &xyz);

class HullsimFixture : public ::testing::Test {
  protected:
    // Root()/Scenarios/probe.scn holds one probe, P.
    HullsimFixture();

    // Runs hullsim with `args`, its standard output and error caught in
    // out.txt and err.txt of the folder; with a `tag`, in out-TAG.txt and
    // err-TAG.txt, so that runs with different tags may go at once.
    Result Run(const std::vector<std::string> &args, const std::string &tag = "") const;

    // Runs `scenario` on the build's root with `extra` options, expecting
    // success.
    void Fly(const std::string &scenario, const std::vector<std::string> &extra) const;

    // Runs and expects a failure with `code` and one error line holding `text`.
    void ExpectError(const std::vector<std::string> &args, int code, const std::string &text) const;

    std::string Root() const { return dir / "root"; }

    TempDir dir;
};

} // namespace hosttest
