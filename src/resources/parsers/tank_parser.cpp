// A tank: a propellant resource of the configured capacity, full at creation.
#include "frame/hullkit.h"

template <> void HkResources<TANK_REC>::ParseRecord(std::string name, TANK_REC *record) {
    record->name = name;
    record->fuel = GetDouble(name, "Fuel");
    record->handle = owner->CreatePropellantResource(record->fuel, -1.0, 1.0);
    owner->SetPropellantMass(record->handle, record->fuel);
}
