// Finding, creating and deleting the objects of the world.
#include <cstring>
#include <stdexcept>

#include "OrbiterAPI.h"
#include "VesselAPI.h"
#include "core/world.h"

using hullhost::World;

OBJHANDLE oapiGetObjectByName(const char *name) {
    if (!name)
        return nullptr;
    auto *o = World::Current().FindObject(name);
    return o ? o->Handle() : nullptr;
}

OBJHANDLE oapiGetVesselByName(const char *name) {
    if (!name)
        return nullptr;
    auto *v = World::Current().FindVessel(name);
    return v ? v->Handle() : nullptr;
}

OBJHANDLE oapiGetGbodyByName(const char *name) {
    if (!name)
        return nullptr;
    auto *b = World::Current().FindBody(name);
    return b ? b->Handle() : nullptr;
}

DWORD oapiGetVesselCount() { return static_cast<DWORD>(World::Current().Vessels().size()); }

OBJHANDLE oapiGetVesselByIndex(int index) {
    auto &vessels = World::Current().Vessels();
    if (index < 0 || static_cast<size_t>(index) >= vessels.size())
        return nullptr;
    return vessels[static_cast<size_t>(index)]->Handle();
}

bool oapiIsVessel(OBJHANDLE h) { return World::Current().IsVessel(h); }

VESSEL *oapiGetVesselInterface(OBJHANDLE h) {
    if (!World::Current().IsVessel(h))
        return nullptr;
    return hullhost::ToVessel(h)->iface;
}

void oapiGetObjectName(OBJHANDLE h, char *name, int n) {
    if (!name || n <= 0)
        return;
    name[0] = '\0';
    if (!World::Current().IsObject(h))
        return;
    std::strncat(name, reinterpret_cast<hullhost::Object *>(h)->Name().c_str(), static_cast<size_t>(n - 1));
}

OBJHANDLE oapiGetFocusObject() {
    auto *f = World::Current().focus;
    return f ? f->Handle() : nullptr;
}

OBJHANDLE oapiSetFocusObject(OBJHANDLE h) {
    World &w = World::Current();
    OBJHANDLE old = oapiGetFocusObject();
    if (w.IsVessel(h))
        w.SetFocus(hullhost::ToVessel(h));
    return old;
}

VESSEL *oapiGetFocusInterface() {
    auto *f = World::Current().focus;
    return f ? f->iface : nullptr;
}

namespace {

// Any status the world accepts: a VESSELSTATUS or a VESSELSTATUS2.
template <class Status> OBJHANDLE Create(const char *name, const char *classname, const Status &st) {
    World &w = World::Current();
    if (!name || !classname || w.FindObject(name))
        return nullptr;
    try {
        return w.CreateVessel(name, classname, st).Handle();
    } catch (const std::runtime_error &e) {
        w.WriteLog(std::string("oapiCreateVessel: ") + e.what());
        return nullptr;
    }
}

} // namespace

// Takes a VESSELSTATUS2 (version 2).
OBJHANDLE oapiCreateVesselEx(const char *name, const char *classname, const void *status) {
    const auto *st = static_cast<const VESSELSTATUS2 *>(status);
    if (!st || st->version != 2)
        return nullptr;
    return Create(name, classname, *st);
}

OBJHANDLE oapiCreateVessel(const char *name, const char *classname, const VESSELSTATUS &status) {
    return Create(name, classname, status);
}

bool oapiDeleteVessel(OBJHANDLE h, OBJHANDLE) {
    World &w = World::Current();
    if (!w.IsVessel(h))
        return false;
    w.RequestDelete(*hullhost::ToVessel(h));
    return true;
}
