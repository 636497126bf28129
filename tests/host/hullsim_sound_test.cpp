// Sound through hullsim as a user hears it: the vessels' link to the root's
// sound library (or to an older one that lacks exports), its log, the range
// guards, the common table of a fleet and the distance rule.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>

#include "hullsim_fixture.h"

using hosttest::ReadText;
using hosttest::WriteText;
using nlohmann::json;
namespace fs = std::filesystem;

namespace {

constexpr const char *kLogHeader = "Orbiter Sound Log Started\n*****************************\n\n";
constexpr const char *kSeparator = "--------------------------------------\n";

class HullsimSoundTest : public hosttest::HullsimFixture {
  protected:
    // A root of links to the build's root, with `library` (none: empty) as
    // its sound library; files written into it afterwards are its own.
    void MakeRoot(const std::string &library) {
        const fs::path build = HULLKIT_BUILD_ROOT;
        for (const auto &entry : fs::recursive_directory_iterator(build)) {
            const fs::path rel = fs::relative(entry.path(), build);
            const bool plugin = *rel.begin() == "Modules" && rel.string().find("Plugin") != std::string::npos;
            if (rel.filename() == "OrbiterSound_Log.txt" || plugin)
                continue;
            if (entry.is_directory())
                fs::create_directories(root / rel);
            else
                fs::create_symlink(entry.path(), root / rel);
        }
        if (!library.empty()) {
            fs::create_directories(root / "Modules/Plugin");
            fs::create_symlink(library, root / "Modules/Plugin/OrbiterSound.dll");
        }
    }
    // Runs a scenario of the root; the events of kind "sound".
    std::vector<json> Sounds(const std::string &scenario, const std::string &seconds, bool sound) {
        std::vector<std::string> args = {"run",    scenario, "--root",   root.string(),
                                         "--for",  seconds,  "--dt",     "0.1",
                                         "--seed", "3",      "--events", dir / "events.jsonl"};
        if (sound)
            args.push_back("--sound");
        const hosttest::Result r = Run(args);
        EXPECT_EQ(r.code, 0) << r.err;
        std::vector<json> out = hosttest::ReadEvents(dir / "events.jsonl", "sound");
        for (const json &e : hosttest::ReadEvents(dir / "events.jsonl", "detached"))
            out.push_back(e);
        return out;
    }
    static std::vector<json> Of(const std::vector<json> &events, const char *op) {
        std::vector<json> out;
        for (const json &e : events)
            if (e.value("op", "") == op)
                out.push_back(e);
        return out;
    }
    // The messages of the log: the text between separators.
    std::vector<std::string> LogMessages() const {
        const std::string text = ReadText((root / "OrbiterSound_Log.txt").string());
        std::vector<std::string> out;
        if (text.rfind(kLogHeader, 0) != 0)
            return out;
        for (std::size_t at = text.find(kSeparator); at != std::string::npos;) {
            const std::size_t begin = at + std::string(kSeparator).size();
            at = text.find(kSeparator, begin);
            out.push_back(text.substr(begin, (at == std::string::npos ? text.size() : at) - begin));
        }
        return out;
    }
    // A scenario of `count` landed vessels of the class Generic\Chirp, whose
    // table holds a filler and 61 sounds, without a controller.
    void WriteChirps(int count) {
        std::string sounds = "Sounds = {\n  Filler NONE DEFAULT\n";
        for (int i = 1; i <= 61; ++i)
            sounds += "  S" + std::to_string(i) +
                      " Sound\\_CustomVesselsSounds\\Fleet\\Korvan\\Clang.wav DEFAULT\n";
        WriteText((root / "Config/Vessels/Fleet/Generic/Chirp.cfg").string(), sounds + "}\n");
        std::string scn = "BEGIN_ENVIRONMENT\n  Date MJD 61000.5\nEND_ENVIRONMENT\nBEGIN_SHIPS\n";
        for (int i = 0; i < count; ++i)
            scn += "C" + std::to_string(i) +
                   ":Fleet\\Generic\n  STATUS Landed Earth\n  POS -80.6 28.5\n  SUBTYPE Chirp\nEND\n";
        WriteText((root / "Scenarios/Chirps.scn").string(), scn + "END_SHIPS\n");
    }

    fs::path root = fs::path(dir.Path()) / "sroot";
};

// Without the library, or with one too old, the vessels run silently and the
// log tells why; a library without the 3D exports still plays.
TEST_F(HullsimSoundTest, LinkLogsWhyItFailsAndTheVesselStaysSilent) {
    const std::string notThere =
        "ERR01= Vessel->ConnectToOrbiterSoundDLL: Unable to connect to OrbiterSound - "
        "not installed or activated\n";
    const std::string old = "ERR02= ConnectToOrbiterSoundDLL (4.0 SDK): Unable to find routines. Missing or "
                            "outdated OrbiterSound (<3.0?)\n";
    const std::string no3d =
        "ERR04= Error finding OrbiterSound 4.0 (3d) function. Reverting to OrbiterSound 3.5 function (2d).\n";
    const std::string noId = "ERR03= unable to connect to GetMyID, Older OrbiterSound.dll ?\n";
    const struct {
        const char *library;
        std::string message; // every message of the log; empty: no log
        bool heard;
    } cases[] = {{"", notThere, false},
                 {SOUND_LACKS_REQUIRED, old, false},
                 {SOUND_LACKS_ID, noId, false},
                 {SOUND_LACKS_3D, no3d, true},
                 {SOUND_LIBRARY, "", true}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.library);
        fs::remove_all(root);
        MakeRoot(c.library);
        const std::vector<json> events = Sounds("KorvanRelease", "11", *c.library != '\0');
        EXPECT_EQ(!Of(events, "play").empty(), c.heard);
        EXPECT_EQ(!Of(events, "load").empty(), c.heard);
        const std::vector<std::string> messages = LogMessages();
        EXPECT_EQ(fs::exists(root / "OrbiterSound_Log.txt"), !c.message.empty());
        // One message for each vessel of the scenario as it links.
        if (!c.message.empty()) {
            EXPECT_EQ(messages, std::vector<std::string>(5, c.message));
        }
    }
}

