// The controller's side of the peer messages: what it answers, and what it
// keeps of what the vessels tell it.
#include <cstring>
#include <string_view>

#include "HullsimAPI.h"
#include "config/text_ops.h"
#include "controller/fleet_controller.h"
#include "frame/vessel_report.h"

namespace {

// How long the controller follows one alert when its vessel doesn't crash [s].
constexpr double kAlertHold = 10.0;

// A name text from another vessel, read no further than any configuration
// line could reach.
std::string_view NameText(const char *text) {
    return text ? std::string_view(text, strnlen(text, kMaxLineLength + 1)) : std::string_view();
}

std::string VesselName(OBJHANDLE vessel) {
    char name[256];
    oapiGetObjectName(vessel, name, sizeof name);
    return name;
}

} // namespace

intptr_t FleetController::OnPeerMessage(OBJHANDLE sender, int code, intptr_t argument) {
    const char *name = reinterpret_cast<const char *>(argument);
    switch (code) {
    case 1:
        return reinterpret_cast<intptr_t>(GetHandle());
    case 2:
        if (sender == alertVessel)
            block.alertBusy = 0;
        Record(FleetEventKind::Crash, sender, argument);
        return 0;
    case 3:
        return reinterpret_cast<intptr_t>(&block);
    case 4:
        OnAlert(sender);
        return 0;
    case 6:
        return keepTimeAccel ? 1 : 0;
    case 7:
        return reinterpret_cast<intptr_t>(TextFor(sender, name));
    case 8:
        return reinterpret_cast<intptr_t>(DoubleFor(sender, name));
    case 9:
        return IntegerFor(sender, name);
    case 10:
        Record(FleetEventKind::Created, sender, argument);
        return 0;
    case 13:
        Record(FleetEventKind::Report, sender, argument);
        return 0;
    case 15:
        Record(FleetEventKind::Impact, sender, argument);
        return 0;
    case 16:
        Record(FleetEventKind::PlotColour, sender, argument);
        return 0;
    case 12:
        // A vessel's cockpit asks for the sounds: every framework vessel
        // loads the common table the controller has gathered.
        for (DWORD i = 0; i < oapiGetVesselCount(); ++i)
            if (OBJHANDLE other = oapiGetVesselByIndex(static_cast<int>(i)); other != GetHandle())
                SendPeerMessage(other, 12, 0);
        return HULLKIT::OnPeerMessage(sender, code, argument);
    default:
        return HULLKIT::OnPeerMessage(sender, code, argument);
    }
}

void FleetController::Record(FleetEventKind kind, OBJHANDLE sender, intptr_t argument) {
    FleetEvent event;
    event.kind = kind;
    event.simTime = oapiGetSimTime();
    event.vessel = VesselName(sender);
    switch (kind) {
    case FleetEventKind::Created:
        event.text = event.vessel;
        event.vessel = NameText(reinterpret_cast<const char *>(argument));
        break;
    case FleetEventKind::PlotColour:
        event.value = static_cast<int32_t>(argument);
        break;
    case FleetEventKind::Report: {
        if (!argument)
            return;
        VesselReport report;
        std::memcpy(&report, reinterpret_cast<const void *>(argument), sizeof report);
        event.simTime = report.simTime;
        event.text.assign(report.text, strnlen(report.text, sizeof report.text));
        event.value = report.kind;
        event.object = report.object;
        event.latitude = report.latitude;
        event.longitude = report.longitude;
        event.altitude = report.altitude;
        hullsimReport(sender, report.kind, event.text.c_str(), report.latitude, report.longitude,
                      report.altitude);
        break;
    }
    default:
        break;
    }
    events.push_back(std::move(event));
}

void FleetController::OnAlert(OBJHANDLE sender) {
    Record(FleetEventKind::Alert, sender, 0);
    if (!block.alertsAllowed)
        return;
    block.alertBusy = 1;
    alertVessel = sender;
    alertUntil = oapiGetSimTime() + kAlertHold;
}

template <class T>
const T *FleetController::Find(const std::map<std::string, T, std::less<>> &table, OBJHANDLE sender,
                               const char *name) const {
    const std::string_view key = NameText(name);
    if (key.empty())
        return nullptr;
    if (const std::string own = VesselName(sender); !own.empty())
        if (auto it = table.find(own + ':' + std::string(key)); it != table.end())
            return &it->second;
    auto any = table.find(key);
    return any != table.end() ? &any->second : nullptr;
}

const char *FleetController::TextFor(OBJHANDLE sender, const char *name) const {
    const char *const *answer = Find(texts, sender, name);
    return answer ? *answer : nullptr;
}

const double *FleetController::DoubleFor(OBJHANDLE sender, const char *name) const {
    const double *const *answer = Find(doubles, sender, name);
    return answer ? *answer : nullptr;
}

int FleetController::IntegerFor(OBJHANDLE sender, const char *name) const {
    const int *answer = Find(integers, sender, name);
    return answer ? *answer : 0;
}
