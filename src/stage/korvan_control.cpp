// The stage's share of the keys, the control modes, the messages from its
// flight program, and what it shows.
#include <cmath>
#include <cstdio>

#include "stage/korvan.h"

int Korvan::clbkConsumeDirectKey(char *kstate) {
    if (HULLKIT::clbkConsumeDirectKey(kstate))
        return 1;
    // The engine can be lit and stopped by hand, never throttled.
    if (KEYDOWN(kstate, OAPI_KEY_ADD)) {
        IgniteMain();
        return 1;
    }
    if (KEYDOWN(kstate, OAPI_KEY_SUBTRACT) || KEYDOWN(kstate, OAPI_KEY_MULTIPLY)) {
        ShutdownMain();
        return 1;
    }
    return 0;
}

void Korvan::PrepareControlToggle() {
    HULLKIT::PrepareControlToggle();
    if (AutopilotBlockText.empty()) {
        if (program->Empty())
            AutopilotBlockText = "Cannot switch to autopilot: flight program is not set!";
        else if (program->Finished())
            AutopilotBlockText = "Cannot switch to autopilot after flight program completion!";
    }
    if (AutopilotBlockText.empty() && MainEngineFailed)
        AutopilotBlockText = "Cannot switch to autopilot: main engine failure!";
}

// The flight program lights the engine itself.
void Korvan::OnAutopilotThrottle() {}

intptr_t Korvan::OnPeerMessage(OBJHANDLE sender, int code, intptr_t argument) {
    switch (code) {
    case 688:
        AddUpdater(static_cast<VesselCall>(&Korvan::K_PGM_STEP));
        return 1;
    case 689:
        RemoveUpdater(static_cast<VesselCall>(&Korvan::K_PGM_STEP));
        return 1;
    case 690:
        IgniteMain();
        return 1;
    case 691:
        ShutdownMain();
        return 1;
    case 692:
        // The program's JETT step names the payload and its separation.
        // A step whose name matched no child separates nothing.
        if (const auto *step = reinterpret_cast<const ProgramStep *>(argument);
            step && !step->childName.empty())
            if (CHILD_REC *rec = ChildTable.Find(step->childName))
                SeparateAndVent(*rec, SeparationTable.Find(step->sepName));
        return 1;
    default:
        return HULLKIT::OnPeerMessage(sender, code, argument);
    }
}

bool Korvan::clbkDrawHUD(int mode, const HUDPAINTSPEC *hps, oapi::Sketchpad *skp) {
    HULLKIT::clbkDrawHUD(mode, hps, skp);
    if (!hps || !skp)
        return true;
    char text[64];
    const int length =
        std::snprintf(text, sizeof text, "RCS Fuel: %.1f", rcsTank ? GetPropellantMass(rcsTank) : 0.0);
    skp->SetTextColor(0x00FF00);
    skp->Text(static_cast<int>(std::trunc(0.02 * hps->W)), static_cast<int>(std::trunc(0.23 * hps->H)), text,
              length);
    return true;
}

void Korvan::OnFocusLost(OBJHANDLE other) {
    HULLKIT::OnFocusLost(other);
    oapiDebugString()[0] = '\0'; // the program's display line
}
