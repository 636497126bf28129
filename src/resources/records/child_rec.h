// An attachment point for a carried vessel.
#pragma once

#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

class HULLKIT;

struct CHILD_REC {
    static constexpr char kTypeName[] = "CHILD_REC";

    std::string name;
    VECTOR3 pos{0, 0, 0};
    VECTOR3 dir{0, 0, 0};
    VECTOR3 rot{0, 0, 0};
    std::string scnVar;         // scenario key of this point
    VECTOR3 ConfigPos{0, 0, 0}; // the configured vectors, the reference for saving
    VECTOR3 ConfigDir{0, 0, 0};
    VECTOR3 ConfigRot{0, 0, 0};
    // The vessel on the point; empty while the point is free, and the one
    // test for occupation. The handles below keep their values after a
    // detach and count for nothing while the name is empty.
    std::string AttachedName;
    ATTACHMENTHANDLE ParentAttachment = nullptr; // the point in the host
    OBJHANDLE ChildObject = nullptr;
    VESSEL *ChildVessel = nullptr;
    HULLKIT *ChildHullkit = nullptr; // null when the vessel isn't a framework vessel
};

template <> void HkResources<CHILD_REC>::ParseRecord(std::string name, CHILD_REC *record);
