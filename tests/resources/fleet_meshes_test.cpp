// The meshes of the stage, its two-payload variant and the generic pieces,
// as the host holds them after loading through their modules.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fleet_fixture.h"
#include "visual/visual.h"

using FleetMeshes = FleetTest;

// Each mesh record stands in the host at its index, with its file, offset and
// mode, and with a device mesh in the visual.
TEST_F(FleetMeshes, EachClassAndVariantShowsItsOwnMeshes) {
    const struct {
        const char *className, *subtype;
        std::vector<std::string> files;
    } cases[] = {
        {"Fleet\\Korvan",
         "",
         {"Fleet\\Korvan", "Fleet\\KorvanFairing", "Fleet\\KorvanSOZL", "Fleet\\KorvanSOZR"}},
        {"Fleet\\Korvan",
         "TwoPayloads",
         {"Fleet\\Korvan", "Fleet\\KorvanFairing", "Fleet\\KorvanSOZL", "Fleet\\KorvanSOZR",
          "Fleet\\KorvanDispenser"}},
        {"Fleet\\Generic", "", {"Fleet\\Debris"}},
        {"Fleet\\Generic", "SOZL", {"Fleet\\KorvanSOZL"}},
        {"Fleet\\Generic", "SOZR", {"Fleet\\KorvanSOZR"}},
        {"Fleet\\Generic", "FairingKMidK", {"Fleet\\KorvanFairing"}},
        {"Fleet\\Generic", "Payload", {"Fleet\\KorvanPayload"}},
    };
    int n = 0;
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.className) + " " + c.subtype);
        HULLKIT &k = Load(("V-" + std::to_string(n++)).c_str(), c.className, c.subtype);
        ASSERT_EQ(vessel->meshes.size(), c.files.size());
        ASSERT_EQ(static_cast<size_t>(k.MeshTable.Count()), c.files.size());
        ASSERT_NE(k.visual, nullptr);
        for (int32_t i = 0; i < k.MeshTable.Count(); ++i) {
            const MESH_REC *rec = k.MeshTable.At(i);
            const hullhost::MeshSlot &slot = vessel->meshes[rec->index];
            EXPECT_EQ(rec->index, static_cast<uint32_t>(i));
            EXPECT_EQ(slot.file, c.files[static_cast<size_t>(i)]);
            ASSERT_NE(slot.templ, nullptr) << slot.file;
            EXPECT_FALSE(slot.templ->groups.empty()) << slot.file;
            EXPECT_EQ(slot.offset.x, rec->pos.x);
            EXPECT_EQ(slot.offset.z, rec->pos.z);
            EXPECT_EQ(slot.visibility, MESHVIS_ALWAYS);
            EXPECT_NE(k.GetDevMesh(k.visual, rec->index), nullptr);
        }
    }
    // The fairing, an ullage block and the dispenser at their places.
    EXPECT_EQ(world_->FindVessel("V-1")->meshes[1].offset.z, -1.75);
    EXPECT_EQ(world_->FindVessel("V-1")->meshes[2].offset.x, -1.42);
    EXPECT_EQ(world_->FindVessel("V-1")->meshes[4].offset.z, 1.55);
}
