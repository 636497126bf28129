// A vessel loaded with the two sequence lines writes them back as it read
// them, and its sequences go on from there.
#include "scenario_fixture.h"

using ::testing::Contains;
using ::testing::ElementsAre;

TEST_F(ScenarioTest, SequencesGoOnFromTheirLines) {
    Class(std::string(kClassText) + "Launch = 1 DO_A 3 DO_B\nRelease = WHEN_A WHEN_B\n");
    ProbeVessel &p = Load({"TIMED_SEQUENCE Launch, 1.5", "CONDITIONAL_SEQUENCE Release 1,0,"});
    const std::vector<std::string> saved = FrameworkLines(p);
    EXPECT_THAT(saved, Contains("TIMED_SEQUENCE Launch, 1.500000"));
    EXPECT_THAT(saved, Contains("CONDITIONAL_SEQUENCE Release 1,0,"));
    // WHEN_A, its flag up, is passed by; DO_A, below the clock, fires at once.
    p.flagB = true;
    env.world->Frame(0.5); // the step after creation does nothing
    env.world->Frame(1.0);
    EXPECT_THAT(p.steps, ElementsAre("S_A@2.500000", "S_B@2.500000"));
}
