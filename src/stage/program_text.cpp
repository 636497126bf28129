// The flight program's text: PGM lines into steps, and the scenario lines
// that carry the program and its running state through a save.
#include <cstdio>
#include <string_view>

#include "config/text_ops.h"
#include "config/value_scan.h"
#include "scenario/scenario_keys.h"
#include "stage/korvan.h"

namespace {

struct Keyword {
    std::string_view token;
    int32_t ProgramStep::*field;
    int32_t value;
};

constexpr Keyword kKeywords[] = {
    {"IDLE", &ProgramStep::type, ProgramStep::kIdle},
    {"ATT", &ProgramStep::type, ProgramStep::kAtt},
    {"BURN", &ProgramStep::type, ProgramStep::kBurn},
    {"JETT", &ProgramStep::type, ProgramStep::kJett},
    {"PROGRADE", &ProgramStep::navMode, 3},
    {"RETROGRADE", &ProgramStep::navMode, 4},
    {"NORMAL", &ProgramStep::navMode, 5},
    {"ANTINORMAL", &ProgramStep::navMode, 6},
    {"TANGENT", &ProgramStep::navMode, 9},
    {"ANTITANGENT", &ProgramStep::navMode, 10},
    {"BODY", &ProgramStep::navMode, 11},
    {"ANTIBODY", &ProgramStep::navMode, 12},
    {"PERI", &ProgramStep::target, ProgramStep::kPeri},
    {"PERIL", &ProgramStep::target, ProgramStep::kPeriL},
    {"APO", &ProgramStep::target, ProgramStep::kApo},
    {"APOL", &ProgramStep::target, ProgramStep::kApoL},
    {"INC", &ProgramStep::target, ProgramStep::kInc},
    {"EQU", &ProgramStep::target, ProgramStep::kEqu},
    {"APOE", &ProgramStep::target, ProgramStep::kApoE},
    {"MOON", &ProgramStep::target, ProgramStep::kMoon},
};

bool AltitudeTarget(int32_t target) {
    return (target >= ProgramStep::kPeri && target <= ProgramStep::kApoL) || target == ProgramStep::kApoE;
}

} // namespace

void FlightProgram::ParseStep(std::string &stepText) {
    ProgramStep step;
    const std::vector<std::string> tokens = SplitBy(stepText, ' ');
    std::string_view kept = stepText;
    if (!kept.empty() && kept.front() == ' ')
        kept.remove_prefix(1);
    if (!kept.empty() && kept.back() == ' ')
        kept.remove_suffix(1);
    step.line = kept;

    for (const std::string &token : tokens) {
        if (token == "MET")
            step.byMet = true;
        for (const Keyword &k : kKeywords)
            if (token == k.token)
                step.*k.field = k.value;

        // Every token is a number as well; a keyword reads as 0.
        if (step.type == ProgramStep::kJett) {
            // The last child whose scenario key matches wins.
            for (int32_t i = 0; i < vessel->ChildTable.Count(); ++i) {
                const CHILD_REC *rec = vessel->ChildTable.At(i);
                if (!rec || rec->scnVar != token)
                    continue;
                const std::string &name = vessel->ChildTable.NameAt(i);
                step.jettName = token;
                step.childName = name;
                step.sepName = "sepPayload" + (name.empty() ? std::string() : name.substr(name.size() - 1));
            }
        } else {
            step.value = 0.0;
            ScanDouble(token, step.value);
        }
        if (step.target == ProgramStep::kInc) {
            step.incDeg = step.value;
            step.incRad = step.value * 0.017453292519943295;
        } else if (step.type == ProgramStep::kBurn && AltitudeTarget(step.target)) {
            step.targetKm = step.value;
            step.targetM = step.value * 1000.0;
        } else if (step.byMet) {
            step.metTime = step.value;
        } else {
            step.duration = step.value;
        }
    }

    // The running step is pointed at; keep pointing at it if the list moves.
    const std::ptrdiff_t running = current ? current - steps.data() : -1;
    steps.push_back(std::move(step));
    if (running >= 0)
        current = steps.data() + running;
}

bool FlightProgram::ReadScenarioLine(const char *line) {
    if (BeginsWithKey(line, "PGM")) {
        std::string stepText = TextBehindKey(line, "PGM");
        ParseStep(stepText);
    } else if (BeginsWithKey(line, "AP_TIMER")) {
        std::sscanf(line + 8, "%lf", &apTimer);
    } else if (BeginsWithKey(line, "AP_PARAMS")) {
        std::sscanf(line + 9, "%lf %lf %lf %lf", &vessel->MoonNodeTime, &vessel->MoonNodeRadius, &moonApogee,
                    &moonThrottleApogee);
        preparationRestored = true;
    } else {
        return false;
    }
    return true;
}

void FlightProgram::Save(FILEHANDLE scn) {
    if (apTimer > 0.0)
        oapiWriteScenario_float(scn, "AP_TIMER", apTimer);
    if (moonApogee > 0.0) {
        char values[1536]; // room for four numbers of any size
        std::snprintf(values, sizeof values, "%lf %lf %lf %lf", vessel->MoonNodeTime, vessel->MoonNodeRadius,
                      moonApogee, moonThrottleApogee);
        oapiWriteScenario_string(scn, "AP_PARAMS", values);
    }
    for (const ProgramStep &step : steps)
        if (!step.done)
            oapiWriteScenario_string(scn, "PGM", step.line.c_str());
}
