// The text mesh format: groups opened by LABEL lines, materials, textures,
// and files that are malformed in every way the loader must survive.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <sstream>

#include "visual/mesh_loader.h"

using hullhost::Mesh;
using hullhost::MeshLoadNotes;

namespace {

Mesh Parse(const std::string &text, MeshLoadNotes &notes) {
    std::istringstream in(text);
    return hullhost::ParseMesh(in, notes);
}

TEST(MeshLoader, GroupsAreNumberedByTheLinesThatHoldTheWordLabel) {
    // A module finds group N as the N-th line containing LABEL; the host
    // must number its groups the same way, even for a line it doesn't like.
    MeshLoadNotes notes;
    Mesh m = Parse("HKMESH 1\n"
                   "LABEL Tank\nV 0 0 0\n"
                   "  LABEL Nozzle Bell\r\n"
                   "; a stray LABEL in a comment\n"
                   "LABEL Skirt\n",
                   notes);
    std::vector<std::string> labels;
    for (const auto &g : m.groups)
        labels.push_back(g.label);
    EXPECT_EQ(labels, (std::vector<std::string>{"Tank", "Nozzle Bell", "in a comment", "Skirt"}));
    EXPECT_EQ(m.groups[0].vertices.size(), 1u);
    EXPECT_EQ(notes.skipped, 1); // the LABEL that doesn't start its line
}

TEST(MeshLoader, ReadsMaterialsTexturesAndGroupFields) {
    MeshLoadNotes notes;
    Mesh m = Parse("MATERIAL hull ; white\n  DIFFUSE 0.5 0.25 1\n  SPECULAR 1 1 1 0.5\n  POWER 12\n"
                   "MATERIAL plain\n"
                   "TEXTURE Fleet\\Hull\nTEXTURE Fleet\\Engine\n"
                   "LABEL A\nMAT 1\nTEX 2\nFLAG 7\n"
                   "V 1 2 3\nV 1 2 3  0 0 1\nV 1 2 3  0 0 1  0.5 0.25\nT 0 1 2\nT 2 1 0\n",
                   notes);
    EXPECT_EQ(notes.skipped, 0);
    ASSERT_EQ(m.materials.size(), 2u);
    // Alpha defaults to 1.
    const MATERIAL &hull = m.materials[0];
    EXPECT_EQ((std::vector{hull.diffuse.g, hull.diffuse.a, hull.specular.a, hull.power}),
              (std::vector{0.25f, 1.0f, 0.5f, 12.0f}));
    EXPECT_FLOAT_EQ(m.materials[1].ambient.r, hullhost::kDefaultMaterial.ambient.r);
    EXPECT_EQ(m.textureNames, (std::vector<std::string>{"Fleet\\Hull", "Fleet\\Engine"}));
    const auto &g = m.groups.at(0);
    EXPECT_EQ(g.material, 1);
    EXPECT_EQ((std::vector{g.texture, g.userFlag}), (std::vector{2u, 7u}));
    ASSERT_EQ(g.vertices.size(), 3u);
    EXPECT_EQ((std::vector{g.vertices[0].nz, g.vertices[1].nz, g.vertices[2].tv}),
              (std::vector{0.0f, 1.0f, 0.25f}));
    EXPECT_EQ(g.indices, (std::vector<WORD>{0, 1, 2, 2, 1, 0}));
}

TEST(MeshLoader, SkipsMalformedLinesAndKeepsTheRest) {
    MeshLoadNotes notes;
    Mesh m = Parse("DIFFUSE 1 1 1\n" // 1: colour before any material
                   "V 0 0 0\n"       // 2: vertex before any group
                   "MATERIAL m\n"    // 3
                   "POWER lots\n"    // 4: not a number
                   "LABEL G\n"       // 5
                   "V 1 2 3 4 5\n"   // 6: five numbers
                   "V 1 x 3\n"       // 7: not a number
                   "V 1e999 0 0\n"   // 8: not finite
                   "V 0 0 0\nV 1 0 0\nV 0 1 0\n"
                   "T 0 1 2\n"
                   "T 0 1 9\n"   // dropped: no vertex 9
                   "T 0 -1 2\n"  // 14: negative index
                   "T 0 1\n"     // 15: two indices
                   "MAT 3\n"     // no material 3: none
                   "TEX 1\n"     // no texture 1: none
                   "WOBBLE 1\n", // 18: unknown keyword
                   notes);
    ASSERT_EQ(m.groups.size(), 1u);
    const auto &g = m.groups[0];
    EXPECT_EQ(g.vertices.size(), 3u);
    EXPECT_EQ(g.indices, (std::vector<WORD>{0, 1, 2}));
    EXPECT_EQ(g.material, -1);
    EXPECT_EQ(g.texture, 0u);
    EXPECT_FLOAT_EQ(m.materials.at(0).diffuse.r, 1.0f);
    EXPECT_EQ(notes.skipped, 12);
    ASSERT_EQ(notes.first.size(), 5u); // only the first few are kept for the log
    EXPECT_EQ(notes.first[0].rfind("line 1:", 0), 0u);
    EXPECT_EQ(notes.first[4].rfind("line 7:", 0), 0u);
}

TEST(MeshLoader, SurvivesGarbageAndOversizedGroups) {
    std::mt19937 rng(7);
    std::string junk;
    for (int i = 0; i < 200000; ++i)
        junk.push_back(static_cast<char>(rng() % 256));
    junk += "\nLABEL Last\nT 1 2 3\n" + std::string(100000, 'V') + "\n";
    MeshLoadNotes notes;
    Mesh m = Parse(junk, notes);
    ASSERT_FALSE(m.groups.empty());
    EXPECT_EQ(m.groups.back().label, "Last");
    EXPECT_TRUE(m.groups.back().indices.empty());

    // Triangle indices are 16 bits: a group keeps its first 65536 vertices.
    std::string big = "LABEL Big\n";
    for (int i = 0; i < 65537; ++i)
        big += "V 0 0 0\n";
    big += "T 65535 0 1\n";
    MeshLoadNotes bigNotes;
    Mesh b = Parse(big, bigNotes);
    EXPECT_EQ(b.groups.at(0).vertices.size(), 65536u);
    EXPECT_EQ(b.groups.at(0).indices.size(), 3u);
    EXPECT_EQ(bigNotes.skipped, 1);
}

// The meshes of the shipped configurations load cleanly, and the stage's
// engine, which the gimbal animation turns as groups 4 and 5, lies behind
// the gimbal point at z = -1.
TEST(MeshLoader, ShippedMeshesLoadCleanly) {
    int files = 0;
    for (auto &entry : std::filesystem::recursive_directory_iterator(HULLKIT_ROOT_DIR "/Meshes")) {
        if (entry.path().extension() != ".msh")
            continue;
        ++files;
        MeshLoadNotes notes;
        auto mesh = hullhost::LoadMeshFile(entry.path().string(), notes);
        ASSERT_TRUE(mesh) << entry.path();
        EXPECT_EQ(notes.skipped, 0) << entry.path() << ": " << (notes.first.empty() ? "" : notes.first[0]);
        EXPECT_FALSE(mesh->groups.empty()) << entry.path();
    }
    EXPECT_GE(files, 11);

    MeshLoadNotes notes;
    auto korvan = hullhost::LoadMeshFile(HULLKIT_ROOT_DIR "/Meshes/Fleet/Korvan.msh", notes);
    ASSERT_TRUE(korvan);
    ASSERT_GE(korvan->groups.size(), 6u);
    for (size_t g : {4u, 5u})
        for (const NTVERTEX &v : korvan->groups[g].vertices)
            EXPECT_LE(v.z, -1.0f) << "group " << g;
}

} // namespace
