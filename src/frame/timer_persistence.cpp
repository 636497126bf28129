// The running updaters and timer lists as scenario texts, and back.
#include <cstdio>

#include "config/text_ops.h"
#include "config/value_scan.h"
#include "frame/hullkit.h"

namespace {

std::string Seconds(double value) {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%f", value);
    return buf;
}

// Looks a name up in a framework table, then in the stage's.
VesselCall CallNamed(const std::string &name, NameTable framework, NameTable stage) {
    for (NameTable table : {framework, stage})
        for (const NamedCall &row : table)
            if (name == row.name)
                return row.call;
    return nullptr;
}

} // namespace

namespace {

using NameOf = std::string (HULLKIT::*)(VesselCall) const;

// "NAME, " for each call with a name, and with `seconds` "NAME:S.SSSSSS, ";
// calls without a name are left out.
std::string ListText(const HULLKIT &self, NameOf nameOf, const std::vector<VesselCall> &calls,
                     const std::vector<double> *seconds = nullptr, double offset = 0.0) {
    std::string text;
    for (size_t i = 0; i < calls.size(); ++i) {
        std::string name = (self.*nameOf)(calls[i]);
        if (name.empty())
            continue;
        text += name;
        if (seconds)
            text += ":" + Seconds((*seconds)[i] - offset);
        text += ", ";
    }
    return text;
}

} // namespace

std::string HULLKIT::UpdatersText() const { return ListText(*this, &HULLKIT::UpdaterName, Updaters); }
std::string HULLKIT::EngineTimersText() const {
    return ListText(*this, &HULLKIT::TimerName, EngineEvents, &EngineTimes);
}
std::string HULLKIT::OneShotTimersText() const {
    return ListText(*this, &HULLKIT::TimerName, OneShotEvents, &OneShotTimes, oapiGetSimTime());
}
std::string HULLKIT::SecondEventsText() const { return ListText(*this, &HULLKIT::TimerName, SecondEvents); }
std::string HULLKIT::MinuteEventsText() const { return ListText(*this, &HULLKIT::TimerName, MinuteEvents); }

// The written commas become blanks in the split, so "A, B, " and "A B" read
// alike. Names that no table holds are passed over.
void HULLKIT::RestoreUpdaters(const std::string &text) {
    std::string value = text;
    for (const std::string &word : SplitBy(value, ' '))
        if (VesselCall call = CallNamed(word, FrameworkUpdaters(), StageUpdaters()))
            AddUpdater(call);
}

void HULLKIT::RestoreOneShots(const std::string &text, bool engine) {
    std::string value = text;
    for (std::string word : SplitBy(value, ' ')) {
        std::vector<std::string> parts = SplitBy(word, ':');
        if (parts.size() < 2)
            continue;
        double seconds = 0.0;
        ScanDouble(parts[1], seconds);
        VesselCall call = CallNamed(parts[0], FrameworkTimerEvents(), StageTimerEvents());
        if (!call)
            continue;
        if (engine)
            AddEngineOneShot(seconds, call);
        else
            AddOneShot(seconds, call);
    }
}

void HULLKIT::RestorePeriodicEvents(const std::string &text, bool minute) {
    std::string value = text;
    for (const std::string &word : SplitBy(value, ' ')) {
        VesselCall call = CallNamed(word, FrameworkTimerEvents(), StageTimerEvents());
        if (call && minute)
            AddMinuteEvent(call);
        else if (call)
            AddSecondEvent(call);
    }
}
