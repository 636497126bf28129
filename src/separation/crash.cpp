// The one road into a crash: a wreck, or an explosion that also reaches the
// vessels nearby. Either way the vessel is replaced by wreck vessels and
// deletes itself.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "frame/hullkit.h"
#include "frame/random_draw.h"

namespace {

// Vessels this close to an explosion are told of it [m].
constexpr double kBlastRadius = 200.0;
// The spread of the wrecks' velocities, shared among them [m/s].
constexpr double kWreckSpread = 200.0;
// The wrecks keep this share of the vessel's empty mass.
constexpr double kWreckMassShare = 0.95;

// A wreck's velocity against the vessel's [m/s] and its spin [rad/s], by axis.
struct WreckSpread {
    double velocity[3], rotation[3];
};

} // namespace

void HULLKIT::OnOverpressure() { OnCrash(false); }
void HULLKIT::OnHardLanding() { OnCrash(false); }
void HULLKIT::OnImpact() { OnCrash(true); }
void HULLKIT::DoWreck() { CrashRoutine(false, false); }
void HULLKIT::DoBlast(bool force) { CrashRoutine(true, force); }
void HULLKIT::H_DELAYED_EXPL() { OnCrash(false); }

void HULLKIT::OnCrash(bool force) {
    if (!HasExplosiveLoad() && !SelfDestructor && !force)
        DoWreck();
    else
        DoBlast(force);
}

bool HULLKIT::HasExplosiveLoad() {
    double propellant = 0.0;
    for (DWORD i = 0; i < GetPropellantCount(); ++i)
        propellant += GetPropellantMass(GetPropellantHandleByIndex(i));
    const double mass = GetMass();
    return mass > 0.0 && propellant / mass > 0.1;
}

void HULLKIT::CrashRoutine(bool blast, bool obliterated) {
    if (Crashed)
        return;
    Crashed = true;
    if (Attached && ParentHullkit) {
        ParentHullkit->OnChildLost(GetHandle());
        ParentHullkit->OnChildCrashed(GetHandle());
    }

    // The children are thrown off, and not gently.
    for (int32_t i = 0; i < ChildTable.Count(); ++i) {
        CHILD_REC *rec = ChildTable.At(i);
        if (!rec || rec->AttachedName.empty() || !GetAttachmentStatus(rec->ParentAttachment))
            continue;
        VESSEL *child = rec->ChildVessel;
        DetachChildRec(*rec, RandomDraw(5.0, 15.0));
        const VECTOR3 span{20000, 20000, 20000};
        child->AddForce(RandomVector({0, 0, 0}, span), _V(0, 0, 0));
        const VECTOR3 at = RandomVector({0, 0, 0}, {2, 2, 2});
        child->AddForce(RandomVector({0, 0, 0}, span), at);
    }

    ReportEvent(7, GetName(), 0.0, 0.0, GetHandle());
    SendPeerMessage(ControllerObject, 15, 0);
    PlayVesselSound(SoundTable.IndexOf("Engine"), 3, 255);
    if (blast) {
        if (!HasFocus)
            PlayVesselSound(SoundTable.IndexOf("BlastLong"), 0, 255);
        for (DWORD i = 0; i < oapiGetVesselCount(); ++i) {
            OBJHANDLE other = oapiGetVesselByIndex(static_cast<int>(i));
            if (other == GetHandle() || !oapiIsVessel(other))
                continue;
            VECTOR3 rel;
            GetRelativePos(other, rel);
            if (length(rel) <= kBlastRadius)
                SendPeerMessage(other, 19, 0);
        }
    }

    VESSELSTATUS state{};
    GetStatus(state);
    const int32_t n = WreckTable.Count();
    const bool single = GroundContact() || n < 2;
    const int32_t count = single ? 1 : n;

    const double limit = kWreckSpread / count;
    std::vector<WreckSpread> spreads(static_cast<size_t>(count));
    for (WreckSpread &s : spreads)
        for (int axis = 0; axis < 3; ++axis) {
            s.velocity[axis] = RandomDraw(-limit, 2.0 * limit);
            s.rotation[axis] = RandomDraw(-1.7453292519943295, 3.490658503988659);
        }
    int32_t focusIndex = 0;
    if (HasFocus && !single)
        focusIndex = std::min(static_cast<int32_t>(std::floor(RandomDraw(0.0, n))), n - 1);

    double lng = 0.0, lat = 0.0, radius = 0.0, heading = 0.0;
    GetEquPos(lng, lat, radius);
    oapiGetHeading(GetHandle(), &heading);
    VECTOR3 cs;
    GetCrossSections(cs);
    OBJHANDLE focusWreck = nullptr;
    for (int32_t i = 0; i < count; ++i) {
        char name[256];
        if (single)
            std::snprintf(name, sizeof name, "%s-Wreck", GetName());
        else
            std::snprintf(name, sizeof name, "%s-Wreck-%.2d", GetName(), i);
        SendPeerMessage(ControllerObject, 10, reinterpret_cast<intptr_t>(name));

        VESSELSTATUS wreckState = state;
        if (GroundContact()) {
            wreckState.status = 1;
            wreckState.vdata[0] = _V(lng, lat, heading);
        } else {
            wreckState.status = 0;
            const WreckSpread &s = spreads[static_cast<size_t>(i)];
            wreckState.rvel += _V(s.velocity[0], s.velocity[1], s.velocity[2]);
            wreckState.vrot = _V(s.rotation[0], s.rotation[1], s.rotation[2]);
        }
        OBJHANDLE object = oapiCreateVessel(name, WreckVesselName.c_str(), wreckState);
        VESSEL *created = object ? oapiGetVesselInterface(object) : nullptr;
        if (!created)
            continue;
        // What the wreck looks like.
        const WRECK_REC *piece = WreckTable.At(i);
        const std::string look = single && !WreckSingle.empty() ? WreckSingle
                                 : piece                        ? piece->file
                                                                : std::string();
        if (!obliterated)
            SendPeerMessage(object, 18, reinterpret_cast<intptr_t>(look.c_str()));
        created->SetSize(GetSize());
        created->SetEmptyMass(GetEmptyMass() / count * kWreckMassShare);
        created->SetCrossSections(cs / count);
        auto *wreck = IsHullkit(created) ? static_cast<HULLKIT *>(created) : nullptr;
        if (wreck) {
            wreck->FinishDeferredCreation();
            wreck->FocusEnabled = FocusEnabled;
        }
        created->SetEnableFocus(FocusEnabled);
        if (i == focusIndex)
            focusWreck = object;
        if (wreck && wreck->hideShadows && wreck->visual)
            wreck->SuppressShadows();
        if (blast)
            SendPeerMessage(object, 17, 0);
        created->DefSetState(&wreckState);
    }

    if (HasFocus) {
        oapiDebugString()[0] = '\0';
        if (focusWreck)
            oapiSetFocusObject(focusWreck);
    }
    SendPeerMessage(ControllerObject, 2, reinterpret_cast<intptr_t>(GetHandle()));
    oapiDeleteVessel(GetHandle(), nullptr);
}
