// Record lines compiled against a header read from the configuration: every
// field letter, lines too short or too long, and the words with a meaning.
#include "numbers.h"
#include "resource_fixture.h"

using ::testing::ElementsAre;

namespace {

// Layout: a name, a text, an integer, a number, a vector, an unknown letter,
// another number, then a particle stream.
constexpr const char *kLayout =
    "SEPARATION_REC = Sep Seps SName SText IFlag DValue VVec XSkip DAfter PSpec\n";

} // namespace

TEST_F(ResourceTest, FieldsAreCompiledByTheirLettersWithDefaultsForWhatALineDoesntReach) {
    Common(kLayout);
    Class(
        "Seps = {\n"
        "  full   word true 2.5 (1,2,3) zz 7.5  1 3.5 9 20 0.1 2 4 1 DIFFUSE LVL_SQRT 0 1 ATM_PLIN 0.2 0.9\n"
        "  short  NONE\n"
        "  words  NEW STAR 1e3\n"
        "  digits x 12abc abc\n"
        "  quoted \"a b\" 3\n"
        "  tail   x 1 2 0 0 0 x 3  0 1 2\n"
        "  odd    x 1 2 0 0 0 x 3  0 1 2 3 4 5 6 7 EMISSIVE LVL_PSQRT 1 2 ATM_PLOG 3 4 surplus more\n"
        "}\n");
    HkResources<SEPARATION_REC> &t = Load().SeparationTable;

    EXPECT_EQ(t.GetString("full", "Text"), "word");
    EXPECT_EQ(t.GetInt("full", "Flag"), 1);
    // The unknown letter takes one token and repeats the vector's pool index.
    EXPECT_THAT((Numbers{t.GetDouble("full", "Value"), t.GetVector("full", "Vec").z,
                         t.GetVector("full", "Skip").y, t.GetDouble("full", "After")}),
                Are({2.5, 3, 2, 7.5}));
    PARTICLESTREAMSPEC s = t.GetParticleSpec("full", "Spec");
    EXPECT_EQ(s.flags, 1u);
    EXPECT_THAT((Numbers{s.srcsize, s.atmslowdown, s.amax}), Are({3.5, 1, 0.9}));
    EXPECT_EQ(s.ltype, PARTICLESTREAMSPEC::DIFFUSE);
    EXPECT_EQ(s.levelmap, PARTICLESTREAMSPEC::LVL_SQRT);
    EXPECT_EQ(s.atmsmap, PARTICLESTREAMSPEC::ATM_PLIN);
    EXPECT_EQ(s.tex, nullptr);

    EXPECT_EQ(t.GetString("short", "Text"), "");
    EXPECT_EQ(t.GetInt("short", "Flag"), 0);
    EXPECT_EQ(t.GetVector("short", "Vec").x, 0.0);
    EXPECT_EQ(t.GetString("short", "NoSuchKey"), "");

    EXPECT_EQ(t.GetString("words", "Text"), "");
    EXPECT_EQ(t.GetInt("words", "Flag"), 2);
    EXPECT_EQ(t.GetDouble("words", "Value"), 1000.0);
    EXPECT_EQ(t.GetInt("digits", "Flag"), 12);
    EXPECT_EQ(t.GetDouble("digits", "Value"), 0.0);

    // A quoted word in mid-line takes two token positions.
    EXPECT_EQ(t.GetString("quoted", "Text"), "a b");
    EXPECT_EQ(t.GetInt("quoted", "Flag"), 0);
    EXPECT_EQ(t.GetDouble("quoted", "Value"), 3.0);

    // A stream cut short keeps zeroed parameters for what is missing.
    PARTICLESTREAMSPEC cut = t.GetParticleSpec("tail", "Spec");
    EXPECT_THAT((Numbers{cut.srcsize, cut.srcrate, cut.v0}), Are({1, 2, 0}));
    EXPECT_EQ(cut.ltype, PARTICLESTREAMSPEC::EMISSIVE);

    PARTICLESTREAMSPEC odd = t.GetParticleSpec("odd", "Spec");
    EXPECT_EQ(odd.levelmap, PARTICLESTREAMSPEC::LVL_PSQRT);
    EXPECT_EQ(odd.atmsmap, PARTICLESTREAMSPEC::ATM_PLOG);
    EXPECT_EQ(odd.amax, 4.0);
    EXPECT_EQ(t.tokensByName.at("odd").back(), "more");
}

TEST_F(ResourceTest, EveryIntegerKeywordDecodesInAnyTable) {
    Common("SOUND_REC = Sound Sounds SName IMode\n");
    // Keywords of other tables decode here too; the odd one out shares the
    // value of its neighbour; case and trailing text matter as in atoi.
    const std::vector<std::pair<std::string, int>> words = {
        {"ROTATE", 1},      {"STAR", 2}, {"EXTERNAL_ONLY_FADED_FAR", 4},
        {"RADIO_SOUND", 8}, {"true", 1}, {"True", 0},
        {"12abc", 12},      {"-7", -7},  {"99999999999", 2147483647}};
    std::string section = "Sounds = {\n";
    for (size_t i = 0; i < words.size(); ++i)
        section += "s" + std::to_string(i) + " " + words[i].first + "\n";
    Class(section + "}\n");
    HkResources<SOUND_REC> &t = Load().SoundTable;
    for (size_t i = 0; i < words.size(); ++i)
        EXPECT_EQ(t.GetInt("s" + std::to_string(i), "Mode"), words[i].second) << words[i].first;
}

TEST_F(ResourceTest, GroupListsResolveMeshLabelsOnlyInTheAnimationTable) {
    Common("MESH_REC = Mesh Meshes SName SFile\n"
           "ANIM_REC = Anim ANIMATIONS SName IType SMesh AGroups\n"
           "MATERIAL_REC = Material Materials SName SMesh SType AMatList\n");
    env.Write("Meshes/Test/Tiny.msh", "MSHX1\nGROUPS 3\nLABEL Body\nGEOM 0 0\nLABEL Nozzle\nGEOM 0 0\n"
                                      "MATERIAL 1\nLABEL Hatch\n");
    Class("Meshes = {\n  Hull Test\\Tiny\n  Lost Test\\NoSuchMesh\n}\n"
          "ANIMATIONS = {\n"
          "  Turn  ROTATE Hull  Nozzle 3 -1 Hatch Missing +2\n"
          "  Gone  ROTATE Lost  Body 0\n"
          "  None  ROTATE Other Body\n"
          "  Empty ROTATE Hull\n"
          "}\n"
          "Materials = {\n  Glow Hull ReentryGlow 1 Body 2\n}\n");
    ProbeVessel &p = Load();

    EXPECT_THAT(p.AnimTable.GetIntList("Turn", "Groups"), ElementsAre(1, 3, -1, 2, -1, 2));
    EXPECT_THAT(p.AnimTable.GetIntList("Gone", "Groups"), ElementsAre(-1, 0));
    EXPECT_THAT(p.AnimTable.GetIntList("None", "Groups"), ElementsAre(-1));
    EXPECT_TRUE(p.AnimTable.GetIntList("Empty", "Groups").empty());
    EXPECT_THAT(p.MaterialTable.GetIntList("Glow", "MatList"), ElementsAre(1, 0, 2));
}
