// A vessel class for host tests. It records the callbacks that reach it, in
// order, sets up a small body with one tank, one thruster in the main group,
// a dock and an attachment point, and writes what it saw into its scenario
// block: PROBE_FRAMES (the number of steps), PROBE_KEYS (buffered key events,
// "+32" down, "-32" up, "^" with Ctrl held), PROBE_HELD (frames in which M, J
// and the left Ctrl key were down) and PROBE_MANUAL (frames in which the host
// gave a manual level for pitch up). Its constructor makes its message line.
//
// Scenario lines set what it does:
//   PROBE_MAIN LEVEL   the main thrust level once the vessel is created
//   PROBE_ANSWER B D   its answers to buffered and direct keys (default 1 0)
//   PROBE_RCS          a pitch-up and an up thruster, each on a tank of its own
//   PROBE_SAY          message "hello" in frames 1-2, "" in 3-4, "bye" after,
//                      set anew each frame
//   PROBE_SPAWN        creates NAME-child (a probe) in frame 1, deletes
//                      itself in frame 2
//   PROBE_WARP A       time acceleration A in frames 1 and 2
//   PROBE_CAP A        in every frame, time acceleration A if it reads above
//   PROBE_THROW N      throws std::runtime_error in frame N
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
    int heldM = 0, heldJ = 0, heldCtrl = 0, manual = 0;
    double mainLevel = 0.0;
    oapi::Pen *hudPen = nullptr;
    NOTEHANDLE note = nullptr;
    int bufferedAnswer = 1, directAnswer = 0;
    bool rcs = false, say = false, spawn = false;
    double warp = 0.0, cap = 0.0;
    int throwAt = 0;

  private:
    void Record(const std::string &what) const;
};

// Every probe's records, "<name> <callback> [details]", oldest first.
std::vector<std::string> &ProbeEvents();

VESSEL *HostProbeInit(OBJHANDLE h, int fmodel);
void HostProbeExit(VESSEL *v);
