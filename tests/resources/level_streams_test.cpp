// The contrail, hot wake and dust streams that the vessel drives through its
// level members, and the configured shift of the centre of gravity.
#include "numbers.h"
#include "resource_fixture.h"

namespace {

constexpr const char *kStreamParticles =
    "Particles = {\n"
    "  Contrail     0 4 6 150 0.3 8 4 3 DIFFUSE LVL_PSQRT 0 0.5 ATM_PLOG 1 2\n"
    "  ContrailHeat 0 3 6 150 0.3 8 4 3 EMISSIVE LVL_FLAT 1 1 ATM_PLOG 1 2\n"
    "  Dust         0 2 6 150 0.3 8 4 3 DIFFUSE LVL_FLAT 1 1 ATM_FLAT 1 1\n"
    "}\n";

} // namespace

TEST_F(ResourceTest, StreamsFollowTheirLevelMembersAndNeedTheirRecords) {
    Common(kPropulsionHeaders);
    Class(std::string(kStreamParticles) +
          "Tanks = {\n  Main 100\n}\n"
          "Thrusters = {\n  Aux (0,0,5) zplus 10 Main 3000\n  Engine (0,0,-2) zplus 100 Main 3000\n}\n"
          "ThrusterGroups = {\n  Main Engine 1\n}\n"
          "NoReentryGlow = true\n"
          "HeatContrailPos = 1 2\n"
          "CG = 0 0 0.5\n");
    ProbeVessel &p = Load();
    hullhost::Vessel &v = Host();

    ASSERT_EQ(v.streams.size(), 3u);
    const hullhost::ParticleStream &contrail = *v.streams[0];
    const hullhost::ParticleStream &heat = *v.streams[1];
    const hullhost::ParticleStream &dust = *v.streams[2];

    // 50 m behind the main group's first thruster, whatever comes before it;
    // a position given in part keeps the rest of the default.
    EXPECT_EQ(contrail.thruster, nullptr);
    EXPECT_THAT(Of(contrail.pos, contrail.dir, heat.pos, heat.dir, dust.pos, dust.dir),
                Are({0, 0, -52, 0, 0, -1, 1, 2, -10, 0, 0, -1, 0, 0, 0, 0, 1, 0}));
    EXPECT_EQ(contrail.level, &p.ContrailLevel);
    EXPECT_EQ(heat.level, &p.HeatContrailLevel);
    EXPECT_EQ(dust.level, &p.DustLevel);
    EXPECT_THAT((Numbers{contrail.spec.srcsize, heat.spec.srcsize, dust.spec.srcsize}), Are({4, 3, 2}));
    EXPECT_EQ(contrail.spec.levelmap, PARTICLESTREAMSPEC::LVL_PSQRT);
    EXPECT_EQ(v.cgShift.z, 0.5);

    // Without its record (the dust), or with a main group whose first thruster
    // doesn't exist (the contrail), a stream is left out; without CG the
    // centre stays.
    Class("Particles = {\n"
          "  Contrail     0 4 6 150 0.3 8 4 3 DIFFUSE LVL_PSQRT 0 0.5 ATM_PLOG 1 2\n"
          "  ContrailHeat 0 3 6 150 0.3 8 4 3 EMISSIVE LVL_FLAT 1 1 ATM_PLOG 1 2\n"
          "}\n"
          "ThrusterGroups = {\n  Main Nobody 1\n}\nNoReentryGlow = true\n");
    ProbeVessel &q = LoadProbe("P2", {"STATUS Orbiting Earth"});
    const hullhost::Vessel &other = *env.world->FindVessel("P2");
    ASSERT_EQ(other.streams.size(), 1u);
    EXPECT_EQ(other.streams[0]->level, &q.HeatContrailLevel);
    EXPECT_DOUBLE_EQ(other.streams[0]->pos.z, -10.0);
    EXPECT_DOUBLE_EQ(other.cgShift.z, 0.0);
}
