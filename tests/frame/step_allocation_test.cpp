// The vessel's step must not allocate: every heap allocation while steps run
// is counted.
#include "allocation_counter.h"
#include "probe_fixture.h"

// Running timers, the gusty wind, the engine watch with its (silent) sound,
// and animation controllers on the move.
TEST_F(ProbeTest, StepsAllocateNothing) {
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
    p.AddUpdater(Call(&ProbeVessel::U_B));
    p.AddSecondEvent(&HULLKIT::H_NO_ACT);
    p.AddMinuteEvent(&HULLKIT::H_NO_ACT);
    p.AddOneShot(1000.0, &HULLKIT::H_NO_ACT);
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
    EXPECT_NE(p.AnimCtrlTable.Find("TheLongNamedSecondController")->state, 0.0);
}
