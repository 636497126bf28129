// The plain keys that describe the vessel as a whole, read in a fixed order:
// some keys act on what an earlier one set up.
#include "frame/hullkit.h"

void HULLKIT::ReadPlainKeys() {
    ReadPhysicsKeys();
    ReadGeometryKeys();
    ReadToParentKey();
    ReadReentryKey();
    ReadNavmodesKey();
    ReadPitchProfile();
    AttControlsName = "AttitudeControls";
    ReadAttitudeControls(AttControlsName, AttControls);
    ReadFlagKeys();
    ReadDockKeys();
    ReadPlotColorKey();
    ReadOtherKeys();
    ReadCrashData();
}
