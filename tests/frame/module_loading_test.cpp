// The stage's module as the host loads it: a shared library found through its
// class file, made and ended through its exports.
#include <gtest/gtest.h>

#include "frame/hullkit.h"
#include "root_world.h"

TEST(ModuleLoading, KorvanComesFromItsLibraryAndReadsItsFiles) {
    RootWorld world;
    hullhost::Vessel &v = world->ConstructVessel("Korvan-1", "Fleet\\Korvan");
    world->LoadVesselState(v, {"STATUS Orbiting Earth", "RPOS 6571010 0 0", "RVEL 0 0 7788.4"});
    world->PostCreate(v);

    VESSEL *iface = oapiGetVesselInterface(oapiGetVesselByName("Korvan-1"));
    ASSERT_NE(iface, nullptr);
    EXPECT_TRUE(IsHullkit(iface));
    EXPECT_EQ(world->modules.ForClass("Fleet\\Korvan").Path(),
              std::string(HULLKIT_TEST_ROOT) + "/Modules/Fleet/Korvan.dll");
    world->Frame(0.02);
    world->Frame(0.02);
    oapiDeleteVessel(v.Handle());
    EXPECT_EQ(oapiGetVesselCount(), 0u);
}
