// The names under which updaters and timer events are registered and saved.
#include "frame/hullkit.h"

namespace {

const NamedCall kFrameworkUpdaters[] = {
    {"H_TIMER_1T", &HULLKIT::H_TIMER_1T},
    {"H_TIMER_1T_ME", &HULLKIT::H_TIMER_1T_ME},
    {"H_TIMER_P1S", &HULLKIT::H_TIMER_P1S},
    {"H_TIMER_P10M", &HULLKIT::H_TIMER_P10M},
    {"H_ANIM", &HULLKIT::H_ANIM},
    {"H_ATM_FLT", &HULLKIT::H_ATM_FLT},
    {"H_GROUND_WATCH", &HULLKIT::H_GROUND_WATCH},
    {"H_DEBUG_CAM", &HULLKIT::H_DEBUG_CAM},
    {"H_ME_WATCH", &HULLKIT::WatchMainEngine},
    {"H_CONTRAIL", &HULLKIT::H_CONTRAIL},
    {"H_FAIL_FIRE", &HULLKIT::H_FAIL_FIRE},
    {"H_COND_SEQ", &HULLKIT::H_COND_SEQ},
    {"H_TIMED_SEQ", &HULLKIT::H_TIMED_SEQ},
    {"H_VC", &HULLKIT::H_VC},
    {"P_WINDS", &HULLKIT::P_WINDS},
    {"H_MET", &HULLKIT::H_MET},
    {"H_PARK", &HULLKIT::H_PARK},
};

const NamedCall kFrameworkTimerEvents[] = {
    {"H_DUST", &HULLKIT::H_DUST},
    {"H_DELAYED_EXPL", &HULLKIT::H_DELAYED_EXPL},
    {"H_HIDE_ANNOT", &HULLKIT::H_HIDE_ANNOT},
    {"H_FAIL_ACT", &HULLKIT::H_FAIL_ACT},
    {"H_NO_ACT", &HULLKIT::H_NO_ACT},
    {"H_PYRO_SOUND", &HULLKIT::H_PYRO_SOUND},
    {"H_AWARENESS", &HULLKIT::H_AWARENESS},
    {"H_ATM_ENTER_EXIT", &HULLKIT::H_ATM_ENTER_EXIT},
    {"H_PLN_ENTER_EXIT", &HULLKIT::H_PLN_ENTER_EXIT},
    {"H_NO_TIME_ACCEL", &HULLKIT::H_NO_TIME_ACCEL},
    {"H_CHK_SPOTLIGHTS", &HULLKIT::H_CHK_SPOTLIGHTS},
    {"H_CHK_SPOTLT_DIST", &HULLKIT::H_CHK_SPOTLT_DIST},
    {"H_UNPARK", &HULLKIT::H_UNPARK},
};

NameTable stageUpdaters;
NameTable stageTimerEvents;

std::string NameIn(VesselCall call, NameTable first, NameTable second) {
    for (NameTable table : {first, second})
        for (const NamedCall &row : table)
            if (row.call == call)
                return row.name;
    return {};
}

} // namespace

NameTable HULLKIT::FrameworkUpdaters() { return kFrameworkUpdaters; }
NameTable HULLKIT::FrameworkTimerEvents() { return kFrameworkTimerEvents; }
NameTable HULLKIT::StageUpdaters() { return stageUpdaters; }
NameTable HULLKIT::StageTimerEvents() { return stageTimerEvents; }

void HULLKIT::RegisterStageTables(NameTable updaters, NameTable timerEvents) {
    stageUpdaters = updaters;
    stageTimerEvents = timerEvents;
}

std::string HULLKIT::UpdaterName(VesselCall call) const {
    return NameIn(call, FrameworkUpdaters(), StageUpdaters());
}

std::string HULLKIT::TimerName(VesselCall call) const {
    return NameIn(call, FrameworkTimerEvents(), StageTimerEvents());
}
