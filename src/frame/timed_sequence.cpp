// Timed sequences: steps that fire at their times on the sequence's own
// clock. The clock runs with the simulation while the sequence does, and
// stands still while the user flies a vessel that has an autopilot.
#include <cstdio>
#include <string>
#include <utility>

#include "config/text_ops.h"
#include "config/value_scan.h"
#include "frame/hullkit.h"

namespace {

// The host's debug line holds this many characters with its terminator.
constexpr std::size_t kDebugLineSize = 256;

// The clock display: the format's first "%s" takes the clock's text and "%%"
// is one percent sign; everything else is copied as it stands, so a format
// from the configuration never reaches printf.
void WriteClockLine(const std::string &format, const char *clock, char *out, std::size_t size) {
    std::size_t n = 0;
    const auto put = [&](char c) {
        if (n + 1 < size)
            out[n++] = c;
    };
    bool clockPlaced = false;
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char next = i + 1 < format.size() ? format[i + 1] : '\0';
        if (format[i] == '%' && next == 's' && !clockPlaced) {
            for (const char *c = clock; *c; ++c)
                put(*c);
            clockPlaced = true;
            ++i;
        } else if (format[i] == '%' && next == '%') {
            put('%');
            ++i;
        } else {
            put(format[i]);
        }
    }
    out[n] = '\0';
}

} // namespace

void HULLKIT::StartTimedSequence(const std::string &name, double clock) {
    std::string source;
    std::string value = FindSequence(name, source);
    if (value.empty())
        return;
    // The steps keep the name the sequence was started with, so that a reload
    // finds it the same way.
    ParseTimedSequence(name, std::move(value));
    TimedClock = clock;
    AddUpdater(&HULLKIT::H_TIMED_SEQ);
}

// Pairs of a time and a step name; a pair whose name isn't in the class's
// table is skipped, and a time without a name ends the list.
void HULLKIT::ParseTimedSequence(const std::string &name, std::string value) {
    TimedSteps.clear();
    TimedName = name;
    const std::vector<std::string> tokens = SplitBy(value, ' ');
    const TimedActionTable table = TimedActions();
    for (std::size_t i = 0; i + 1 < tokens.size(); i += 2) {
        double time = 0.0;
        ScanDouble(tokens[i], time);
        for (const TimedAction &row : table)
            if (tokens[i + 1] == row.name) {
                TimedSteps.push_back({false, time, row.action, row.name});
                break;
            }
    }
}

void HULLKIT::EndTimedSequence() {
    TimedClock = 0.0;
    RemoveUpdater(&HULLKIT::H_TIMED_SEQ);
    TimedSteps.clear();
}

// A step fires once the clock is strictly above its time; steps needn't stand
// in order of time. The sequence ends when its last entry has fired, whatever
// is still undone before it.
void HULLKIT::H_TIMED_SEQ() {
    if (HaveAutopilot && !AutopilotActive)
        return;
    TimedClock += SimStep;
    for (std::size_t i = 0; i < TimedSteps.size(); ++i) {
        if (TimedSteps[i].done)
            continue;
        if (TimedClock > TimedSteps[i].time) {
            const std::size_t size = TimedSteps.size();
            if (VesselCall action = TimedSteps[i].action)
                (this->*action)();
            // An action that changed the list ends the walk; its entry stays undone.
            if (TimedSteps.size() != size || TimedSteps.empty())
                return;
            TimedSteps[i].done = true;
            if (i + 1 == TimedSteps.size())
                EndTimedSequence();
        } else {
            if (ShowClock && !TimerFormat.empty()) {
                char clock[64];
                FormatMissionTime(TimedClock, clock, sizeof clock);
                WriteClockLine(TimerFormat, clock, oapiDebugString(), kDebugLineSize);
            }
            OnSequenceStep();
        }
    }
}

// "name, clock"; the done marks aren't kept: a reload fires at once every
// step whose time is below the clock.
std::string HULLKIT::TimedSequenceText() const {
    if (TimedSteps.empty() || TimedName.empty())
        return {};
    char clock[512];
    std::snprintf(clock, sizeof clock, "%f", TimedClock);
    return TimedName + ", " + clock;
}
