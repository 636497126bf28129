// The meshes of the stage, its two-payload variant and the generic pieces,
// as the host holds them after loading through their modules.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "core/world.h"
#include "frame/hullkit.h"
#include "visual/visual.h"

namespace {

class FleetMeshes : public ::testing::Test {
  protected:
    FleetMeshes() : previous_(std::filesystem::current_path()) {
        std::filesystem::current_path(HULLKIT_TEST_ROOT);
        world_ = std::make_unique<hullhost::World>(HULLKIT_TEST_ROOT);
    }
    ~FleetMeshes() override {
        world_.reset();
        std::filesystem::current_path(previous_);
    }

    HULLKIT &Load(const char *name, const char *className, const std::string &subtype = "") {
        hullhost::Vessel &v = world_->ConstructVessel(name, className);
        std::vector<std::string> lines = {"STATUS Orbiting Earth", "RPOS 6571010.00 0.00 0.00",
                                          "RVEL 0.00 0.00 7788.48", "AROT 0.00 0.00 0.00",
                                          "VROT 0.00 0.00 0.00"};
        if (!subtype.empty())
            lines.push_back("SUBTYPE " + subtype);
        world_->LoadVesselState(v, lines);
        world_->PostCreate(v);
        vessel = &v;
        return *static_cast<HULLKIT *>(v.iface);
    }

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

    std::filesystem::path previous_;
    std::unique_ptr<hullhost::World> world_;
    hullhost::Vessel *vessel = nullptr;
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
