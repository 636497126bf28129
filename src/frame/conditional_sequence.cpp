// Conditional sequences: one step at a time, each waiting for a flag of the
// vessel, which the step's watch updater raises. The control modes stop the
// watch when the user takes over and arm it again for the autopilot.
#include <string>
#include <utility>

#include "config/text_ops.h"
#include "config/value_scan.h"
#include "frame/hullkit.h"

// `states` puts back the flags as they stood when the sequence was saved; a
// start without it begins from no condition met.
void HULLKIT::StartConditionalSequence(const std::string &name, const char *states) {
    StopConditionalWatch();
    ConditionalSteps.clear();
    for (bool &done : ConditionalDone)
        done = false;
    std::string source;
    std::string value = FindSequence(name, source);
    if (value.empty())
        return;
    ParseConditionalSequence(source, std::move(value));

    std::string stateText = states ? states : "";
    const std::vector<std::string> tokens = SplitBy(stateText, ' ');
    for (std::size_t i = 0; i < ConditionalSteps.size(); ++i) {
        int state = 0;
        if (states && i < tokens.size())
            ScanInt(tokens[i], state);
        if (SequenceFlag flag = ConditionalSteps[i].flag)
            this->*flag = state == 1;
    }
    ArmNextConditional();
}

// Each word that names a row of the class's table appends a copy of the row;
// other words are skipped, and so is every step beyond the 50 that the done
// marks hold.
void HULLKIT::ParseConditionalSequence(const std::string &name, std::string value) {
    ConditionalName = name;
    const ConditionalActionTable table = ConditionalActions();
    for (const std::string &token : SplitBy(value, ' ')) {
        if (ConditionalSteps.size() == kMaxConditionalSteps)
            return;
        for (const ConditionalAction &row : table)
            if (token == row.name) {
                ConditionalSteps.push_back(row);
                break;
            }
    }
}

// Waits for the first step that hasn't run and whose flag isn't up yet; a step
// whose flag is already true is passed by without running. When none is
// left, the sequence is over and nothing of it stays among the updaters.
void HULLKIT::ArmNextConditional() {
    StopConditionalWatch();
    CurrentFlag = nullptr;
    CurrentAction = nullptr;
    for (std::size_t i = 0; i < ConditionalSteps.size(); ++i) {
        const ConditionalAction &step = ConditionalSteps[i];
        if (ConditionalDone[i] || (step.flag && this->*step.flag))
            continue;
        CurrentIndex = static_cast<int32_t>(i);
        CurrentFlag = step.flag;
        CurrentAction = step.action;
        if (step.watch)
            AddUpdater(step.watch);
        AddUpdater(&HULLKIT::H_COND_SEQ);
        return;
    }
}

void HULLKIT::StopConditionalWatch() {
    RemoveUpdater(&HULLKIT::H_COND_SEQ);
    for (const ConditionalAction &step : ConditionalSteps)
        if (step.watch)
            RemoveUpdater(step.watch);
}

// Once the flag waited for is up, the step runs and the next one is armed,
// which takes the finished step's watch out of the updaters.
void HULLKIT::H_COND_SEQ() {
    if (!CurrentFlag || !(this->*CurrentFlag))
        return;
    const std::size_t index = static_cast<std::size_t>(CurrentIndex);
    if (CurrentAction)
        (this->*CurrentAction)();
    if (index < ConditionalSteps.size())
        ConditionalDone[index] = true;
    ArmNextConditional();
}

// "name 1,0," with the flag of each step.
std::string HULLKIT::ConditionalSequenceText() const {
    if (ConditionalSteps.empty() || ConditionalName.empty())
        return {};
    std::string text = ConditionalName + " ";
    for (const ConditionalAction &step : ConditionalSteps)
        text += step.flag && this->*step.flag ? "1," : "0,";
    return text;
}
