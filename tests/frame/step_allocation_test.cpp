// The vessel's step must not allocate: every heap allocation while steps run
// is counted.
#include <atomic>
#include <cstdlib>
#include <new>

#include "probe_fixture.h"

namespace {
std::atomic<long> allocations{0};
}

void *operator new(std::size_t size) {
    ++allocations;
    if (void *p = std::malloc(size ? size : 1))
        return p;
    throw std::bad_alloc();
}
// Modules make their vessels with the nothrow form. It takes its memory from
// malloc too, so that the replaced delete below frees what it was given.
void *operator new(std::size_t size, const std::nothrow_t &) noexcept {
    ++allocations;
    return std::malloc(size ? size : 1);
}
// The counting operator new takes its memory from malloc; GCC can't see that
// through inlined string code and would warn of a mismatch.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
void operator delete(void *p) noexcept { std::free(p); }
void operator delete(void *p, std::size_t) noexcept { std::free(p); }
#pragma GCC diagnostic pop

TEST_F(ProbeTest, StepsWithRunningTimersAllocateNothing) {
    ProbeVessel &p = LoadProbe("P1");
    env.world->Frame(0.1);
    p.AddUpdater(Call(&ProbeVessel::U_B));
    p.AddSecondEvent(&HULLKIT::H_NO_ACT);
    p.AddMinuteEvent(&HULLKIT::H_NO_ACT);
    p.AddOneShot(1000.0, &HULLKIT::H_NO_ACT);
    // The gusty wind and the engine watch with its (silent) sound.
    p.WindGusty = true;
    p.AddUpdater(&HULLKIT::P_WINDS);
    p.AddUpdater(&HULLKIT::WatchMainEngine);
    env.world->VesselFromHandle(p.GetHandle())->forces.reserve(1000);
    p.runs.reserve(1000);

    long before = allocations;
    for (int i = 0; i < 200; ++i)
        p.clbkPreStep(0.1 * i, 0.1, 0.0);
    EXPECT_EQ(allocations - before, 0);
    EXPECT_EQ(p.runs.size(), 200u);
}

TEST_F(ProbeTest, StepsThatMoveAnimationControllersAllocateNothing) {
    // Names too long to be kept inside a string object: a step that copied one
    // would allocate.
    env.Write("Config/Vessels/Test/HullKit.cfg",
              "MESH_REC = Mesh Meshes SName SFile\n"
              "ANIM_REC = Anim ANIMATIONS SName IType SMesh VVec1 VVec2 DDeg DFrom DTo DStart "
              "SExisting SParent AGroups\n"
              "ANIM_CTRL_REC = AnimCtrl AnimControls SName SAnim DVel DAccel INoHardStop\n"
              "Meshes = {\n  Body Test\\Body\n}\n"
              "ANIMATIONS = {\n  TheLongNamedDoorComponent ROTATE Body xyz0 xplus 90 0 1 0 NEW NONE 1\n}\n"
              "AnimControls = {\n"
              "  TheLongNamedDoorController TheLongNamedDoorComponent 0.3 0.1 true\n"
              "  TheLongNamedSecondController TheLongNamedDoorComponent 0.1 0 false\n}\n");
    ProbeVessel &p = LoadProbe("P1");
    env.world->Frame(0.1);
    p.AnimCtrlTable.Find("TheLongNamedDoorController")->direction = 1;

    long before = allocations;
    for (int i = 0; i < 200; ++i)
        p.clbkPreStep(0.1 * i, 0.1, 0.0);
    EXPECT_EQ(allocations - before, 0);
    EXPECT_NE(p.AnimCtrlTable.Find("TheLongNamedSecondController")->state, 0.0);
}
