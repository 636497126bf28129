// The vessel classes' life and identity, and the callbacks' default behaviour.
#include "VesselAPI.h"
#include "core/vessel.h"

using hullhost::ToVessel;

VESSEL::VESSEL(OBJHANDLE hVessel, int fmodel)
    : vessel(ToVessel(hVessel)), flightmodel(static_cast<short>(fmodel)), version(0), reserved_(0) {}

VESSEL::~VESSEL() = default;

OBJHANDLE VESSEL::GetHandle() const { return vessel->Handle(); }
char *VESSEL::GetName() const { return const_cast<char *>(vessel->Name().c_str()); }
char *VESSEL::GetClassName() const { return const_cast<char *>(vessel->ClassName().c_str()); }

VESSEL2::VESSEL2(OBJHANDLE hVessel, int fmodel) : VESSEL(hVessel, fmodel) { version = 1; }

void VESSEL2::clbkSetClassCaps(FILEHANDLE) {}
void VESSEL2::clbkSaveState(FILEHANDLE scn) { SaveDefaultState(scn); }
void VESSEL2::clbkLoadStateEx(FILEHANDLE scn, void *status) {
    char *line;
    while (oapiReadScenario_nextline(scn, line))
        ParseScenarioLineEx(line, status);
}
void VESSEL2::clbkSetStateEx(const void *status) { DefSetStateEx(status); }
void VESSEL2::clbkPostCreation() {}
void VESSEL2::clbkFocusChanged(bool, OBJHANDLE, OBJHANDLE) {}
void VESSEL2::clbkPreStep(double, double, double) {}
void VESSEL2::clbkPostStep(double, double, double) {}
bool VESSEL2::clbkPlaybackEvent(double, double, const char *, const char *) { return false; }
void VESSEL2::clbkVisualCreated(VISHANDLE, int) {}
void VESSEL2::clbkVisualDestroyed(VISHANDLE, int) {}
void VESSEL2::clbkDrawHUD(int, const HUDPAINTSPEC *, HDC) {}
void VESSEL2::clbkRCSMode(int) {}
void VESSEL2::clbkADCtrlMode(DWORD) {}
void VESSEL2::clbkHUDMode(int) {}
void VESSEL2::clbkMFDMode(int, int) {}
void VESSEL2::clbkNavMode(int, bool) {}
void VESSEL2::clbkDockEvent(int, OBJHANDLE) {}
void VESSEL2::clbkAnimate(double) {}
bool VESSEL2::clbkLoadGenericCockpit() { return false; }
bool VESSEL2::clbkLoadPanel(int) { return false; }
bool VESSEL2::clbkPanelMouseEvent(int, int, int, int) { return false; }
bool VESSEL2::clbkPanelRedrawEvent(int, int, SURFHANDLE) { return false; }
bool VESSEL2::clbkLoadVC(int) { return false; }
bool VESSEL2::clbkVCMouseEvent(int, int, VECTOR3 &) { return false; }
bool VESSEL2::clbkVCRedrawEvent(int, int, SURFHANDLE) { return false; }
int VESSEL2::clbkConsumeDirectKey(char *) { return 0; }
int VESSEL2::clbkConsumeBufferedKey(DWORD, bool, char *) { return 0; }

VESSEL3::VESSEL3(OBJHANDLE hVessel, int fmodel) : VESSEL2(hVessel, fmodel) { version = 2; }

bool VESSEL3::clbkLoadPanel2D(int, void *, DWORD, DWORD) { return false; }
bool VESSEL3::clbkPanelMouseEvent(int, int, int, int, void *) { return false; }
bool VESSEL3::clbkPanelRedrawEvent(int, int, SURFHANDLE, void *) { return false; }
int VESSEL3::clbkGeneric(int, int, void *) { return 0; }
bool VESSEL3::clbkDrawHUD(int, const HUDPAINTSPEC *, oapi::Sketchpad *) { return true; }
void VESSEL3::clbkRenderHUD(int, const HUDPAINTSPEC *, SURFHANDLE) {}
void VESSEL3::clbkGetRadiationForce(const VECTOR3 &, VECTOR3 &F, VECTOR3 &pos) {
    F = {0, 0, 0};
    pos = {0, 0, 0};
}