// Link ids run from 0 to 59 and wave numbers from 1 to 60: the 61st and 62nd
// vessels and each table's filler and 61st sound are never loaded. Without
// the library the log stops at 101 messages.
TEST_F(HullsimSoundTest, GuardsKeepIdsAndWavesInRangeAndTheLogIsLimited) {
    MakeRoot(SOUND_LIBRARY);
    WriteChirps(62);
    std::map<std::string, std::set<int>> loaded;
    for (const json &e : Of(Sounds("Chirps", "0", true), "load"))
        loaded[e["vessel"]].insert(e["wave"].get<int>());
    EXPECT_EQ(loaded.size(), 60u);
    std::set<int> waves;
    for (int w = 1; w <= 60; ++w)
        waves.insert(w);
    EXPECT_EQ(loaded["C0"], waves);
    EXPECT_EQ(loaded["C59"], waves);
    EXPECT_FALSE(loaded.contains("C60"));

    WriteChirps(110);
    Sounds("Chirps", "0", false);
    EXPECT_EQ(LogMessages().size(), 101u);
}

// The stage's release heard from a vessel at a distance: full volume falls to
// 0 at 3000 m, is passed on negative up to 3300 m and beyond that nothing
// plays. The watcher loads the fleet's common table from the controller,
// though its own configuration has no sounds.
TEST_F(HullsimSoundTest, PyroOfAReleaseFollowsTheDistanceRuleThroughTheCommonTable) {
    MakeRoot(SOUND_LIBRARY);
    const std::string shipped = ReadText((root / "Scenarios/KorvanRelease.scn").string());
    const struct {
        double distance;
        int volume; // of the Pyro play; 999: none
    } cases[] = {{1500.0, 127}, {3000.0, 0}, {3150.0, -12}, {3400.0, 999}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.distance);
        std::string scn = shipped;
        scn.replace(scn.find("Ship Carrier-1"), 14, "Ship Watch");
        std::ostringstream watch;
        watch.precision(10);
        watch << "Watch:Fleet\\Generic\n  STATUS Orbiting Earth\n  RPOS " << 6571010.0 + c.distance
              << " 0.00 0.00\n  RVEL 0.00 0.00 7788.48\n  SUBTYPE Payload\nEND\nEND_SHIPS";
        scn.replace(scn.find("END_SHIPS"), 9, watch.str());
        WriteText((root / "Scenarios/Watch.scn").string(), scn);
        const std::vector<json> events = Sounds("Watch", "11", true);

        std::map<int, std::string> files;
        for (const json &e : Of(events, "load"))
            if (e["vessel"] == "Watch" && e["file"].is_string())
                files[e["wave"]] = e["file"];
        EXPECT_EQ(files.size(), 9u);
        EXPECT_EQ(files[5], "Sound\\_CustomVesselsSounds\\Fleet\\Korvan\\Pyro.wav");

        double released = -1.0;
        for (const json &e : events)
            if (e["kind"] == "detached" && e["child"] == "Korvan-1")
                released = e["t"];
        const std::vector<json> plays = Of(events, "play");
        if (c.volume == 999) {
            EXPECT_TRUE(plays.empty());
            continue;
        }
        ASSERT_EQ(plays.size(), 1u);
        EXPECT_EQ(plays[0]["vessel"], "Watch");
        EXPECT_EQ(plays[0]["wave"], 5);
        EXPECT_EQ(plays[0]["loop"], 0);
        EXPECT_EQ(plays[0]["volume"], c.volume);
        // Armed for 0.01 s after the release, it plays in the next frame.
        EXPECT_GT(plays[0]["t"].get<double>(), released);
        EXPECT_NEAR(plays[0]["t"].get<double>(), released + 0.1, 1e-6);
    }
}

// The soundtrack of a release: silence until the pyro plays at the stage's
// release, 10.2 s in, then its 0.3 s clip.
TEST_F(HullsimSoundTest, SoundtrackMixesWhatWasPlayedAtItsTime) {
    MakeRoot(SOUND_LIBRARY);
    const hosttest::Result r = Run({"run", "KorvanRelease", "--root", root.string(), "--for", "12", "--dt",
                                    "0.1", "--soundtrack", dir / "track.wav"});
    ASSERT_EQ(r.code, 0) << r.err;
    const std::string wav = ReadText(dir / "track.wav");
    ASSERT_EQ(wav.substr(0, 4), "RIFF");
    ASSERT_EQ(wav.size(), 44u + 2 * 8000 * 12);
    auto loudest = [&wav](double from, double to) {
        int most = 0;
        for (auto i = static_cast<std::size_t>(from * 8000); i < static_cast<std::size_t>(to * 8000); ++i) {
            const auto lo = static_cast<unsigned char>(wav[44 + 2 * i]),
                       hi = static_cast<unsigned char>(wav[45 + 2 * i]);
            most = std::max(most, std::abs(static_cast<int16_t>(lo | hi << 8)));
        }
        return most;
    };
    EXPECT_EQ(loudest(0.0, 10.1), 0);
    EXPECT_GT(loudest(10.2, 10.5), 10000);
    EXPECT_EQ(loudest(10.6, 12.0), 0);
}

} // namespace
