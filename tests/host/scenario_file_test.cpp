// Reading and writing the host's scenario format.
#include <gtest/gtest.h>

#include "scenario/scenario_file.h"
#include "temp_dir.h"

using hullhost::ScenarioError;
using hullhost::ScenarioFile;

namespace {

const char *kFull = "BEGIN_DESC\r\n"
                    "  A test flight; with a semicolon\r\n"
                    "\r\n"
                    "END_DESC\r\n"
                    "; a comment between sections\r\n"
                    "BEGIN_ENVIRONMENT\r\n"
                    "  System Sol\r\n"
                    "  Date MJD 60123.25\r\n"
                    "END_ENVIRONMENT\r\n"
                    "\r\n"
                    "BEGIN_FOCUS\r\n"
                    "  Ship Beta\r\n"
                    "END_FOCUS\r\n"
                    "BEGIN_CAMERA\r\n"
                    "  TARGET Beta\r\n"
                    "END_CAMERA\r\n"
                    "BEGIN_SHIPS\r\n"
                    "Alpha:Fleet\\Korvan\r\n"
                    "  STATUS Landed Earth\r\n"
                    "  ; a comment inside a block\r\n"
                    "\r\n"
                    "  NAME value with trailing blank \r\n"
                    "END\r\n"
                    "Beta : Fleet\\HullKit\r\n"
                    "END\r\n"
                    "END_SHIPS\r\n";

// The message of the ScenarioError that parsing `text` throws.
std::string ParseError(const std::string &text) {
    try {
        ScenarioFile::Parse(text, "t.scn");
    } catch (const ScenarioError &e) {
        return e.what();
    }
    return "(no error)";
}

TEST(ScenarioFileTest, ReadsEverySection) {
    ScenarioFile scn = ScenarioFile::Parse(kFull);
    EXPECT_EQ(scn.description, (std::vector<std::string>{"  A test flight; with a semicolon", ""}));
    ASSERT_TRUE(scn.mjd.has_value());
    EXPECT_DOUBLE_EQ(*scn.mjd, 60123.25);
    EXPECT_EQ(scn.environment, std::vector<std::string>{"System Sol"});
    EXPECT_EQ(scn.focus, "Beta");
    ASSERT_EQ(scn.otherSections.size(), 1u);
    EXPECT_EQ(scn.otherSections[0].name, "CAMERA");
    EXPECT_EQ(scn.otherSections[0].lines, std::vector<std::string>{"TARGET Beta"});

    ASSERT_EQ(scn.vessels.size(), 2u);
    EXPECT_EQ(scn.vessels[0].name, "Alpha");
    EXPECT_EQ(scn.vessels[0].className, "Fleet\\Korvan");
    // Comments and blank lines are dropped; a trailing blank is the vessel's own.
    EXPECT_EQ(scn.vessels[0].lines,
              (std::vector<std::string>{"STATUS Landed Earth", "NAME value with trailing blank "}));
    EXPECT_EQ(scn.vessels[1].name, "Beta");
    EXPECT_EQ(scn.vessels[1].className, "Fleet\\HullKit");
    EXPECT_TRUE(scn.vessels[1].lines.empty());
}

TEST(ScenarioFileTest, WrittenTextReadsBackEqualWithEveryDigitOfTheDate) {
    ScenarioFile scn = ScenarioFile::Parse(kFull);
    scn.mjd = 60123.123456789012;
    std::string text = scn.Text();
    EXPECT_EQ(ScenarioFile::Parse(text), scn);
    // Writing is stable: a second round gives the same text.
    EXPECT_EQ(ScenarioFile::Parse(text).Text(), text);
}

TEST(ScenarioFileTest, WritesTheHostLayoutWithOnlyTheSectionsItHas) {
    ScenarioFile scn;
    scn.mjd = 51544.5;
    scn.focus = "A";
    scn.vessels.push_back({"A", "Fleet\\Korvan", {"STATUS Orbiting Earth", "RPOS 1 2 3"}});
    EXPECT_EQ(scn.Text(), "BEGIN_ENVIRONMENT\n"
                          "  Date MJD 51544.5\n"
                          "END_ENVIRONMENT\n\n"
                          "BEGIN_FOCUS\n"
                          "  Ship A\n"
                          "END_FOCUS\n\n"
                          "BEGIN_SHIPS\n"
                          "A:Fleet\\Korvan\n"
                          "  STATUS Orbiting Earth\n"
                          "  RPOS 1 2 3\n"
                          "END\n"
                          "END_SHIPS\n");
    // A scenario needs only its ships, and is written back with nothing more.
    EXPECT_EQ(ScenarioFile::Parse("BEGIN_SHIPS\nA:F\\C\nEND\nEND_SHIPS").Text(),
              "BEGIN_SHIPS\nA:F\\C\nEND\nEND_SHIPS\n");
}

TEST(ScenarioFileTest, MalformedScenariosNameTheLine) {
    const std::string ships = "BEGIN_SHIPS\nA:F\\C\nEND\nEND_SHIPS\n";
    const std::string none = "t.scn: no vessels (BEGIN_SHIPS ... END_SHIPS is missing or empty)";
    const std::pair<std::string, std::string> cases[] = {
        {"", none},
        {"BEGIN_SHIPS\nEND_SHIPS\n", none},
        {"BEGIN_SHIPS\nAlpha Fleet\\Korvan\nEND\nEND_SHIPS\n",
         "t.scn:2: ship line 'Alpha Fleet\\Korvan' has no ':' between the vessel's name and its class"},
        {"BEGIN_SHIPS\n:Fleet\\Korvan\nEND\nEND_SHIPS\n",
         "t.scn:2: ship line ':Fleet\\Korvan' needs 'name:Folder\\Class'"},
        {"BEGIN_SHIPS\nA:\nEND\nEND_SHIPS\n", "t.scn:2: ship line 'A:' needs 'name:Folder\\Class'"},
        {std::string("BEGIN_SHIPS\n\0:\nEND\nEND_SHIPS\n", 29),
         "t.scn:2: ship line '\\x00:' needs 'name:Folder\\Class'"},
        {"BEGIN_SHIPS\nA:F\\C\n  X 1\nEND_SHIPS\n", "t.scn:2: vessel 'A' has no END line"},
        {"BEGIN_SHIPS\nA:F\\C\n  X 1\n", "t.scn:2: vessel 'A' has no END line"},
        {"BEGIN_SHIPS\nA:F\\C\nEND\n", "t.scn:1: section has no END_SHIPS"},
        {"BEGIN_DESC\ntext\n", "t.scn:1: section has no END_DESC"},
        {"BEGIN_SHIPS\nA:F\\C\nEND\nA:F\\D\nEND\nEND_SHIPS\n", "t.scn:4: vessel 'A' is named twice"},
        {"stray\n" + ships, "t.scn:1: 'stray' is outside any section"},
        {"BEGIN_ENVIRONMENT\n Date MJD soon\nEND_ENVIRONMENT\n" + ships,
         "t.scn:2: bad date 'soon': Date MJD needs a number"},
        {"BEGIN_ENVIRONMENT\n Date MJD inf\nEND_ENVIRONMENT\n" + ships,
         "t.scn:2: bad date 'inf': Date MJD needs a number"},
        {"BEGIN_ENVIRONMENT\n Date MJD\nEND_ENVIRONMENT\n" + ships,
         "t.scn:2: bad date '': Date MJD needs a number"},
        {"BEGIN_FOCUS\n Ship Z\nEND_FOCUS\n" + ships, "t.scn:2: the focus vessel 'Z' is not among the ships"},
        {"BEGIN_FOCUS\n Target A\nEND_FOCUS\n" + ships,
         "t.scn:2: 'Target A' in BEGIN_FOCUS: expected 'Ship name'"},
    };
    for (const auto &[text, message] : cases)
        EXPECT_EQ(ParseError(text), message) << text;
    // Another form of the date is kept as it is.
    ScenarioFile scn =
        ScenarioFile::Parse("BEGIN_ENVIRONMENT\n Date JD 2451545.0\nEND_ENVIRONMENT\n" + ships);
    EXPECT_FALSE(scn.mjd.has_value());
    EXPECT_EQ(scn.environment, std::vector<std::string>{"Date JD 2451545.0"});
}

TEST(ScenarioFileTest, FilesAreNamedInErrors) {
    hosttest::TempDir dir;
    hosttest::WriteText(dir / "bad.scn", "BEGIN_SHIPS\nA\nEND\nEND_SHIPS\n");
    try {
        ScenarioFile::Read(dir / "bad.scn");
        FAIL() << "no error";
    } catch (const ScenarioError &e) {
        EXPECT_EQ(std::string(e.what()).find(dir / "bad.scn:2: "), 0u) << e.what();
    }
    EXPECT_THROW(ScenarioFile::Read(dir / "missing.scn"), ScenarioError);
    EXPECT_THROW(ScenarioFile::Read(dir.Path().string()), ScenarioError); // a folder
}

} // namespace
