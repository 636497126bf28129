// The one road by which a carried vessel leaves its carrier under power: a
// drawn release velocity and two drawn forces, a report to the controller,
// the detach, the mass, and the after-effects the caller asks for.
#include <cstdio>

#include "frame/hullkit.h"
#include "frame/random_draw.h"

VECTOR3 HULLKIT::RandomVector(const VECTOR3 &from, const VECTOR3 &span) {
    VECTOR3 v;
    v.z = RandomDraw(from.z, span.z);
    v.y = RandomDraw(from.y, span.y);
    v.x = RandomDraw(from.x, span.x);
    return v;
}

void HULLKIT::SeparateChild(CHILD_REC &child, SEPARATION_REC *sep, bool enableFocus, bool switchFocus,
                            bool igniteChild, bool pyroSound) {
    if (child.AttachedName.empty())
        return;
    double velocity = 0.0;
    VECTOR3 f1{0, 0, 0}, p1{0, 0, 0}, f2{0, 0, 0}, p2{0, 0, 0};
    if (sep) {
        velocity = RandomDraw(sep->vFrom, sep->vSpan);
        // A force acts for one step, which time acceleration lengthens.
        const double a = CurrentTimeAccel;
        f1 = RandomVector(sep->f1From / a, sep->f1Span / a);
        p1 = sep->f1Pos;
        f2 = RandomVector(sep->f2From / a, sep->f2Span / a);
        p2 = sep->f2Pos;
    }
    char text[300];
    std::snprintf(text, sizeof text, "Separation: %s", child.AttachedName.c_str());
    ReportEvent(6, text, 0.0, 0.0, nullptr);
    DetachChildRec(child, velocity);
    VESSEL *released = child.ChildVessel;
    released->AddForce(f1, p1);
    released->AddForce(f2, p2);
    UpdateCompositeMass();
    if (Attached && ParentHullkit)
        ParentHullkit->UpdateCompositeMass();
    if (pyroSound)
        AddOneShot(0.01, &HULLKIT::H_PYRO_SOUND);
    if (enableFocus)
        released->SetEnableFocus(true);
    if (switchFocus && AutoSwitchFocus && HasFocus)
        oapiSetFocusObject(child.ChildObject);
    if (igniteChild)
        released->SetThrusterGroupLevel(THGROUP_MAIN, 1.0);
    // A carrier flown by hand hands its load over to the user as well.
    if (HaveAutopilot && !AutopilotActive && IsHullkit(released)) {
        auto *hk = static_cast<HULLKIT *>(released);
        if (hk->HaveAutopilot)
            hk->EngageManual();
    }
}
