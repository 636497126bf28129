// A vessel class for host tests. It records the callbacks that reach it, in
// order, sets up a small body with one tank, one thruster in the main group,
// a dock and an attachment point, and writes what it saw into its scenario
// block: PROBE_FRAMES (the number of steps), PROBE_KEYS (buffered key events,
// "+32" down, "-32" up, "^" with Ctrl held) and PROBE_HELD (frames in which
// M, J and the left Ctrl key were down). The scenario line PROBE_MAIN LEVEL
// sets the main thrust level once the vessel is created.
#pragma once

#include <string>
#include <vector>

#include "Orbitersdk.h"

class HostProbe : public VESSEL3 {
  public:
    HostProbe(OBJHANDLE h, int fmodel);
    ~HostProbe() override;

    void clbkSetClassCaps(FILEHANDLE cfg) override;
    void clbkLoadStateEx(FILEHANDLE scn, void *status) override;
    void clbkSaveState(FILEHANDLE scn) override;
    void clbkPostCreation() override;
    void clbkFocusChanged(bool getfocus, OBJHANDLE hNewVessel, OBJHANDLE hOldVessel) override;
    // Records "cockpit"; the head-up display gets a cross of two lines in the
    // cockpit's pen and the vessel's name in angle brackets.
    bool clbkLoadGenericCockpit() override;
    bool clbkDrawHUD(int mode, const HUDPAINTSPEC *hps, oapi::Sketchpad *skp) override;
    void clbkPreStep(double simt, double simdt, double mjd) override;
    int clbkConsumeBufferedKey(DWORD key, bool down, char *kstate) override;
    int clbkConsumeDirectKey(char *kstate) override;

    int frames = 0;
    std::string keys;
    int heldM = 0, heldJ = 0, heldCtrl = 0;
    double mainLevel = 0.0;
    oapi::Pen *hudPen = nullptr;

  private:
    void Record(const std::string &what) const;
};

// Every probe's records, "<name> <callback> [details]", oldest first.
std::vector<std::string> &ProbeEvents();

VESSEL *HostProbeInit(OBJHANDLE h, int fmodel);
void HostProbeExit(VESSEL *v);
