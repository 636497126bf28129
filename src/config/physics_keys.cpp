// Physics: mass, inertia, rotation drag, surface friction and the two moment
// scales, as one positional list.
#include "config/number_lists.h"
#include "frame/hullkit.h"

void HULLKIT::ReadPhysicsKeys() {
    const std::string &value = Cfg("Physics");
    if (value.empty())
        return;
    const PositionalNumbers list(value);
    if (list.Has(0)) {
        DryMass = list[0];
        SetEmptyMass(DryMass);
    }
    if (list.Has(1, 3)) {
        PMI = list.Vector(1);
        SetPMI(PMI);
    }
    if (list.Has(4, 3)) {
        RotDrag = list.Vector(4);
        SetRotDrag(RotDrag);
    }
    if (list.Has(7, 2))
        SetSurfaceFrictionCoeff(list[7], list[8]);
    if (list.Has(9))
        SetPitchMomentScale(list[9]);
    if (list.Has(10))
        SetBankMomentScale(list[10]);
}
