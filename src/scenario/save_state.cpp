// The vessel's scenario block: the host's state, then the running lists.
#include "frame/hullkit.h"

void HULLKIT::clbkSaveState(FILEHANDLE scn) {
    SaveDefaultState(scn);
    const std::pair<const char *, std::string> lists[] = {
        {"UPDATERS", UpdatersText()},        {"TIMERS_1T_ME", EngineTimersText()},
        {"TIMERS_1T", OneShotTimersText()},  {"TIMERS_P1S", SecondEventsText()},
        {"TIMERS_P10M", MinuteEventsText()},
    };
    for (const auto &[key, text] : lists)
        if (!text.empty())
            oapiWriteScenario_string(scn, key, text.c_str());
}
