#include "hullsim_fixture.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <sys/wait.h>

namespace hosttest {

namespace {

std::string Quote(const std::string &s) {
    std::string q = "'";
    for (char c : s)
        q += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return q + "'";
}

} // namespace

std::map<long, std::vector<double>> CsvRowsByTime(const std::string &path, double step) {
    std::istringstream csv(ReadText(path));
    std::map<long, std::vector<double>> rows;
    std::string line;
    std::getline(csv, line);
    while (std::getline(csv, line)) {
        std::vector<double> fields;
        std::istringstream cells(line);
        for (std::string cell; std::getline(cells, cell, ',');)
            fields.push_back(std::atof(cell.c_str()));
        rows[std::lround(fields.at(0) / step)] = fields;
    }
    return rows;
}

HullsimFixture::HullsimFixture() {
    WriteText(dir / "root/Config/Vessels/Test/Probe.cfg", "Module = Test\\Probe\n");
    std::filesystem::create_directories(dir / "root/Modules/Test");
    std::filesystem::copy_file(PROBE_MODULE, dir / "root/Modules/Test/Probe.dll");
    WriteText(dir / "root/Scenarios/probe.scn", "BEGIN_ENVIRONMENT\n  Date MJD 60000\nEND_ENVIRONMENT\n"
                                                "BEGIN_SHIPS\nP:Test\\Probe\n  PROBE_X 1\nEND\nEND_SHIPS\n");
}

Result HullsimFixture::Run(const std::vector<std::string> &args, const std::string &tag) const {
    std::string cmd = Quote(HULLSIM_EXE);
    for (const auto &a : args)
        cmd += " " + Quote(a);
    const std::string suffix = tag.empty() ? ".txt" : "-" + tag + ".txt";
    const std::string out = dir / ("out" + suffix), err = dir / ("err" + suffix);
    cmd += " >" + Quote(out) + " 2>" + Quote(err) + " </dev/null";
    Result r;
    int status = std::system(cmd.c_str());
    r.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    r.out = ReadText(out);
    r.err = ReadText(err);
    return r;
}

void HullsimFixture::ExpectError(const std::vector<std::string> &args, int code,
                                 const std::string &text) const {
    Result r = Run(args);
    EXPECT_EQ(r.code, code) << r.err;
    EXPECT_EQ(r.err.rfind("hullsim: ", 0), 0u) << r.err;
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
    EXPECT_NE(r.err.find(text), std::string::npos) << r.err;
}

} // namespace hosttest
