// The flight program's ticks must not allocate: every heap allocation while
// the stage's steps run is counted.
#include "../frame/allocation_counter.h"
#include "stage_fixture.h"

namespace {

using TickAllocationTest = StageTest;

// A hold, a coast and the start of a burn's ullage, with the changes of step
// between them, all within the stage's own steps.
TEST_F(TickAllocationTest, ProgramStepsAndTheirChangesAllocateNothing) {
    Korvan &k = Load({"PGM ATT PROGRADE 0.5", "PGM IDLE 0.5", "PGM BURN PROGRADE APO 100000", "PGM BURN"});
    k.OnFocusGained(nullptr);
    Engage(k);
    k.AddUpdater(static_cast<VesselCall>(&Korvan::K_FLIGHT)); // the attitude loop behind the program
    const long before = allocations;
    for (int i = 0; i < 30; ++i)
        k.clbkPreStep(world->simt + 0.1 * i, 0.1, 0.0);
    EXPECT_EQ(allocations - before, 0);
    EXPECT_EQ(k.program->current, &k.program->steps[2]);
    EXPECT_TRUE(k.ullageInProgress);
}

} // namespace
