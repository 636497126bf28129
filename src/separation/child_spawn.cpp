// Vessels made at run time: an element about to be dropped is spawned as a
// vessel of its own and hung on its carrier's point at once.
#include <cstdio>

#include "frame/hullkit.h"

HULLKIT *HULLKIT::CreateChildVessel(const char *className, const char *variant, const char *suffix,
                                    HULLKIT *source, HULLKIT *carrier, const std::string &recordName) {
    VESSELSTATUS status{};
    GetStatus(status);
    // Far away until the attachment brings it to its carrier.
    if (carrier)
        status.rpos.x += 1000000000.0;
    char classPath[256], name[256];
    std::snprintf(classPath, sizeof classPath, "%s\\%s", ClassFolder.c_str(), className);
    std::snprintf(name, sizeof name, "%s-%s", GetName(), suffix);
    SendPeerMessage(ControllerObject, 10, reinterpret_cast<intptr_t>(name));
    OBJHANDLE object = oapiCreateVessel(name, classPath, status);
    VESSEL *created = object ? oapiGetVesselInterface(object) : nullptr;
    if (!IsHullkit(created))
        return nullptr; // not a class of this framework: it finished its creation itself
    auto *child = static_cast<HULLKIT *>(created);
    if (variant && *variant)
        child->PendingLines.push_back(std::string("SUBTYPE ") + variant);
    if (source) {
        source->AnimCtrlTable.WriteResMods(nullptr, &child->PendingLines);
        source->TextureTable.WriteResourceLines(nullptr, &child->PendingLines);
        source->WriteMeshTextures(nullptr, &child->PendingLines);
    }
    child->FinishDeferredCreation();
    if (!carrier)
        return child;
    CHILD_REC *rec = carrier->ChildTable.Find(recordName);
    if (!rec)
        return child;
    rec->AttachedName = name;
    carrier->AttachChildRec(*rec);
    return child;
}

void HULLKIT::FinishDeferredCreation() {
    // The host's status block of a scenario read: filled, then thrown away.
    VESSELSTATUS2 discarded{};
    discarded.version = 2;
    FirstPass(&discarded);
    LoadConfiguration();
    ApplyConfiguration();
    if (ControllerObject)
        LoadSounds();
}
