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

std::string HULLKIT::UpdatersText() const {
    std::string text;
    for (VesselCall call : Updaters) {
        std::string name = UpdaterName(call);
        if (!name.empty())
            text += name + ", ";
    }
    return text;
}

std::string HULLKIT::EngineTimersText() const {
    std::string text;
    for (size_t i = 0; i < EngineEvents.size(); ++i) {
        std::string name = TimerName(EngineEvents[i]);
        if (!name.empty())
            text += name + ":" + Seconds(EngineTimes[i]) + ", ";
    }
    return text;
}

std::string HULLKIT::OneShotTimersText() const {
    std::string text;
    for (size_t i = 0; i < OneShotEvents.size(); ++i) {
        std::string name = TimerName(OneShotEvents[i]);
        if (!name.empty())
            text += name + ":" + Seconds(OneShotTimes[i] - oapiGetSimTime()) + ", ";
    }
    return text;
}

namespace {

std::string EventNames(const HULLKIT &self, const std::vector<VesselCall> &events) {
    std::string text;
    for (VesselCall call : events) {
        std::string name = self.TimerName(call);
        if (!name.empty())
            text += name + ", ";
    }
    return text;
}

} // namespace

std::string HULLKIT::SecondEventsText() const { return EventNames(*this, SecondEvents); }
std::string HULLKIT::MinuteEventsText() const { return EventNames(*this, MinuteEvents); }

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
