#include "hullsim_fixture.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <stdexcept>
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

std::vector<std::vector<std::string>> ReadCsv(const std::string &path, std::string &header) {
    std::istringstream in(ReadText(path));
    std::getline(in, header);
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(in, line);) {
        std::istringstream cells(line);
        rows.emplace_back();
        for (std::string cell; std::getline(cells, cell, ',');)
            rows.back().push_back(cell);
    }
    return rows;
}

std::map<long, std::vector<double>> CsvRowsByTime(const std::string &path, double step) {
    std::string header;
    std::map<long, std::vector<double>> rows;
    for (const auto &cells : ReadCsv(path, header)) {
        std::vector<double> fields;
        for (const std::string &cell : cells)
            fields.push_back(std::atof(cell.c_str()));
        rows[std::lround(fields.at(0) / step)] = fields;
    }
    return rows;
}

std::vector<nlohmann::json> ReadEvents(const std::string &path, const std::string &kind) {
    std::vector<nlohmann::json> events;
    std::istringstream in(ReadText(path));
    for (std::string line; std::getline(in, line);)
        if (auto e = nlohmann::json::parse(line); kind.empty() || e["kind"] == kind)
            events.push_back(std::move(e));
    return events;
}

const nlohmann::json &VesselIn(const nlohmann::json &state, const std::string &name) {
    for (const auto &v : state["vessels"])
        if (v["name"] == name)
            return v;
    throw std::runtime_error("no vessel " + name);
}

VECTOR3 Vec(const nlohmann::json &xyz) {
    return {xyz[0].get<double>(), xyz[1].get<double>(), xyz[2].get<double>()};
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

void HullsimFixture::Fly(const std::string &scenario, const std::vector<std::string> &extra) const {
    std::vector<std::string> args = {"run", scenario, "--root", HULLKIT_BUILD_ROOT};
    args.insert(args.end(), extra.begin(), extra.end());
    const Result r = Run(args);
    EXPECT_EQ(r.code, 0) << r.err;
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
