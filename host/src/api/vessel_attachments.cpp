// Attachment points, and vessels hung on them.
#include <algorithm>

#include "VesselAPI.h"
#include "core/handle_lookup.h"
#include "core/vessel.h"
#include "core/world.h"
#include "physics/flight_model.h"

using hullhost::Attachment;
using hullhost::Vessel;

namespace {

Attachment *Find(const Vessel &v, ATTACHMENTHANDLE h) { return hullhost::FindByHandle(v.attachments, h); }

void Release(Attachment &parentPoint) {
    if (Attachment *childPoint = parentPoint.counterpart) {
        childPoint->counterpart = nullptr;
        childPoint->attached = nullptr;
    }
    if (parentPoint.attached)
        parentPoint.attached->parent = nullptr;
    parentPoint.attached = nullptr;
    parentPoint.counterpart = nullptr;
}

} // namespace

ATTACHMENTHANDLE VESSEL::CreateAttachment(bool toparent, const VECTOR3 &pos, const VECTOR3 &dir,
                                          const VECTOR3 &rot, const char *id, bool loose) const {
    auto a = std::make_unique<Attachment>();
    a->owner = vessel;
    a->toParent = toparent;
    a->pos = pos;
    a->dir = unit(dir);
    a->rot = unit(rot);
    a->id = id ? id : "";
    a->loose = loose;
    vessel->attachments.push_back(std::move(a));
    return vessel->attachments.back()->Handle();
}

bool VESSEL::DelAttachment(ATTACHMENTHANDLE attachment) const {
    Attachment *a = Find(*vessel, attachment);
    if (!a)
        return false;
    if (a->toParent && a->counterpart)
        Release(*a->counterpart);
    else if (!a->toParent)
        Release(*a);
    std::erase_if(vessel->attachments, [a](auto &p) { return p.get() == a; });
    return true;
}

void VESSEL::SetAttachmentParams(ATTACHMENTHANDLE attachment, const VECTOR3 &pos, const VECTOR3 &dir,
                                 const VECTOR3 &rot) const {
    if (Attachment *a = Find(*vessel, attachment)) {
        a->pos = pos;
        a->dir = unit(dir);
        a->rot = unit(rot);
    }
}

void VESSEL::GetAttachmentParams(ATTACHMENTHANDLE attachment, VECTOR3 &pos, VECTOR3 &dir,
                                 VECTOR3 &rot) const {
    if (Attachment *a = Find(*vessel, attachment)) {
        pos = a->pos;
        dir = a->dir;
        rot = a->rot;
    }
}

const char *VESSEL::GetAttachmentId(ATTACHMENTHANDLE attachment) const {
    Attachment *a = Find(*vessel, attachment);
    return a ? a->id.c_str() : nullptr;
}

OBJHANDLE VESSEL::GetAttachmentStatus(ATTACHMENTHANDLE attachment) const {
    Attachment *a = Find(*vessel, attachment);
    if (!a || !a->counterpart)
        return nullptr;
    Vessel *other = a->toParent ? a->counterpart->owner : a->attached;
    return other ? other->Handle() : nullptr;
}

DWORD VESSEL::AttachmentCount(bool toparent) const {
    return static_cast<DWORD>(std::count_if(vessel->attachments.begin(), vessel->attachments.end(),
                                            [toparent](auto &a) { return a->toParent == toparent; }));
}

DWORD VESSEL::GetAttachmentIndex(ATTACHMENTHANDLE attachment) const {
    Attachment *a = Find(*vessel, attachment);
    if (!a)
        return static_cast<DWORD>(-1);
    DWORD index = 0;
    for (auto &b : vessel->attachments) {
        if (b.get() == a)
            return index;
        if (b->toParent == a->toParent)
            ++index;
    }
    return static_cast<DWORD>(-1);
}

ATTACHMENTHANDLE VESSEL::GetAttachmentHandle(bool toparent, DWORD i) const {
    for (auto &a : vessel->attachments)
        if (a->toParent == toparent && i-- == 0)
            return a->Handle();
    return nullptr;
}

// Hangs `child` on this vessel's point `attachment` by the child's to-parent
// point `child_attachment`. A child has one parent at a time.
bool VESSEL::AttachChild(OBJHANDLE child, ATTACHMENTHANDLE attachment,
                         ATTACHMENTHANDLE child_attachment) const {
    auto &world = hullhost::World::Current();
    if (!world.IsVessel(child))
        return false;
    Vessel *c = hullhost::ToVessel(child);
    Attachment *parentPoint = Find(*vessel, attachment);
    Attachment *childPoint = Find(*c, child_attachment);
    if (c == vessel || !parentPoint || parentPoint->toParent || !childPoint || !childPoint->toParent)
        return false;
    if (parentPoint->attached || c->parent)
        return false;
    parentPoint->attached = c;
    parentPoint->counterpart = childPoint;
    childPoint->attached = vessel;
    childPoint->counterpart = parentPoint;
    c->parent = vessel;
    c->landed = false;
    hullhost::physics::PlaceOnParent(*c);
    if (world.events)
        world.events->OnAttached(*vessel, *c, parentPoint->id);
    return true;
}

bool VESSEL::DetachChild(ATTACHMENTHANDLE attachment, double vel) const {
    Attachment *a = Find(*vessel, attachment);
    if (!a || a->toParent || !a->attached)
        return false;
    Vessel *child = a->attached;
    hullhost::physics::PlaceOnParent(*child);
    Release(*a);
    hullhost::physics::Detach(*child, *vessel, a->dir, vel);
    if (auto &world = hullhost::World::Current(); world.events)
        world.events->OnDetached(*vessel, *child, a->id, vel);
    return true;
}
