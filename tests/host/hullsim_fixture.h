// A fixture that runs the hullsim program as users do, in a fresh folder with
// a host root that holds the probe class and its module.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "temp_dir.h"

namespace hosttest {

struct Result {
    int code = -1;
    std::string out, err;
};

// The rows of a telemetry CSV below its header, each field read as a number
// (a vessel's name reads as 0), keyed by the sample time in units of `step`
// seconds.
std::map<long, std::vector<double>> CsvRowsByTime(const std::string &path, double step);

class HullsimFixture : public ::testing::Test {
  protected:
    // Root()/Scenarios/probe.scn holds one probe, P.
    HullsimFixture();

    // Runs hullsim with `args`, its standard output and error caught in
    // out.txt and err.txt of the folder; with a `tag`, in out-TAG.txt and
    // err-TAG.txt, so that runs with different tags may go at once.
    Result Run(const std::vector<std::string> &args, const std::string &tag = "") const;

    // Runs and expects a failure with `code` and one error line holding `text`.
    void ExpectError(const std::vector<std::string> &args, int code, const std::string &text) const;

    std::string Root() const { return dir / "root"; }

    TempDir dir;
};

} // namespace hosttest
