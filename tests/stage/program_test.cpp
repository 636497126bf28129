// The flight program: its PGM forms, the run of its steps from the M key to
// the hand-back at the end, manual control in the middle of a burn, and
// saves in the middle of a step.
#include <cmath>

#include "stage_fixture.h"

namespace {

class ProgramTest : public StageTest {
  protected:
    // A stage carrying a payload vessel of its own, the lines `extra` behind.
    Korvan &LoadCarrying(std::vector<std::string> extra, bool autopilot, const std::string &name) {
        AddPayload(name + "-Sat");
        // A saved block names its own payload; the new stage carries a new one.
        std::erase_if(extra, [](const std::string &l) { return l.rfind("PAYLOAD1", 0) == 0; });
        extra.push_back("PAYLOAD1 " + name + "-Sat");
        return Load(extra, autopilot, name.c_str());
    }
    static std::vector<std::string> Program(const std::vector<std::string> &lines) {
        std::vector<std::string> out;
        for (const std::string &l : lines)
            if (l.rfind("PGM", 0) == 0 || l.rfind("AP_", 0) == 0)
                out.push_back(l);
        return out;
    }
    bool Running(Korvan &k) { return k.HasUpdater(static_cast<VesselCall>(&Korvan::K_PGM_STEP)); }
};

TEST_F(ProgramTest, ParseStepReadsEveryFormAndItsEdges) {
    Korvan &k = Load();
    struct Row {
        const char *text;
        int32_t type, target;
        bool byMet;
        int32_t navMode;
        double value, metTime, duration, incDeg, targetKm;
        const char *line, *child, *sep;
    };
    const Row rows[] = {
        {"IDLE 600", 0, 0, false, 0, 600, 0, 600, 0, 0, "IDLE 600", "", ""},
        {"IDLE MET 3600", 0, 0, true, 0, 3600, 3600, 0, 0, 0, "IDLE MET 3600", "", ""},
        {"IDLE APO -120", 0, 3, false, 0, -120, 0, -120, 0, 0, "IDLE APO -120", "", ""},
        {"ATT RETROGRADE 60", 1, 0, false, 4, 60, 0, 60, 0, 0, "ATT RETROGRADE 60", "", ""},
        // A keyword behind the number reads as 0 and takes its place.
        {"ATT PROGRADE 60 MET", 1, 0, true, 3, 0, 0, 60, 0, 0, "ATT PROGRADE 60 MET", "", ""},
        {"500 BURN APO", 2, 3, false, 0, 0, 0, 0, 0, 0, "500 BURN APO", "", ""},
        {"BURN PROGRADE APO 400", 2, 3, false, 3, 400, 0, 0, 0, 400, "BURN PROGRADE APO 400", "", ""},
        {"BURN NORMAL APOL 300", 2, 4, false, 5, 300, 0, 0, 0, 300, "BURN NORMAL APOL 300", "", ""},
        {"BURN TANGENT PERI 190", 2, 1, false, 9, 190, 0, 0, 0, 190, "BURN TANGENT PERI 190", "", ""},
        {"BURN RETROGRADE PERIL 150", 2, 2, false, 4, 150, 0, 0, 0, 150, "BURN RETROGRADE PERIL 150", "", ""},
        {"BURN ANTINORMAL INC 28.5", 2, 5, false, 6, 28.5, 0, 0, 28.5, 0, "BURN ANTINORMAL INC 28.5", "", ""},
        {"BURN ANTITANGENT APOE 1000", 2, 7, false, 10, 1000, 0, 0, 0, 1000, "BURN ANTITANGENT APOE 1000", "",
         ""},
        {"BURN BODY MOON", 2, 8, false, 11, 0, 0, 0, 0, 0, "BURN BODY MOON", "", ""},
        {"BURN ANTIBODY EQU", 2, 6, false, 12, 0, 0, 0, 0, 0, "BURN ANTIBODY EQU", "", ""},
        // Separators and comments go; keywords are exact; no type word is IDLE.
        {"  ATT,\tANTINORMAL  (30) ; hold", 1, 0, false, 6, 30, 0, 30, 0, 0, "ATT ANTINORMAL 30", "", ""},
        {"burn APO 12", 0, 3, false, 0, 12, 0, 12, 0, 0, "burn APO 12", "", ""},
        {"", 0, 0, false, 0, 0, 0, 0, 0, 0, "", "", ""},
        // JETT names a child by its scenario key; the separation takes the
        // record name's last character. Numbers aren't read behind JETT.
        {"JETT PAYLOAD1", 3, 0, false, 0, 0, 0, 0, 0, 0, "JETT PAYLOAD1", "Payload1", "sepPayload1"},
        {"JETT FAIRING", 3, 0, false, 0, 0, 0, 0, 0, 0, "JETT FAIRING", "Fairing", "sepPayloadg"},
        {"JETT NOBODY 5", 3, 0, false, 0, 0, 0, 0, 0, 0, "JETT NOBODY 5", "", ""},
    };
    for (const Row &row : rows) {
        std::string text = row.text;
        k.program->ParseStep(text);
        const ProgramStep &s = k.program->steps.back();
        EXPECT_EQ(std::tie(s.type, s.target, s.byMet, s.navMode),
                  std::tie(row.type, row.target, row.byMet, row.navMode))
            << row.text;
        EXPECT_EQ(std::tie(s.value, s.metTime, s.duration, s.incDeg, s.targetKm),
                  std::tie(row.value, row.metTime, row.duration, row.incDeg, row.targetKm))
            << row.text;
        EXPECT_EQ(std::tie(s.line, s.childName, s.sepName), std::make_tuple(row.line, row.child, row.sep))
            << row.text;
    }
    // Two children with the key: the last in the table wins.
    k.ChildTable.Find("Payload2")->scnVar = "PAYLOAD1";
    ASSERT_TRUE(k.program->ReadScenarioLine("pgm JETT PAYLOAD1"));
    EXPECT_EQ(k.program->steps.back().childName, "Payload2");
    EXPECT_EQ(k.program->steps.back().sepName, "sepPayload2");
    EXPECT_FALSE(k.program->ReadScenarioLine("PG JETT"));
}

// Steps run one after the other under the autopilot. The updater takes
// itself off the list and back on at its end, so the attitude loop behind
// it misses that step and the new program step has its first tick in the
// frame where the one before ended; the end of the list hands back control.
TEST_F(ProgramTest, StepsRunInOrderAndTheEndHandsBackControl) {
    Korvan &k =
        LoadCarrying({"PGM ATT NORMAL 3", "PGM IDLE 2", "PGM JETT NOBODY", "PGM JETT PAYLOAD1"}, false, "K");
    k.OnFocusGained(nullptr);
    Engage(k);
    k.AddUpdater(static_cast<VesselCall>(&Korvan::K_FLIGHT)); // as after the separation
    ASSERT_TRUE(k.AutopilotActive);
    EXPECT_EQ(k.NavOverrideMode, 5);
    EXPECT_TRUE(Running(k));
    const double hold = k.program->apTimer;
    EXPECT_EQ(hold, 3.0);
    while (!k.program->steps[0].done)
        world->Frame(1.0);
    EXPECT_LE(world->simt, 1.0 + hold + 2.0); // a timer list emptying itself may cost a tick
    EXPECT_EQ(k.program->current, &k.program->steps[1]);
    EXPECT_EQ(k.program->apTimer, 1.0);
    EXPECT_EQ(k.NavOverrideMode, 0); // the coast drifts
    EXPECT_EQ(k.MaxTimeAccel, 1000000.0);
    EXPECT_STREQ(oapiDebugString(), "Coasting: 1");
    // Now last on the list, the program starts its next steps at the end of
    // the walk, and each JETT takes the frame after.
    world->Frame(1.0);
    EXPECT_EQ(k.program->current, &k.program->steps[2]);
    world->Frame(1.0); // a name that matched nothing separates nothing
    EXPECT_TRUE(k.program->steps[2].done);
    EXPECT_FALSE(k.ChildTable.Find("Payload1")->AttachedName.empty());
    world->Frame(1.0);
    EXPECT_TRUE(k.program->Finished());
    EXPECT_TRUE(k.ChildTable.Find("Payload1")->AttachedName.empty());
    EXPECT_FALSE(k.AutopilotActive);
    EXPECT_FALSE(Running(k));
    EXPECT_EQ(Message(k), "Manual controls enabled. To return to autopilot, use M key");
    EXPECT_EQ(k.MaxTimeAccel, 10.0); // as the last step left it
    k.ToggleControlMode();
    EXPECT_EQ(Message(k), "Cannot switch to autopilot after flight program completion!");
    // Nothing is left to save; reloaded, the stage has no program at all.
    EXPECT_TRUE(Program(Saved(k)).empty());
    Korvan &again = Load(Saved(k), false, "K2");
    again.ToggleControlMode();
    EXPECT_EQ(Message(again), "Cannot switch to autopilot: flight program is not set!");
}

// The separation from the carrier starts the program. Manual control stops
// the burn, undone; back under the autopilot the same step begins again with
// a new ullage, at the price of a firing.
TEST_F(ProgramTest, ManualControlStopsABurnThatStartsAgainWithTheAutopilot) {
    Korvan &k = Load({"PGM BURN PROGRADE APO 900", "PGM BURN PROGRADE APO 1000"}, true);
    Run(1.0);
    EXPECT_FALSE(Running(k)); // no payload aboard: the program waits at loading
    k.OnDetached();
    EXPECT_TRUE(Running(k));
    EXPECT_TRUE(k.ullageInProgress);
    Run(12.0, 0.5);
    EXPECT_EQ(k.ignitionsUsed, 1);
    EXPECT_EQ(GroupLevel(k, "Main"), 1.0);
    k.ToggleControlMode();
    EXPECT_FALSE(k.AutopilotActive);
    EXPECT_EQ(GroupLevel(k, "Main"), 0.0);
    EXPECT_FALSE(Running(k));
    EXPECT_FALSE(k.program->steps[0].done);
    EXPECT_EQ(Message(k), "Main engine shutdown. 29 engine firings left.");
    Run(2.0);
    k.ToggleControlMode();
    EXPECT_TRUE(k.ullageInProgress);
    EXPECT_EQ(k.program->current, &k.program->steps[0]);
    Run(11.0, 0.5);
    EXPECT_EQ(k.ignitionsUsed, 2);
    EXPECT_EQ(GroupLevel(k, "Main"), 1.0);
    EXPECT_FALSE(k.sozDropped); // a second burn is still to come
}

// A reload in the middle of ATT goes on with the seconds left; in the
// middle of a burn, with the engine running and no new firing.
TEST_F(ProgramTest, SavedInTheMiddleOfAStepGoesOnAfterTheReload) {
    Korvan &att = LoadCarrying({"PGM ATT PROGRADE 60", "PGM IDLE 1000"}, false, "A");
    Engage(att);
    Run(20.0);
    const double left = att.program->apTimer;
    EXPECT_NEAR(left, 40.0, 2.0);
    const std::vector<std::string> atAtt = Saved(att);
    EXPECT_EQ(Program(atAtt), (std::vector<std::string>{"AP_TIMER " + std::to_string(static_cast<int>(left)),
                                                        "PGM ATT PROGRADE 60", "PGM IDLE 1000"}));
    Korvan &att2 = LoadCarrying(atAtt, true, "A2");
    EXPECT_TRUE(Running(att2));
    EXPECT_EQ(att2.NavOverrideMode, 3);
    EXPECT_EQ(att2.program->apTimer, left);
    const double reloaded = world->simt;
    while (!att2.program->steps[0].done && world->simt < reloaded + 100.0)
        world->Frame(1.0);
    EXPECT_NEAR(world->simt - reloaded, left + 1.0, 1.0); // one frame is skipped after the creation

    Korvan &burn = LoadCarrying({"PGM BURN PROGRADE APO 600", "PGM BURN PROGRADE APO 700"}, false, "B");
    Engage(burn);
    Run(15.0, 0.5);
    ASSERT_EQ(GroupLevel(burn, "Main"), 1.0);
    const std::vector<std::string> atBurn = Saved(burn);
    EXPECT_EQ(Program(atBurn),
              (std::vector<std::string>{"PGM BURN PROGRADE APO 600", "PGM BURN PROGRADE APO 700"}));
    Korvan &burn2 = LoadCarrying(atBurn, true, "B2");
    EXPECT_TRUE(Running(burn2));
    EXPECT_FALSE(burn2.ullageInProgress);
    EXPECT_EQ(GroupLevel(burn2, "Main"), 1.0);
    double apo = 0.0;
    while (!burn2.program->steps[0].done && world->simt < 200.0) {
        world->Frame(0.5);
        burn2.GetApDist(apo);
    }
    EXPECT_EQ(burn2.ignitionsUsed, 1);
    EXPECT_GE(apo - 6371000.0, 600e3);
    EXPECT_EQ(burn2.program->current, &burn2.program->steps[1]);
}

} // namespace
