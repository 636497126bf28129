// The four timer lists: one-shot events by simulation time, one-shot events
// by seconds of burning main engine, and the once-per-second and
// once-per-ten-minutes lists. Each is served by an updater of its own.
#include <algorithm>
#include <stdexcept>

#include "frame/hullkit.h"

namespace {

[[noreturn]] void UnknownTimer() {
    oapiWriteLog("Unknown Timer Event!");
    throw std::logic_error("Unknown Timer Event!");
}

template <class List> bool Contains(const List &list, VesselCall call) {
    return std::find(list.begin(), list.end(), call) != list.end();
}

} // namespace

// An event is admitted to a list once: a name that no table holds is a
// programming error, and an event already in the list keeps its entry.
// True when the event was appended as the list's first entry.
bool HULLKIT::AdmitTimerEvent(std::vector<VesselCall> &list, VesselCall call) {
    if (TimerName(call).empty())
        UnknownTimer();
    if (Contains(list, call))
        return false;
    list.push_back(call);
    return true;
}

void HULLKIT::AddOneShot(double delay, VesselCall call) {
    if (!AdmitTimerEvent(OneShotEvents, call))
        return;
    OneShotTimes.push_back(oapiGetSimTime() + delay);
    if (OneShotEvents.size() == 1)
        AddUpdater(&HULLKIT::H_TIMER_1T);
}

void HULLKIT::AddEngineOneShot(double engineSeconds, VesselCall call) {
    if (!AdmitTimerEvent(EngineEvents, call))
        return;
    EngineTimes.push_back(engineSeconds);
    if (EngineEvents.size() == 1)
        AddUpdater(&HULLKIT::H_TIMER_1T_ME);
}

void HULLKIT::AddSecondEvent(VesselCall call) {
    if (AdmitTimerEvent(SecondEvents, call) && SecondEvents.size() == 1) {
        AddUpdater(&HULLKIT::H_TIMER_P1S);
        NextSecond = oapiGetSimTime() + 1.0;
    }
}

void HULLKIT::AddMinuteEvent(VesselCall call) {
    if (AdmitTimerEvent(MinuteEvents, call) && MinuteEvents.size() == 1) {
        AddUpdater(&HULLKIT::H_TIMER_P10M);
        NextMinute = oapiGetSimTime() + 600.0;
    }
}

void HULLKIT::RemoveSecondEvent(VesselCall call) {
    std::erase(SecondEvents, call);
    if (SecondEvents.empty())
        RemoveUpdater(&HULLKIT::H_TIMER_P1S);
}

void HULLKIT::RemoveMinuteEvent(VesselCall call) {
    std::erase(MinuteEvents, call);
    if (MinuteEvents.empty())
        RemoveUpdater(&HULLKIT::H_TIMER_P10M);
}

void HULLKIT::H_TIMER_1T() {
    for (size_t i = 0; i < OneShotTimes.size(); ++i) {
        if (SimTime < OneShotTimes[i])
            continue;
        VesselCall event = OneShotEvents[i];
        (this->*event)();
        // The call changed the list ahead of the index: the entry waits.
        if (i >= OneShotEvents.size() || OneShotEvents[i] != event)
            return;
        OneShotEvents.erase(OneShotEvents.begin() + static_cast<std::ptrdiff_t>(i));
        OneShotTimes.erase(OneShotTimes.begin() + static_cast<std::ptrdiff_t>(i));
        if (OneShotTimes.empty())
            RemoveUpdater(&HULLKIT::H_TIMER_1T);
    }
}

// These timers count seconds of burning main engine, at any throttle.
void HULLKIT::H_TIMER_1T_ME() {
    if (!(GetThrusterGroupLevel(THGROUP_MAIN) > 0.0))
        return;
    for (size_t i = 0; i < EngineTimes.size(); ++i) {
        EngineTimes[i] -= SimStep;
        if (EngineTimes[i] > 0.0)
            continue;
        VesselCall event = EngineEvents[i];
        (this->*event)();
        auto at = std::find(EngineEvents.begin(), EngineEvents.end(), event);
        if (at != EngineEvents.end()) {
            EngineTimes.erase(EngineTimes.begin() + (at - EngineEvents.begin()));
            EngineEvents.erase(at);
        }
        if (EngineTimes.empty())
            RemoveUpdater(&HULLKIT::H_TIMER_1T_ME);
    }
}

void HULLKIT::H_TIMER_P1S() {
    if (!(NextSecond < SimTime))
        return;
    for (size_t i = 0; i < SecondEvents.size(); ++i)
        (this->*SecondEvents[i])();
    NextSecond = SimTime + 1.0;
}

void HULLKIT::H_TIMER_P10M() {
    if (!(NextMinute < SimTime))
        return;
    for (size_t i = 0; i < MinuteEvents.size(); ++i)
        (this->*MinuteEvents[i])();
    NextMinute = SimTime + 600.0;
}
