// The switch between manual control and the autopilot.
#include "frame/hullkit.h"

void HULLKIT::ToggleControlMode() {
    PrepareControlToggle();
    if (!AutopilotActive) {
        if (!AutopilotBlockText.empty()) {
            ShowMessage(AutopilotBlockText.c_str());
            return;
        }
        ShowMessage("Manual controls disabled. To enable, use M key");
        EngageAutopilot();
        return;
    }
    if (!ManualBlockText.empty()) {
        ShowMessage(ManualBlockText.c_str());
        return;
    }
    ShowMessage("Manual controls enabled. To return to autopilot, use M key");
    EngageManual();
}

void HULLKIT::PrepareControlToggle() {
    ManualBlockText.clear();
    AutopilotBlockText.clear();
    // A vessel on a carrier keeps its mode until it is free.
    if (Attached)
        ManualBlockText = AutopilotBlockText = "Manual/Autopilot controls can't be toggled until separation!";
}

void HULLKIT::EngageAutopilot() {
    AutopilotActive = true;
    for (int mode = 1; mode <= 7; ++mode)
        DeactivateNavmode(mode);
    ArmNextConditional();
    OnAutopilotThrottle();
    OnAutopilotEngaged();
}

void HULLKIT::EngageManual() {
    AutopilotActive = false;
    StopConditionalWatch();
    // A running main engine is left alone: the vessel decides in OnManualControl.
    StopThrusterGroups("Main");
    OnManualControl();
}

bool HULLKIT::ManualRefused() {
    ShowMessage("Manual controls are disabled. To enable, use M key.");
    return false;
}

bool HULLKIT::ManualRefusedAttached() {
    ShowMessage("Manual controls are disabled until separated from carrier.");
    return false;
}

void HULLKIT::StopThrusterGroups(const std::string &except) {
    for (int32_t i = 0; i < ThrusterGroupTable.Count(); ++i)
        if (THRUSTERGROUP_REC *group = ThrusterGroupTable.At(i);
            group && group->handle && group->name != except)
            SetThrusterGroupLevel(group->handle, 0.0);
}
