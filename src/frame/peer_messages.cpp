// The channel among framework vessels, and to the controller vessel.
#include <cmath>
#include <cstring>

#include "frame/hullkit.h"
#include "frame/random_draw.h"
#include "frame/vessel_report.h"

intptr_t HULLKIT::SendPeerMessage(OBJHANDLE target, int code, intptr_t argument) {
    if (!target || !oapiIsVessel(target))
        return 0;
    VESSEL *other = oapiGetVesselInterface(target);
    if (!IsHullkit(other))
        return 0;
    return static_cast<HULLKIT *>(other)->OnPeerMessage(GetHandle(), code, argument);
}

intptr_t HULLKIT::BroadcastPeerMessage(int code, intptr_t argument) {
    intptr_t answer = 0;
    for (DWORD i = 0; i < oapiGetVesselCount(); ++i)
        if (intptr_t a = SendPeerMessage(oapiGetVesselByIndex(static_cast<int>(i)), code, argument))
            answer = a;
    return answer;
}

void HULLKIT::FindController() {
    ControllerObject = nullptr;
    ControllerHullkit = nullptr;
    ControllerData = nullptr;
    ControllerObject = reinterpret_cast<OBJHANDLE>(BroadcastPeerMessage(1, 0));
    if (!ControllerObject)
        return;
    ControllerHullkit = static_cast<HULLKIT *>(oapiGetVesselInterface(ControllerObject));
    ControllerData = reinterpret_cast<void *>(SendPeerMessage(ControllerObject, 3, 0));
}

void HULLKIT::ReportEvent(int kind, const char *text, double latitude, double longitude, OBJHANDLE object) {
    if (!oapiIsVessel(ControllerObject))
        return;
    VesselReport report{};
    OBJHANDLE subject = object ? object : kind >= 5 ? GetHandle() : nullptr;
    report.object = subject ? static_cast<uint32_t>(reinterpret_cast<uintptr_t>(subject)) : 666u;
    if (text)
        std::strncpy(report.text, text, sizeof report.text - 1);
    report.kind = kind;
    if (latitude == 0.0 || longitude == 0.0) {
        double lng = 0.0, lat = 0.0, radius = 0.0;
        GetEquPos(lng, lat, radius);
        latitude = lat * 57.29577951308232;
        longitude = lng * 57.29577951308232;
    }
    report.latitude = latitude;
    report.longitude = longitude;
    report.altitude = GetAltitude(1);
    report.simTime = oapiGetSimTime();
    SendPeerMessage(ControllerObject, 13, reinterpret_cast<intptr_t>(&report));
}

void HULLKIT::ReportName() {
    if (!Attached)
        ReportEvent(5, GetName(), 0.0, 0.0, nullptr);
}

void HULLKIT::SetPlotColor(int code) {
    if (code == PlotColor)
        return;
    SendPeerMessage(ControllerObject, 16, code);
    PlotColor = code;
}

void HULLKIT::LookUpText(const char *name, std::string &buffer, bool force) {
    if (!buffer.empty() && !force)
        return;
    const char *answer = nullptr;
    if (ControllerObject)
        answer = reinterpret_cast<const char *>(
            SendPeerMessage(ControllerObject, 7, reinterpret_cast<intptr_t>(name)));
    buffer = answer ? answer : "";
}

double HULLKIT::LookUpDouble(const char *name) {
    if (!ControllerObject)
        return 0.0;
    auto *answer = reinterpret_cast<const double *>(
        SendPeerMessage(ControllerObject, 8, reinterpret_cast<intptr_t>(name)));
    return answer ? *answer : 0.0;
}

int HULLKIT::LookUpInt(const char *name) {
    if (!ControllerObject)
        return 0;
    return static_cast<int>(SendPeerMessage(ControllerObject, 9, reinterpret_cast<intptr_t>(name)));
}

bool HULLKIT::LookUpFlag(const char *name) { return LookUpInt(name) > 0; }

// The framework acts on message 12 (the sound load), 19 (an explosion
// nearby: a vessel with propellant goes up 1.5 to 4.5 s later) and 20 (the
// landed state of attached children, passed down the chain). Every answer
// is 0.
intptr_t HULLKIT::OnPeerMessage(OBJHANDLE, int code, intptr_t) {
    if (code == 12)
        LoadSounds();
    if (code == 19 && Destructible && (HasExplosiveLoad() || SelfDestructor)) {
        AddOneShot(RandomDraw(1.5, 3.0), &HULLKIT::H_DELAYED_EXPL);
        RaiseAlert();
    }
    if (code == 20)
        for (int32_t i = 0; i < ChildTable.Count(); ++i)
            if (CHILD_REC *rec = ChildTable.At(i); rec && !rec->AttachedName.empty() && rec->ChildHullkit) {
                MatchLandedState(*rec);
                SendPeerMessage(rec->ChildObject, 20, 0);
            }
    return 0;
}

double HULLKIT::OnPeerMessageDouble(OBJHANDLE, int, double) { return 0.0; }
