// What the stage throws off, always in one order: the fairing, the pair of
// ullage motor blocks (SOZ), then the payloads, the highest number first; and
// the vent of the residual propellant after the last payload. Each element
// is spawned as a vessel of its own, hung on its point, and released 0.2 s
// later.
#include <string>

#include "stage/korvan.h"

namespace {

// A repeated request inside the 0.2 s between spawn and release finds the
// element already hanging on its point and makes no second vessel.
bool Spawned(Korvan &k, const char *record) {
    const CHILD_REC *rec = k.ChildTable.Find(record);
    return rec && !rec->AttachedName.empty();
}

void SetGroup(Korvan &k, const char *group, double level) {
    if (const THRUSTERGROUP_REC *g = k.ThrusterGroupTable.Find(group); g && g->handle)
        k.SetThrusterGroupLevel(g->handle, level);
}

} // namespace

void Korvan::K_DROP_FAIRING_START() {
    if (fairingDropped || Spawned(*this, "Fairing"))
        return;
    CreateChildVessel("Generic", "FairingKMidK", "Fairing", this, this, "Fairing");
    AddOneShot(0.2, static_cast<VesselCall>(&Korvan::K_DROP_FAIRING));
    SetAngularVel(_V(0, 0, 0)); // the stage stops turning for the drop
}

void Korvan::K_DROP_FAIRING() {
    HideMesh("Fairing");
    if (CHILD_REC *rec = ChildTable.Find("Fairing"))
        SeparateChild(*rec, SeparationTable.Find("sepFairing"), false, false, false, true);
    SetThrusterGroupLevel(groupFwd, 1.0); // the ullage motors push the stage clear
    fairingDropped = true;
    AddOneShot(5.0, static_cast<VesselCall>(&Korvan::K_DROP_FAIRING_STOP));
    DryMass -= CfgNumber("MidFairingMass");
    UpdateCompositeMass();
}

void Korvan::K_DROP_FAIRING_STOP() {
    SetThrusterGroupLevel(groupFwd, 0.0);
    SetAngularVel(_V(0, 0, 0));
}

void Korvan::DropSoz() {
    if (sozDropped || Spawned(*this, "SOZL"))
        return;
    CreateChildVessel("Generic", "SOZL", "SOZL", this, this, "SOZL");
    CreateChildVessel("Generic", "SOZR", "SOZR", this, this, "SOZR");
    AddOneShot(0.2, static_cast<VesselCall>(&Korvan::K_DROP_SOZ));
}

void Korvan::K_DROP_SOZ() {
    for (const char *side : {"SOZL", "SOZR"})
        if (CHILD_REC *rec = ChildTable.Find(side))
            SeparateChild(*rec, SeparationTable.Find(std::string("sep") + side), false, false, false, true);
    HideMesh("SOZL");
    HideMesh("SOZR");
    // The attitude and ullage propellant leaves with the blocks.
    if (rcsTank)
        SetPropellantMass(rcsTank, 0.0);
    sozDropped = true;
    DryMass -= CfgNumber("EmptySOZMass");
    UpdateCompositeMass();
}

void Korvan::JettisonNext() {
    if (!fairingDropped) {
        K_DROP_FAIRING_START();
        return;
    }
    if (!sozDropped) {
        DropSoz();
        return;
    }
    // The table's size bounds the payload numbers; numbers without a record are passed over.
    for (int32_t n = ChildTable.Count(); n >= 1; --n) {
        const std::string number = std::to_string(n);
        CHILD_REC *rec = ChildTable.Find("Payload" + number);
        if (rec && !rec->AttachedName.empty()) {
            SeparateAndVent(*rec, SeparationTable.Find("sepPayload" + number));
            return;
        }
    }
    ShowMessage("Nothing more to separate!");
}

void Korvan::SeparateAndVent(CHILD_REC &child, SEPARATION_REC *sep) {
    SeparateChild(child, sep, true, false, false, true);
    for (int32_t i = 0; i < ChildTable.Count(); ++i)
        if (const CHILD_REC *rec = ChildTable.At(i); rec && !rec->AttachedName.empty())
            return;
    AddOneShot(5.0, static_cast<VesselCall>(&Korvan::K_VENT_START));
    if (AutoSwitchFocus)
        oapiSetFocusObject(child.ChildObject);
}

void Korvan::K_VENT_START() {
    SetGroup(*this, "Vent", 1.0);
    AddOneShot(7.0, static_cast<VesselCall>(&Korvan::K_VENT_STOP));
}

void Korvan::K_VENT_STOP() { SetGroup(*this, "Vent", 0.0); }

void Korvan::OnDetached() {
    HULLKIT::OnDetached();
    AddOneShot(5.0, static_cast<VesselCall>(&Korvan::K_DROP_FAIRING_START));
    program->StartNextStep();
    AddUpdater(static_cast<VesselCall>(&Korvan::K_FLIGHT));
}
