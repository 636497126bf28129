// The main engine: ullage, ignition with its firing count, shutdown, the
// scheduled ignition failure, and the gimbal.
#include <cmath>
#include <cstdio>

#include "frame/random_draw.h"
#include "stage/korvan.h"

namespace {

constexpr double kMinMainPropellant = 0.5;   // [kg] below which the main tank counts as empty
constexpr double kMinUllagePropellant = 5.1; // [kg] of RCS propellant an ullage needs

} // namespace

void Korvan::IgniteMain() {
    if (mainRunning)
        return;
    if (ignitionsUsed == maxIgnitions) {
        ShowMessage("Ignitions limit for main engine is reached!");
        return;
    }
    if (ullageInProgress)
        return;
    // A stage configured without the engine's tanks or groups can't start it.
    if (!MainTank || !rcsTank || !groupMain || !groupFwd) {
        ShowMessage("Main engine ignition is not possible: the stage has no main engine!");
        return;
    }
    if (GetPropellantMass(MainTank) < kMinMainPropellant) {
        ShowMessage("Main tank depleted!");
        return;
    }
    if (sozDropped) {
        ShowMessage("Main engine ignition is not possible without SOZ!");
        return;
    }
    if (GetPropellantMass(rcsTank) < kMinUllagePropellant) {
        ShowMessage("Not enough ullage fuel for main engine ignition!");
        return;
    }
    if (GetThrusterGroupLevel(groupMain) > 0.0) {
        ShowMessage("Main engine firing is already in progress.");
        return;
    }
    ullageLeft = ullageTime;
    ullageInProgress = true;
    AddUpdater(static_cast<VesselCall>(&Korvan::K_IGNITE));
    if (HasFocus) {
        char text[64];
        std::snprintf(text, sizeof text, "Ullage started. Ignition in %0.0lf sec", ullageLeft);
        ShowMessage(text);
    }
}

void Korvan::K_IGNITE() {
    ullageLeft -= SimStep;
    // The ullage motors run from the first step of the countdown to its last.
    SetThrusterGroupLevel(groupFwd, 1.0);
    if (ullageLeft < 0.0)
        Ignite();
}

void Korvan::Ignite() {
    ullageInProgress = false;
    RemoveUpdater(static_cast<VesselCall>(&Korvan::K_IGNITE));
    oapiDebugString()[0] = '\0';
    DropTimeAccel();
    SetThrusterGroupLevel(groupFwd, 0.0);
    ++ignitionsUsed;
    // A failing ignition spends its firing all the same.
    if (ignitionsUsed - 1 >= ignFailAt) {
        FailIgnition();
        return;
    }
    SetThrusterGroupLevel(groupMain, 1.0);
    // The last burn of the program leaves the SOZ behind: no firing follows.
    if (AutopilotActive && program->CountBurnsLeft() == 1)
        DropSoz();
    if (Attached && ParentHullkit)
        ParentHullkit->OnPeerMessage(GetHandle(), 19, 0);
}

void Korvan::ShutdownMain() {
    if ((!groupMain || GetThrusterGroupLevel(groupMain) == 0.0) && !ullageInProgress)
        return;
    for (int mode = 1; mode <= 7; ++mode)
        DeactivateNavmode(mode);
    ullageInProgress = false;
    RemoveUpdater(static_cast<VesselCall>(&Korvan::K_IGNITE));
    StopThrusterGroups();
    oapiDebugString()[0] = '\0';
    if (MainEngineFailed) {
        ShowMessage("Main engine ignition failure!");
    } else if (ChildTable.Find("SOZL") && sozDropped) {
        ShowMessage("Main engine shutdown"); // without the SOZ no firing follows
    } else {
        char text[64];
        std::snprintf(text, sizeof text, "Main engine shutdown. %d engine firings left.",
                      maxIgnitions - ignitionsUsed);
        ShowMessage(text);
    }
}

void Korvan::FailIgnition() {
    StopThrusterGroups();
    MainEngineFailed = true;
    if (AutopilotActive)
        ToggleControlMode();
    ShowMessage("Ignition failure detected!");
    if (prematureSep)
        DropSoz();
}

void Korvan::OnFailure() {
    for (DWORD i = 0; i < AttachmentCount(false); ++i)
        SendPeerMessage(CarriedVessel(i), 0, 13); // only framework vessels hear it
    switch (FailureKind) {
    case 2: // the engine
        if (AutopilotActive)
            ToggleControlMode();
        return;
    case 3: // the ignition
    case 5: // something else, which takes the SOZ along at the failing ignition
        prematureSep = FailureKind == 5;
        if (ignFailAt == 1000) {
            // Two draws, so that the failure tends to come early.
            const int burns = program->CountBurnsLeft();
            const double r1 = Rand15() / 32767.0, r2 = Rand15() / 32767.0;
            const int a = static_cast<int>(r1 * burns);
            ignFailAt = static_cast<int32_t>(r2 * a);
        }
        if (ignFailAt == 0)
            FailIgnition();
        else
            ShowMessage(""); // hidden until the ignition it strikes
        return;
    default:
        HULLKIT::OnFailure();
    }
}

void Korvan::UpdateMainGimbal(ANIM_CTRL_REC *control) {
    if (!control || (control != pitchControl && control != yawControl) || !mainThruster)
        return;
    const auto angle = [this](ANIM_CTRL_REC *c) {
        const ANIM_REC *anim = c ? AnimTable.Find(c->anim) : nullptr;
        return anim ? c->state * anim->deg * 0.017453292519943295 : 0.0;
    };
    // The thrust line deflects by about half of the controls' angle.
    const double y = -std::sin(angle(pitchControl)) / 2.0;
    const double x = -std::sin(angle(yawControl)) / 2.0;
    SetThrusterDir(mainThruster, _V(x, y, std::sqrt(1.0 - x * x - y * y)));
}

void Korvan::OnControllerMoved(ANIM_CTRL_REC *controller) { UpdateMainGimbal(controller); }
