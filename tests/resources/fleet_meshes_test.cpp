// The meshes of the stage, its two-payload variant and the generic pieces,
// as the host holds them after loading through their modules.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fleet_fixture.h"
#include "visual/visual.h"

namespace {

class FleetMeshes : public FleetTest {
  protected:
    // Each mesh record stands in the host at its index, with its file, offset
    // and mode, and with a device mesh in the visual.
    void ExpectMeshes(HULLKIT &k, const std::vector<std::string> &files) {
        ASSERT_EQ(vessel->meshes.size(), files.size());
        ASSERT_EQ(static_cast<size_t>(k.MeshTable.Count()), files.size());
        ASSERT_NE(k.visual, nullptr);
        for (int32_t i = 0; i < k.MeshTable.Count(); ++i) {
            const MESH_REC *rec = k.MeshTable.At(i);
            const hullhost::MeshSlot &slot = vessel->meshes[rec->index];
            EXPECT_EQ(rec->index, static_cast<uint32_t>(i));
            EXPECT_EQ(slot.file, files[static_cast<size_t>(i)]);
            ASSERT_NE(slot.templ, nullptr) << slot.file;
            EXPECT_FALSE(slot.templ->groups.empty()) << slot.file;
            EXPECT_DOUBLE_EQ(slot.offset.x, rec->pos.x);
            EXPECT_DOUBLE_EQ(slot.offset.z, rec->pos.z);
            EXPECT_EQ(slot.visibility, MESHVIS_ALWAYS);
            EXPECT_NE(k.GetDevMesh(k.visual, rec->index), nullptr);
        }
    }
};

} // namespace

TEST_F(FleetMeshes, KorvanShowsItsStageFairingAndUllageBlocks) {
    HULLKIT &k = Load("K-1", "Fleet\\Korvan");
    ExpectMeshes(k, {"Fleet\\Korvan", "Fleet\\KorvanFairing", "Fleet\\KorvanSOZL", "Fleet\\KorvanSOZR"});
    EXPECT_DOUBLE_EQ(vessel->meshes[1].offset.z, -1.75);
    EXPECT_DOUBLE_EQ(vessel->meshes[2].offset.x, -1.42);
}

TEST_F(FleetMeshes, TheTwoPayloadVariantAddsItsDispenserLast) {
    HULLKIT &k = Load("K-1", "Fleet\\Korvan", "TwoPayloads");
    ExpectMeshes(k, {"Fleet\\Korvan", "Fleet\\KorvanFairing", "Fleet\\KorvanSOZL", "Fleet\\KorvanSOZR",
                     "Fleet\\KorvanDispenser"});
    EXPECT_DOUBLE_EQ(vessel->meshes[4].offset.z, 1.55);
}

TEST_F(FleetMeshes, EachGenericVariantShowsItsOwnBody) {
    const std::pair<const char *, const char *> variants[] = {{"", "Fleet\\Debris"},
                                                              {"SOZL", "Fleet\\KorvanSOZL"},
                                                              {"SOZR", "Fleet\\KorvanSOZR"},
                                                              {"FairingKMidK", "Fleet\\KorvanFairing"},
                                                              {"Payload", "Fleet\\KorvanPayload"}};
    int n = 0;
    for (const auto &[subtype, file] : variants) {
        SCOPED_TRACE(subtype);
        HULLKIT &g = Load(("G-" + std::to_string(n++)).c_str(), "Fleet\\Generic", subtype);
        ExpectMeshes(g, {file});
    }
}
