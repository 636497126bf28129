// Vessels carried on the points of the child records, and the carried
// vessel's side of that bond.
#include <cstdio>

#include "config/text_ops.h"
#include "frame/hullkit.h"

void HULLKIT::ReadChildLine(CHILD_REC &rec, const std::string &line) {
    std::string text = line;
    const std::vector<std::string> tokens = SplitBy(text, ' ');
    if (tokens.size() < 2 || rec.scnVar.empty() || tokens[0] != rec.scnVar)
        return;
    rec.AttachedName = tokens[1];
    // Geometry comes in whole triples only.
    VECTOR3 *targets[] = {&rec.pos, &rec.dir, &rec.rot};
    for (size_t t = 0; t < 3 && tokens.size() >= 3 * t + 5; ++t) {
        double *xyz[] = {&targets[t]->x, &targets[t]->y, &targets[t]->z};
        for (size_t k = 0; k < 3; ++k)
            std::sscanf(tokens[3 * t + 2 + k].c_str(), "%lf", xyz[k]);
    }
}

void HULLKIT::AttachChildRec(CHILD_REC &rec) {
    if (rec.AttachedName.empty())
        for (const std::string &line : PendingLines)
            ReadChildLine(rec, line);
    // A record that held a vessel before keeps its point for the next one.
    if (!rec.ParentAttachment)
        rec.ParentAttachment = CreateAttachment(false, rec.pos, rec.dir, rec.rot, rec.name.c_str());
    if (rec.AttachedName.empty())
        return;
    rec.ChildObject = oapiGetObjectByName(rec.AttachedName.c_str());
    if (!rec.ChildObject || !oapiIsVessel(rec.ChildObject)) {
        rec.AttachedName.clear(); // a vessel the simulation doesn't know
        return;
    }
    rec.ChildVessel = oapiGetVesselInterface(rec.ChildObject);
    rec.ChildHullkit = IsHullkit(rec.ChildVessel) ? static_cast<HULLKIT *>(rec.ChildVessel) : nullptr;
    // The child's own point to a parent, or a plain one at its centre.
    ATTACHMENTHANDLE childPoint = rec.ChildVessel->AttachmentCount(true) == 0
                                      ? rec.ChildVessel->CreateAttachment(true, _V(0, 0, 0), _V(0, 0, -1),
                                                                          _V(1, 0, 0), rec.name.c_str())
                                      : rec.ChildVessel->GetAttachmentHandle(true, 0);
    AttachChild(rec.ChildObject, rec.ParentAttachment, childPoint);
    if (rec.ChildHullkit) {
        rec.ChildHullkit->AttachedAs = rec.name;
        rec.ChildHullkit->OnAttached();
    }
    UpdateCompositeMass();
    if (GetFlightStatus() == 1 && rec.ChildHullkit) {
        MatchLandedState(rec);
        SendPeerMessage(rec.ChildObject, 20, 0);
    }
}

void HULLKIT::DetachChildRec(CHILD_REC &rec, double velocity) {
    if (rec.AttachedName.empty())
        return;
    DetachChild(rec.ParentAttachment, velocity);
    rec.AttachedName.clear();
    if (IsHullkit(rec.ChildVessel))
        static_cast<HULLKIT *>(rec.ChildVessel)->OnDetached();
}

VESSELSTATUS2 HULLKIT::LandedStatusHere() {
    VESSELSTATUS2 status{};
    status.version = 2;
    status.status = 1;
    status.rbody = GetSurfaceRef();
    double radius = 0.0;
    GetEquPos(status.surf_lng, status.surf_lat, radius);
    return status;
}

void HULLKIT::MatchLandedState(CHILD_REC &rec) {
    VESSELSTATUS2 status = LandedStatusHere();
    oapiGetHeading(GetHandle(), &status.surf_hdg);
    rec.ChildVessel->DefSetStateEx(&status);
}

void HULLKIT::OnAttached() {
    Attached = true;
    Landed = false;
    ParentObject = GetAttachmentStatus(GetAttachmentHandle(true, 0));
    ParentVessel = ParentObject ? oapiGetVesselInterface(ParentObject) : nullptr;
    ParentHullkit = IsHullkit(ParentVessel) ? static_cast<HULLKIT *>(ParentVessel) : nullptr;
    UpdateAwareness();
}

void HULLKIT::OnDetached() {
    AwareWhileAttached = Attached = false;
    SendPeerMessage(ControllerObject, 14, 0);
    // Two equal points put the configured touchdown points back.
    SetTouchdownPts(TouchdownPts[0], TouchdownPts[0], TouchdownPts[0]);
    AddOneShot(1.0, &HULLKIT::H_AWARENESS);
}

void HULLKIT::OnChildLost(OBJHANDLE child) {
    for (int32_t i = 0; i < ChildTable.Count(); ++i)
        if (CHILD_REC *rec = ChildTable.At(i); rec && rec->ChildObject == child)
            DetachChildRec(*rec, 0.0);
}

void HULLKIT::KeepAwareWhileAttached() {
    AwareWhileAttached = true;
    UpdateAwareness();
}

void HULLKIT::WriteChildLines(FILEHANDLE scn) {
    const auto same = [](const VECTOR3 &a, const VECTOR3 &b) {
        return a.x == b.x && a.y == b.y && a.z == b.z;
    };
    char text[512];
    for (int32_t i = 0; i < ChildTable.Count(); ++i) {
        const CHILD_REC *rec = ChildTable.At(i);
        if (!rec || rec->AttachedName.empty() || rec->scnVar.empty())
            continue;
        if (same(rec->pos, rec->ConfigPos) && same(rec->dir, rec->ConfigDir) &&
            same(rec->rot, rec->ConfigRot)) {
            oapiWriteScenario_string(scn, rec->scnVar.c_str(), rec->AttachedName.c_str());
            continue;
        }
        const VECTOR3 &p = rec->pos, &d = rec->dir, &r = rec->rot;
        std::snprintf(text, sizeof text, "%s   %lf %lf %lf   %lf %lf %lf   %lf %lf %lf",
                      rec->AttachedName.c_str(), p.x, p.y, p.z, d.x, d.y, d.z, r.x, r.y, r.z);
        oapiWriteScenario_string(scn, rec->scnVar.c_str(), text);
    }
}
