// The hullsim program as users run it: exit codes, the one error line, and a
// whole run with the probe module loaded from its file.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <future>
#include <map>
#include <nlohmann/json.hpp>

#include "hullsim_fixture.h"
#include "scenario/scenario_file.h"

using hosttest::ReadText;
using hosttest::Result;
using hosttest::WriteText;

namespace {

using HullsimProgramTest = hosttest::HullsimFixture;

TEST_F(HullsimProgramTest, HelpListsTheRunOptionsOnStandardOutput) {
    for (auto args : {std::vector<std::string>{"--help"}, {"-h"}, {"run", "--help"}}) {
        Result r = Run(args);
        EXPECT_EQ(r.code, 0);
        EXPECT_TRUE(r.err.empty()) << r.err;
        for (const char *word : {"hullsim run", "SCENARIO", "--root", "--for", "--dt", "--accel", "--warp",
                                 "--seed", "--save", "--save-at", "--state", "--keys", "--log", "--telemetry",
                                 "--track", "--telemetry-interval", "--plot"})
            EXPECT_NE(r.out.find(word), std::string::npos) << word << " in\n" << r.out;
    }
}

TEST_F(HullsimProgramTest, UsageErrorsEndWithCodeTwo) {
    ExpectError({}, 2, "no command given");
    ExpectError({"run", "probe", "--root", Root(), "--bogus"}, 2, "--bogus");
    ExpectError({"run", "probe", "--root", Root(), "--dt", "-0.5"}, 2, "--dt");
    WriteText(dir / "keys.txt", "0 M\n0.5 NOSUCHKEY\n");
    ExpectError({"run", "probe", "--root", Root(), "--keys", dir / "keys.txt"}, 2,
                "keys.txt:2: unknown key 'NOSUCHKEY'");
}

TEST_F(HullsimProgramTest, RunErrorsEndWithCodeOneAndWriteNothing) {
    const std::string save = dir / "out.scn", state = dir / "out.json";
    ExpectError({"run", "nowhere", "--root", Root()}, 1, "scenario 'nowhere' not found");
    ExpectError({"run", "probe", "--root", dir / "noroot"}, 1, "does not exist");
    ExpectError({"run", "probe", "--root", Root(), "--keys", dir / "nokeys.txt"}, 1, "nokeys.txt");
    ExpectError({"run", "probe", "--root", Root(), "--save", dir / "nofolder/out.scn"}, 1, "nofolder");

    WriteText(Root() + "/Scenarios/alien.scn",
              "BEGIN_SHIPS\nP:Test\\Probe\nEND\nQ:Alien\\Ship\nEND\nEND_SHIPS\n");
    ExpectError({"run", "alien", "--root", Root(), "--save", save, "--state", state}, 1, "Alien\\Ship");

    WriteText(Root() + "/Scenarios/broken.scn", "BEGIN_SHIPS\nP Test\\Probe\nEND\nEND_SHIPS\n");
    ExpectError({"run", "broken.scn", "--root", Root(), "--save", save}, 1, "broken.scn:2: ship line");
    // A tracked vessel is looked for once the scenario is loaded, before any frame.
    ExpectError({"run", "probe", "--root", Root(), "--for", "1", "--track", "P", "--track", "Nobody",
                 "--telemetry", dir / "t.csv", "--plot", dir / "chart.svg", "--save", save},
                1, "--track Nobody: the scenario has no vessel of that name");

    // A class whose module file is not a library.
    WriteText(Root() + "/Config/Vessels/Test/Fake.cfg", "Module = Test\\Fake\n");
    WriteText(Root() + "/Modules/Test/Fake.dll", "not a library");
    WriteText(Root() + "/Scenarios/fake.scn", "BEGIN_SHIPS\nF:Test\\Fake\nEND\nEND_SHIPS\n");
    ExpectError({"run", "fake", "--root", Root(), "--state", state}, 1, "Fake.dll");

    EXPECT_FALSE(std::filesystem::exists(save));
    EXPECT_FALSE(std::filesystem::exists(state));
    EXPECT_EQ(hosttest::FolderEntries(dir.Path().string()),
              (std::vector<std::string>{"err.txt", "out.txt", "root"}));
}

TEST_F(HullsimProgramTest, RunLoadsTheModulePlaysKeysAndWritesResults) {
    // Ctrl+J is held for three frames from 0.1 s; M is pressed once at 0.04 s.
    WriteText(dir / "keys.txt", "; test keys\n0.1 Ctrl+J 0.06\n0.04 M\n");
    const std::string save = dir / "out.scn", state = dir / "out.json", log = dir / "host.log";
    Result r = Run({"run", "probe", "--root", Root(), "--for", "0.2", "--seed", "7", "--keys",
                    dir / "keys.txt", "--save", save, "--state", state, "--log", log});
    ASSERT_EQ(r.code, 0) << r.err;
    EXPECT_TRUE(r.err.empty()) << r.err; // no progress line when stderr is no terminal

    auto saved = hullhost::ScenarioFile::Read(save);
    ASSERT_EQ(saved.vessels.size(), 1u);
    ASSERT_TRUE(saved.mjd.has_value());
    EXPECT_DOUBLE_EQ(*saved.mjd, 60000.0 + 0.2 / 86400.0);
    const auto &lines = saved.vessels[0].lines;
    auto has = [&lines](const std::string &line) {
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    };
    // A frame of no length, in which a vessel takes its first step, then ten.
    EXPECT_TRUE(has("PROBE_FRAMES 11")) << saved.Text();
    // M (50) down and up; J (36) down and up, with Ctrl held at its down event.
    EXPECT_TRUE(has("PROBE_KEYS +50 -50 +36^ -36")) << saved.Text();
    EXPECT_TRUE(has("PROBE_HELD M=1 J=3 CTRL=3")) << saved.Text();

    auto json = nlohmann::json::parse(ReadText(state));
    EXPECT_NEAR(json["simt"].get<double>(), 0.2, 1e-9);
    EXPECT_EQ(json["focus"], "P");
    EXPECT_EQ(json["vessels"][0]["name"], "P");
    EXPECT_EQ(json["annotations"][0], "probe P ready");

    EXPECT_NE(ReadText(log).find("probe P ready"), std::string::npos);
    EXPECT_EQ(hosttest::FolderEntries(dir.Path().string()),
              (std::vector<std::string>{"err.txt", "host.log", "keys.txt", "out.json", "out.scn", "out.txt",
                                        "root"}));
}

TEST_F(HullsimProgramTest, SavedScenarioRunsAgainAndRunsEndAtTheirTime) {
    // Without --for the scenario is loaded and saved with no frame.
    const std::string first = dir / "first.scn", second = dir / "second.scn";
    ASSERT_EQ(Run({"run", Root() + "/Scenarios/probe.scn", "--root", Root(), "--save", first}).code, 0);
    auto lines = hullhost::ScenarioFile::Read(first).vessels.at(0).lines;
    EXPECT_NE(std::find(lines.begin(), lines.end(), "PROBE_FRAMES 0"), lines.end());
    // 0.13 s is a frame of no length, six frames of 0.02 s and a last one cut
    // to 0.01 s.
    Result r = Run({"run", first, "--root", Root(), "--for", "0.13", "--dt", "0.02", "--save", second});
    ASSERT_EQ(r.code, 0) << r.err;
    auto saved = hullhost::ScenarioFile::Read(second);
    ASSERT_TRUE(saved.mjd.has_value());
    EXPECT_NEAR((*saved.mjd - 60000.0) * 86400.0, 0.13, 1e-6);
    lines = saved.vessels.at(0).lines;
    EXPECT_NE(std::find(lines.begin(), lines.end(), "PROBE_FRAMES 8"), lines.end()) << saved.Text();
}

// Outputs named by a pipe, a device or a link are written through them; only
// a regular file is replaced, and nothing the user didn't name is touched.
TEST_F(HullsimProgramTest, OutputsGoIntoPipesDevicesAndLinksWithoutReplacingThem) {
    const std::vector<std::string> kinds = {"--save",      "--state", "--hud",   "--log",
                                            "--telemetry", "--plot",  "--events"};
    std::map<std::string, std::future<std::string>> readers;
    std::vector<std::string> args = {"run", "probe", "--root", Root(), "--for", "0.1"};
    for (const std::string &kind : kinds) {
        const std::string pipe = dir / ("pipe" + kind);
        ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
        readers[kind] = std::async(std::launch::async, [pipe] { return ReadText(pipe); });
        args.insert(args.end(), {kind, pipe});
    }
    Result r = Run(args);
    EXPECT_EQ(r.code, 0) << r.err;
    for (auto &[kind, reader] : readers) {
        const std::string pipe = dir / ("pipe" + kind);
        // A reader still waiting for a writer is let go.
        if (int fd = ::open(pipe.c_str(), O_WRONLY | O_NONBLOCK); fd >= 0)
            ::close(fd);
        EXPECT_FALSE(reader.get().empty()) << kind;
        struct stat st {};
        ASSERT_EQ(::lstat(pipe.c_str(), &st), 0);
        EXPECT_TRUE(S_ISFIFO(st.st_mode)) << kind;
    }

    struct stat before {
    }, after{};
    ASSERT_EQ(::stat("/dev/null", &before), 0);
    const std::string target = dir / "target.scn", link = dir / "link.scn";
    WriteText(target, "old");
    std::filesystem::create_symlink(target, link);
    r = Run({"run", "probe", "--root", Root(), "--save", "/dev/null", "--state", "/dev/null", "--log",
             "/dev/null", "--hud", link});
    EXPECT_EQ(r.code, 0) << r.err;
    ASSERT_EQ(::stat("/dev/null", &after), 0);
    EXPECT_TRUE(S_ISCHR(after.st_mode));
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_NE(ReadText(target).find("<svg"), std::string::npos);
}

// Whatever a scenario holds, the error line quotes it readably: no control
// characters reach the terminal, and a long line is cut.
TEST_F(HullsimProgramTest, ErrorLinesQuoteBinaryInputEscapedAndCut) {
    std::string binary = "\x1b[2J\x1b[H\x1b]0;owned\x07";
    for (int i = 0; i < 512; ++i)
        binary += static_cast<char>((i * 37 + 11) % 256);
    WriteText(Root() + "/Scenarios/binary.scn", binary + "\n");
    ExpectError({"run", "binary", "--root", Root()}, 1, "binary.scn:1: '\\x1b[2J");
    const std::string line = Run({"run", "binary", "--root", Root()}).err;
    EXPECT_LT(line.size(), 400u) << line;
    for (size_t i = 0; i + 1 < line.size(); ++i) {
        const auto c = static_cast<unsigned char>(line[i]);
        EXPECT_TRUE(c >= 0x20 && c != 0x7f) << "byte " << int(c) << " at " << i;
    }
}

} // namespace
